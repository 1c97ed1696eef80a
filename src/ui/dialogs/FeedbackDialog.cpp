#include "ui/dialogs/FeedbackDialog.h"

#include "ui/dialogs/Prompt.h"

#include <QCheckBox>
#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace QuillonFeedback {

namespace {

constexpr int MessageLines = 8;
constexpr int DiagnosticsIndentPx = 26; // below the text of the check box

}

FeedbackDialog::FeedbackDialog(const Config &config, QWidget *parent)
    : FormDialog(tr("Send Feedback"), parent)
    , m_config(config)
    , m_channel(channelOf(config))
    , m_client(new Client(config, this))
    , m_message(new QPlainTextEdit(this))
    , m_includeDiagnostics(new QCheckBox(tr("Add these &lines about the program and the system"), this))
{
    auto *label = new QLabel(tr("Your &message"), this);
    label->setBuddy(m_message);
    m_message->setPlaceholderText(tr("What works well? What went wrong, and what had you expected?"));
    m_message->setTabChangesFocus(true);
    m_message->setMinimumHeight(m_message->fontMetrics().lineSpacing() * MessageLines);
    m_includeDiagnostics->setChecked(true);
    QLabel *diagnosticsText = makeHint(diagnostics());
    diagnosticsText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    diagnosticsText->setContentsMargins(DiagnosticsIndentPx, 0, 0, 0);
    m_includeDiagnostics->setAccessibleDescription(diagnosticsText->text());
    connect(m_includeDiagnostics, &QCheckBox::toggled, diagnosticsText, &QWidget::setEnabled);

    body()->addWidget(label);
    body()->addWidget(m_message, 1);
    body()->addWidget(m_includeDiagnostics);
    body()->addWidget(diagnosticsText);
    body()->addWidget(makeHint(deliveryHint()));
    buildButtons();
    connect(m_client, &Client::sent, this, &FeedbackDialog::onSent);
    connect(m_client, &Client::sendFailed, this, &FeedbackDialog::onSendFailed);
    m_message->setFocus();
}

void FeedbackDialog::buildButtons()
{
    switch (m_channel) {
    case Channel::Web:
        m_accept = addSaveButtons(tr("&Send"));
        break;
    case Channel::Mail:
        m_accept = addSaveButtons(tr("&Write E-Mail…"));
        break;
    case Channel::Clipboard:
        m_accept = addSaveButtons(tr("Copy &Text"));
        return;
    }
    connect(addSideButton(tr("Copy &Text")), &QPushButton::clicked, this, &FeedbackDialog::copyText);
}

QString FeedbackDialog::deliveryHint() const
{
    switch (m_channel) {
    case Channel::Web:
        return tr("Only what you see here is sent, to %1.").arg(QUrl(m_config.url).host());
    case Channel::Mail:
        return tr("Your mail program opens with the text, for you to read once more and send.");
    case Channel::Clipboard:
        break;
    }
    return tr("This build has no address for feedback. Copy the text, and send it to whoever gave you the program.");
}

Report FeedbackDialog::report() const
{
    return { .message = m_message->toPlainText().trimmed(),
             .diagnostics = m_includeDiagnostics->isChecked() ? diagnostics() : QString() };
}

bool FeedbackDialog::hasUnsavedChanges() const
{
    const QString message = report().message;
    return !message.isEmpty() && message != m_deliveredText;
}

bool FeedbackDialog::save()
{
    // No way closes the dialog at once: the text stays until it is known to have arrived, or the user goes.
    if (!hasMessage())
        return false;
    switch (m_channel) {
    case Channel::Web:
        setSending(true);
        m_client->send(report());
        break;
    case Channel::Mail:
        openMail();
        break;
    case Channel::Clipboard:
        copyText();
        break;
    }
    return false;
}

bool FeedbackDialog::hasMessage()
{
    if (!report().message.isEmpty())
        return true;
    showProblem(tr("Write a message first."), m_message);
    return false;
}

void FeedbackDialog::openMail()
{
    const Report current = report();
    if (QDesktopServices::openUrl(mailUrl(m_config, tr("Feedback on Quillon Calendar"), current)))
        m_deliveredText = current.message;
    else
        showProblem(tr("No mail program could be opened. Copy the text instead."), m_message);
}

void FeedbackDialog::copyText()
{
    clearProblem();
    if (!hasMessage())
        return;
    const Report current = report();
    QGuiApplication::clipboard()->setText(textOf(current));
    m_deliveredText = current.message;
    Prompt::information(this, windowTitle(), tr("The text is on the clipboard."));
}

void FeedbackDialog::setSending(bool sending)
{
    m_accept->setText(sending ? tr("Sending…") : tr("&Send"));
    m_accept->setEnabled(!sending);
    m_message->setReadOnly(sending);
    m_includeDiagnostics->setEnabled(!sending);
}

void FeedbackDialog::onSent()
{
    QDialog::accept();
    Prompt::information(parentWidget(), windowTitle(), tr("Thank you. Your feedback was sent."));
}

void FeedbackDialog::onSendFailed(const QString &message)
{
    setSending(false);
    showProblem(tr("The feedback could not be sent: %1").arg(message), m_message);
}

void openFeedback(const Config &config, QWidget *parent)
{
    (new FeedbackDialog(config, parent))->open();
}

} // namespace QuillonFeedback
