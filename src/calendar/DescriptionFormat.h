#pragma once

#include <QString>

/// Makes an event's notes fit to be shown; what is stored stays as it is.
namespace DescriptionFormat {

bool looksLikeHtml(const QString &text);
/// Without the boilerplate of Microsoft Teams. The link to join becomes an anchor, or goes if
/// \p meetingLink is shown elsewhere. Text without "Microsoft Teams" comes back unchanged.
QString clean(const QString &text, const QString &meetingLink);
/// URLs become anchors, but not those that are in a tag or an anchor already. \p text is HTML, as it is neither
/// escaped nor checked: for text of others use toSafeHtml().
QString linkifyUrls(const QString &text, const QString &linkColor);

/// \p description of anyone as HTML that can be shown: cleaned, links clickable, nothing that runs or loads. Plain
/// text keeps its line breaks and blanks. More than several pages are cut, with "…" at the end.
QString toSafeHtml(const QString &description, const QString &meetingLink, const QString &linkColor);

} // namespace DescriptionFormat
