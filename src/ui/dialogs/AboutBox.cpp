#include "ui/dialogs/AboutBox.h"

#include "ui/dialogs/FormDialog.h"
#include "ui/theme/Theme.h"

#include <QApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int IconSize = 64;

QString text(const char *source)
{
    return QCoreApplication::translate("AboutBox", source);
}

class AboutBox : public FormDialog {
public:
    explicit AboutBox(QWidget *parent)
        : FormDialog(text(QT_TRANSLATE_NOOP("AboutBox", "About Quillon Calendar")), parent)
    {
        body()->addLayout(makeHeader());
        body()->addSpacing(4);
        addSection(text(QT_TRANSLATE_NOOP("AboutBox", "Built with")));
        QFormLayout *parts = addForm();
        const auto addPart = [parts](const QString &name, const QString &licence) {
            parts->addRow(new QLabel(name), makeHint(licence));
        };
        addPart(QStringLiteral("Qt ") + QLatin1StringView(qVersion()),
                text(QT_TRANSLATE_NOOP("AboutBox", "GNU Lesser General Public License, version 3")));
        addPart(QStringLiteral("IBM Plex"), text(QT_TRANSLATE_NOOP("AboutBox", "SIL Open Font License 1.1 (OFL-1.1)")));
        addPart(QStringLiteral("Material Icons"),
                text(QT_TRANSLATE_NOOP("AboutBox", "Apache License 2.0 (Apache-2.0)")));
        body()->addStretch();
        addCloseButton();
    }

private:
    QHBoxLayout *makeHeader()
    {
        auto *icon = new QLabel(this);
        icon->setPixmap(QApplication::windowIcon().pixmap(QSize(IconSize, IconSize), devicePixelRatioF()));
        icon->setVisible(!QApplication::windowIcon().isNull());
        auto *name = new QLabel(QStringLiteral("Quillon Calendar"), this);
        QFont font = name->font();
        font.setPointSize(Theme::FontSizeXl);
        font.setBold(true);
        name->setFont(font);
        auto *version =
            makeHint(text(QT_TRANSLATE_NOOP("AboutBox", "Version %1")).arg(QCoreApplication::applicationVersion()));
        version->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);

        auto *texts = new QVBoxLayout;
        texts->setSpacing(4);
        texts->addStretch();
        texts->addWidget(name);
        texts->addWidget(version);
        texts->addStretch();
        auto *header = new QHBoxLayout;
        header->setSpacing(16);
        header->addWidget(icon);
        header->addLayout(texts, 1);
        return header;
    }
};

}

void showAboutBox(QWidget *parent)
{
    (new AboutBox(parent))->open();
}
