#include "ui/dialogs/AboutBox.h"

#include "ui/dialogs/FormDialog.h"

#include <QCoreApplication>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("AboutBox", source);
}

class AboutBox : public FormDialog {
public:
    explicit AboutBox(QWidget *parent)
        : FormDialog(text(QT_TRANSLATE_NOOP("AboutBox", "About Quillon Calendar")), parent)
    {
        const QString version = text(QT_TRANSLATE_NOOP("AboutBox", "Version %1"));
        addProgramHeader(QStringLiteral("Quillon Calendar"), version.arg(QCoreApplication::applicationVersion()))
            ->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
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
};

}

void showAboutBox(QWidget *parent)
{
    (new AboutBox(parent))->open();
}
