#include "calendar/DescriptionFormat.h"

#include "BuildSettings.h"
#include "calendar/HtmlSanitizer.h"

#include <QRegularExpression>

namespace {

constexpr qsizetype MaxShownChars = 20'000; // more would take the card seconds to lay out

const QRegularExpression &teamsJoinPattern()
{
    static const QRegularExpression pattern(
        QStringLiteral("Join the meeting now<(https://%1/[^>]+)>")
            .arg(QRegularExpression::escape(QString::fromLatin1(BuildSettings::TeamsHost))));
    return pattern;
}

struct Removal {
    QRegularExpression pattern;
    QString replacement;
};

const QList<Removal> &boilerplate()
{
    static const QList<Removal> removals{
        { QRegularExpression(QStringLiteral("<(https?://[^>]+)>")), QStringLiteral("\\1") },
        { QRegularExpression(QStringLiteral("^_{3,}\\s*$"), QRegularExpression::MultilineOption), {} },
        { QRegularExpression(QStringLiteral("^Microsoft Teams\\s*$"), QRegularExpression::MultilineOption), {} },
        { QRegularExpression(QStringLiteral("^.*Need help\\?.*$"), QRegularExpression::MultilineOption), {} },
        { QRegularExpression(QStringLiteral("For organizers:[\\s\\S]*$")), {} },
        { QRegularExpression(QStringLiteral("\n{3,}")), QStringLiteral("\n\n") },
        { QRegularExpression(QStringLiteral("[\\s]+$")), {} },
    };
    return removals;
}

bool isInsideTagOrAnchor(const QString &text, qsizetype at)
{
    const QStringView before = QStringView(text).left(at);
    return before.right(6).contains(u"href=") || before.endsWith(u"\">") || before.endsWith(u"'>");
}

}

bool DescriptionFormat::looksLikeHtml(const QString &text)
{
    static const QRegularExpression htmlTagPattern(QStringLiteral("<\\s*(html|body|div|p|br|table|style|meta|a)\\b"),
                                                   QRegularExpression::CaseInsensitiveOption);
    return htmlTagPattern.match(text).hasMatch();
}

QString DescriptionFormat::clean(const QString &text, const QString &meetingLink)
{
    if (!text.contains(QStringLiteral("Microsoft Teams")))
        return text;
    QString result;
    qsizetype last = 0;
    for (auto it = teamsJoinPattern().globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        result += QStringView(text).mid(last, match.capturedStart() - last);
        if (meetingLink.isEmpty())
            result += QStringLiteral("<a href=\"%1\">Join Microsoft Teams Meeting</a>\n").arg(match.captured(1));
        last = match.capturedEnd();
    }
    result += QStringView(text).mid(last);
    for (const Removal &removal : boilerplate())
        result.replace(removal.pattern, removal.replacement);
    return result.trimmed();
}

QString DescriptionFormat::linkifyUrls(const QString &text, const QString &linkColor)
{
    static const QRegularExpression urlPattern(QStringLiteral("(https?://[^\\s<>\"]+)"),
                                               QRegularExpression::CaseInsensitiveOption);
    const QString style = linkColor.isEmpty() ? QString() : QStringLiteral(" style=\"color:%1;\"").arg(linkColor);
    QString result;
    result.reserve(text.size() + 64);
    qsizetype last = 0;
    for (auto it = urlPattern.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        result += QStringView(text).mid(last, match.capturedStart() - last);
        last = match.capturedEnd();
        if (isInsideTagOrAnchor(text, match.capturedStart())) {
            result += match.captured();
            continue;
        }
        QString url = match.captured(1);
        QString tail;
        while (!url.isEmpty() && QStringLiteral(".,;:!?)").contains(url.back())) {
            tail.prepend(url.back());
            url.chop(1);
        }
        result += QStringLiteral("<a href=\"%1\"%2>%1</a>").arg(url, style) + tail;
    }
    return result += QStringView(text).mid(last);
}

QString DescriptionFormat::toSafeHtml(const QString &description, const QString &meetingLink, const QString &linkColor)
{
    const QString text = description.left(MaxShownChars);
    if (looksLikeHtml(text))
        return linkifyUrls(HtmlSanitizer::sanitized(clean(text, meetingLink)), linkColor);
    // The anchor that cleaning makes is ours; all else is plain text.
    const QString cleaned = clean(text, meetingLink);
    static const QRegularExpression ownAnchor(
        QStringLiteral("<a href=\"(https://[^\"<>]+)\">Join Microsoft Teams Meeting</a>"));
    QString html;
    qsizetype last = 0;
    for (auto it = ownAnchor.globalMatch(cleaned); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        html += cleaned.mid(last, match.capturedStart() - last).toHtmlEscaped();
        html += match.captured();
        last = match.capturedEnd();
    }
    html += cleaned.mid(last).toHtmlEscaped();
    return linkifyUrls(html, linkColor).replace(u'\n', QStringLiteral("<br>"));
}
