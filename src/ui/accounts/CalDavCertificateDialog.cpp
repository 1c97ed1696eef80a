#include "ui/accounts/CalDavCertificateDialog.h"

#include "ui/dialogs/InlineMessage.h"
#include "ui/dialogs/PlainText.h"
#include "ui/theme/Theme.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QLabel *makeValue(const QString &text)
{
    auto *label = new QLabel(PlainText::breakLongWords(text));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

QLabel *makeFingerprint(const QString &sha256)
{
    constexpr qsizetype LineLength = 48; // sixteen pairs with their colons: two lines for SHA-256
    QString text = CalDavClient::formatFingerprint(CalDavClient::normalizeFingerprint(sha256));
    for (qsizetype i = LineLength; i < text.size(); i += LineLength + 1)
        text.insert(i, u'\n');
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    // By name, as the application's style sheet sets the family of everything.
    label->setStyleSheet(
        QStringLiteral("font-family: \"%1\";").arg(QFontDatabase::systemFont(QFontDatabase::FixedFont).family()));
    return label;
}

}

CalDavCertificateDialog::CalDavCertificateDialog(const CalDavClient::UntrustedCertInfo &info, QWidget *parent)
    : CalDavCertificateDialog(info, QString(), parent)
{
}

CalDavCertificateDialog::CalDavCertificateDialog(const CalDavClient::UntrustedCertInfo &info,
                                                 const QString &previousSha256, QWidget *parent)
    : FormDialog(tr("Untrusted certificate"), parent)
{
    auto *heading = new QLabel(tr("Trust this certificate?"));
    heading->setTextFormat(Qt::PlainText);
    heading->setFont(Theme::headingFont(heading->font()));
    body()->addWidget(heading);
    auto *text =
        makeValue(tr("%1:%2 presented a TLS certificate that doesn't chain to a trusted root. Review it before "
                     "trusting it, anyone with this fingerprint can impersonate the server.")
                      .arg(info.host, QString::number(info.port)));
    text->setTextInteractionFlags(Qt::NoTextInteraction);
    body()->addWidget(text);

    const QString dateFormat = QStringLiteral("yyyy-MM-dd");
    const auto orUnknown = [](const QString &name) { return name.isEmpty() ? tr("(unknown)") : name; };
    QFormLayout *form = addForm();
    addTextRow(form, tr("Subject"), makeValue(orUnknown(info.subject)));
    addTextRow(form, tr("Issuer"), makeValue(orUnknown(info.issuer)));
    addTextRow(form, tr("Valid from"), makeValue(info.effectiveDate.toString(dateFormat)));
    addTextRow(form, tr("Valid until"), makeValue(info.expiryDate.toString(dateFormat)));
    addTextRow(form, tr("SHA-256"), makeFingerprint(info.sha256));
    if (!previousSha256.isEmpty())
        addTextRow(form, tr("Previously trusted"), makeFingerprint(previousSha256));
    addTextRow(form, tr("Errors"), makeValue(info.errors.join(u'\n')));

    auto *warning = new InlineMessage(InlineMessage::Kind::Warning, this);
    warning->showText(tr("Only trust this certificate if you control the server and recognize the fingerprint. "
                         "Trusting a malicious certificate gives attackers full access to your calendar data."));
    body()->addWidget(warning);
    body()->addStretch();

    // Return must not trust what nobody has read.
    buttons()->addButton(tr("Trust certificate"), QDialogButtonBox::AcceptRole)->setAutoDefault(false);
    QPushButton *cancel = buttons()->addButton(QDialogButtonBox::Cancel);
    cancel->setDefault(true);
    cancel->setFocus();
}
