#pragma once

#include <QString>

/// Makes HTML of anyone safe to show.
namespace HtmlSanitizer {

/// \p html reduced to simple text markup: p, br, b, i, strong, em, u, code, pre, ul, ol, li, h1 to h4, blockquote,
/// and a with an address of http, https or mailto. No other attribute stays. Of other elements only the text
/// stays, rows of tables and blocks as lines; of scripts, styles and titles nothing. URLs in
/// the text become links. Everything that is opened is closed.
///
/// Never fails, in linear time. What is longer than about \p maxChars ends in "…".
QString sanitized(const QString &html, const QString &linkColor, qsizetype maxChars);

} // namespace HtmlSanitizer
