#include "ui/dialogs/WhatsNewDialog.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextDocument>
#include <QVBoxLayout>

namespace {

constexpr int WidthEm = 26;
constexpr int HeightLines = 20;

}

WhatsNewDialog::WhatsNewDialog(const QString &appName, const QString &markdown, QWidget *parent)
    : FormDialog(tr("What's New"), parent)
{
    auto *notes = new QTextBrowser(this);
    QTextDocument::MarkdownFeatures features = QTextDocument::MarkdownDialectCommonMark;
    features |= QTextDocument::MarkdownNoHTML;
    notes->document()->setMarkdown(markdown, features);
    notes->moveCursor(QTextCursor::Start); // the focus would else scroll to the end
    notes->setOpenExternalLinks(true);
    notes->setAccessibleName(tr("What's new in %1").arg(appName));
    const QFontMetrics metrics(notes->font());
    notes->setMinimumSize(metrics.height() * WidthEm, metrics.lineSpacing() * HeightLines);
    body()->addWidget(notes, 1);
    addCloseButton();
    notes->setFocus();
}

QString WhatsNewDialog::notesFrom(const QString &changelog)
{
    static const QRegularExpression firstVersion(QStringLiteral("^## "), QRegularExpression::MultilineOption);
    static const QRegularExpression bracketedVersion(QStringLiteral("^## \\[([^\\]]*)\\]"),
                                                     QRegularExpression::MultilineOption);
    const qsizetype start = changelog.indexOf(firstVersion);
    return start < 0 ? QString() : changelog.mid(start).replace(bracketedVersion, QStringLiteral("## \\1"));
}

void QuillonUpdate::showWhatsNewManual(const Config &, const QString &appName, QWidget *parent,
                                       const StatusHandler &status)
{
    QFile changelog(QStringLiteral(":/CHANGELOG.md"));
    QString notes;
    if (changelog.open(QIODevice::ReadOnly))
        notes = WhatsNewDialog::notesFrom(QString::fromUtf8(changelog.readAll()));
    if (notes.isEmpty())
        status(WhatsNewDialog::tr("This build carries no release notes."));
    else
        (new WhatsNewDialog(appName, notes, parent))->open();
}
