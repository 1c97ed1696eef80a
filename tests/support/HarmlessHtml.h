#pragma once

#include <QRegularExpression>
#include <QStringList>

/// True if every bracket of \p html belongs to a tag that shown notes may have, every tag is closed in turn, not many
/// are open at once, and links lead where they may.
inline bool isHarmlessHtml(const QString &html)
{
    static const QRegularExpression tag(
        QStringLiteral("<(?:br|/?(?:p|b|i|strong|em|u|code|pre|ul|ol|li|h[1-4]|blockquote)|/a|/div|"
                       "a href=\"(?:https?://|mailto:)[^\"<>]*\"(?: style=\"color:#[0-9]+;\")?|"
                       "div style=\"white-space:pre-wrap;\")>"),
        QRegularExpression::CaseInsensitiveOption);
    constexpr qsizetype maxDepth = 30;
    QStringList open;
    qsizetype tags = 0;
    for (auto matches = tag.globalMatch(html); matches.hasNext(); ++tags) {
        const QString name = matches.next().captured().remove(u'<').remove(u'>').section(u' ', 0, 0);
        if (name == u"br")
            continue;
        if (!name.startsWith(u'/') && open.size() < maxDepth)
            open.append(name);
        else if (open.isEmpty() || open.takeLast() != name.sliced(1))
            return false;
    }
    return open.isEmpty() && html.count(u'<') == tags && html.count(u'>') == tags;
}
