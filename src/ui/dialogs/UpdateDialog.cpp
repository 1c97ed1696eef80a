#include "ui/dialogs/UpdateDialog.h"

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace QuillonUpdate {

namespace {

constexpr int MarginPx = 16;
constexpr int SpacingPx = 12;
constexpr int NotesWidthEm = 44;
constexpr int NotesHeightLines = 10;

QLabel *plainLabel(const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

}

UpdateDialog::UpdateDialog(const Artifact &artifact, const QString &currentVersion, const QString &appName,
                           QWidget *parent)
    : QDialog(parent)
    , m_url(artifact.url)
{
    setWindowTitle(tr("Update Available"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(MarginPx, MarginPx, MarginPx, MarginPx);
    layout->setSpacing(SpacingPx);
    layout->addWidget(
        plainLabel(tr("%1 %2 is available. You have version %3.").arg(appName, artifact.version, currentVersion)));

    if (!artifact.notes.isEmpty()) {
        auto *notes = new QPlainTextEdit(artifact.notes);
        notes->setReadOnly(true);
        notes->setTabChangesFocus(true);
        notes->setAccessibleName(tr("What's new"));
        const QFontMetrics metrics(notes->font());
        notes->setMinimumSize(metrics.averageCharWidth() * NotesWidthEm, metrics.lineSpacing() * NotesHeightLines);
        layout->addWidget(notes, 1);
    }

    auto *buttons = new QDialogButtonBox;
    QPushButton *download = buttons->addButton(tr("Download"), QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("Later"), QDialogButtonBox::RejectRole);
    download->setDefault(true);
    download->setFocus();
    connect(buttons, &QDialogButtonBox::accepted, this, &UpdateDialog::onDownload);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

void UpdateDialog::onDownload()
{
    QDesktopServices::openUrl(m_url);
    accept();
}

} // namespace QuillonUpdate
