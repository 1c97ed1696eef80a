#pragma once

#include "platform/QuillonFeedback.h"
#include "ui/dialogs/FormDialog.h"

class QCheckBox;
class QPlainTextEdit;
class QPushButton;

namespace QuillonFeedback {

/// Takes a message to the makers and shows to the letter what goes along. Sends it, opens a mail with it, or
/// copies it, as the configuration has it.
class FeedbackDialog : public FormDialog {
    Q_OBJECT

public:
    explicit FeedbackDialog(const Config &config, QWidget *parent = nullptr);

protected:
    bool save() override;
    [[nodiscard]] bool hasUnsavedChanges() const override;

private:
    void buildButtons();
    [[nodiscard]] Report report() const;
    [[nodiscard]] QString deliveryHint() const;
    bool hasMessage(); // if not, says so
    void openMail();
    void copyText();
    void setSending(bool sending);
    void onSent();
    void onSendFailed(const QString &message);

    Config m_config;
    Channel m_channel;
    Client *m_client;
    QPlainTextEdit *m_message;
    QCheckBox *m_includeDiagnostics;
    QPushButton *m_accept = nullptr;
    QString m_deliveredText; // the last message that has left the dialog, by whatever way
};

/// Opens the dialog over \p parent.
void openFeedback(const Config &config, QWidget *parent);

} // namespace QuillonFeedback
