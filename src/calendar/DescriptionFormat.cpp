#include "calendar/DescriptionFormat.h"

#include "BuildSettings.h"
#include "calendar/HtmlSanitizer.h"
#include "calendar/TextLinks.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace {

// Several pages. A renderer takes seconds for much more, if the text is made for that.
constexpr qsizetype MaxShownChars = 10'000;
// Mail programs send styles and markup many times as long as the text.
constexpr qsizetype MaxReadChars = 500'000;
constexpr QLatin1StringView Boilerplate{ "Microsoft Teams" };

QString joinText()
{
    return QCoreApplication::translate("DescriptionFormat", "Join Microsoft Teams Meeting");
}

/// With \p meetingLink shown elsewhere the invitation's own line goes; else it becomes an anchor.
QString withJoinLines(const QString &text, const QString &meetingLink)
{
    static const QRegularExpression teamsJoinPattern(
        QStringLiteral("Join the meeting now<(https://%1/[^>]+)>")
            .arg(QRegularExpression::escape(QString::fromLatin1(BuildSettings::TeamsHost))));
    QString result;
    qsizetype done = 0;
    for (auto matches = teamsJoinPattern.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        result += QStringView(text).sliced(done, match.capturedStart() - done);
        if (meetingLink.isEmpty())
            result += QStringLiteral("<a href=\"%1\">%2</a>\n").arg(match.captured(1), joinText());
        done = match.capturedEnd();
    }
    result += QStringView(text).sliced(done);
    return result;
}

/// The boilerplate is told by lines, and HTML may be one long line.
QString cleanHtml(QString html, const QString &meetingLink)
{
    static const QRegularExpression blockTag(QStringLiteral(R"((</?(?:p|div|br|table|tr|li|h[1-6])\b[^<>]*>))"),
                                             QRegularExpression::CaseInsensitiveOption);
    if (html.contains(Boilerplate))
        html.replace(blockTag, QStringLiteral("\n\\1\n"));
    return DescriptionFormat::clean(html, meetingLink);
}

/// What clean() made of plain text: no markup but the anchor of a join line.
QString plainToHtml(const QString &text, const QString &linkColor)
{
    static const QRegularExpression joinAnchor(QStringLiteral("<a href=\"(https://[^>]+)\">([^<]+)</a>"));
    QString html = QStringLiteral("<div style=\"white-space:pre-wrap;\">");
    const auto addText = [&](QStringView plain) {
        html += TextLinks::toHtml(plain, linkColor).replace(u'\n', QStringLiteral("<br>"));
    };
    qsizetype done = 0;
    for (auto matches = joinAnchor.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        addText(QStringView(text).sliced(done, match.capturedStart() - done));
        const QString url = TextLinks::openable(match.captured(1));
        const QString name = match.captured(2).toHtmlEscaped();
        html += url.isEmpty() ? name : TextLinks::anchorTag(url, linkColor) + name + QStringLiteral("</a>");
        done = match.capturedEnd();
    }
    addText(QStringView(text).sliced(done));
    return html + QStringLiteral("</div>");
}

}

bool DescriptionFormat::looksLikeHtml(const QString &text)
{
    static const QRegularExpression htmlTagPattern(QStringLiteral(R"(<\s*(html|body|div|p|br|table|style|meta|a)\b)"),
                                                   QRegularExpression::CaseInsensitiveOption);
    return htmlTagPattern.match(text).hasMatch();
}

QString DescriptionFormat::clean(const QString &text, const QString &meetingLink)
{
    static const QRegularExpression angleUrlPattern(QStringLiteral("<(https?://[^>]+)>"));
    static const QRegularExpression underscoreRulePattern(QStringLiteral(R"(^_{3,}\s*$)"),
                                                          QRegularExpression::MultilineOption);
    static const QRegularExpression teamsHeadingPattern(QStringLiteral(R"(^Microsoft Teams\s*$)"),
                                                        QRegularExpression::MultilineOption);
    static const QRegularExpression needHelpPattern(QStringLiteral(R"(^.*Need help\?.*$)"),
                                                    QRegularExpression::MultilineOption);
    static const QRegularExpression organizersPattern(QStringLiteral(R"(For organizers:[\s\S]*$)"));
    static const QRegularExpression blankLinesPattern(QStringLiteral("\\n{3,}"));
    if (!text.contains(Boilerplate))
        return text;
    QString result = withJoinLines(text, meetingLink);
    result.replace(angleUrlPattern, QStringLiteral("\\1"));
    result.remove(underscoreRulePattern);
    result.remove(teamsHeadingPattern);
    result.remove(needHelpPattern);
    result.remove(organizersPattern);
    result.replace(blankLinesPattern, QStringLiteral("\n\n"));
    return result.trimmed();
}

QString DescriptionFormat::linkifyUrls(const QString &text, const QString &linkColor)
{
    const QString style = linkColor.isEmpty() ? QString() : QStringLiteral(" style=\"color:%1;\"").arg(linkColor);
    QString result;
    for (const TextLinks::Piece &piece : TextLinks::pieces(text)) {
        const QStringView before = QStringView(text).first(piece.text.data() - text.constData());
        const bool isHref = before.right(6).contains(u"href="); // in whichever quotes, or in none
        const bool isInMarkup = isHref || before.endsWith(u"\">") || before.endsWith(u"'>");
        if (piece.isUrl && !isInMarkup)
            result += QStringLiteral("<a href=\"%1\"%2>%1</a>").arg(piece.text, style);
        else
            result += piece.text;
    }
    return result;
}

QString DescriptionFormat::toSafeHtml(const QString &description, const QString &meetingLink, const QString &linkColor)
{
    QString text = description.left(MaxReadChars);
    if (looksLikeHtml(text))
        return HtmlSanitizer::sanitized(cleanHtml(text, meetingLink), linkColor, MaxShownChars);
    text = clean(text.replace(QLatin1StringView("\r\n"), QLatin1StringView("\n")), meetingLink);
    const bool isLong = text.size() > MaxShownChars;
    return plainToHtml(isLong ? text.left(MaxShownChars) + u'…' : text, linkColor);
}
