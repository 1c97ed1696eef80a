#pragma once

#include <QList>
#include <QString>
#include <QStringView>

/// The URLs in running text.
namespace TextLinks {

struct Piece {
    QStringView text;
    bool isUrl = false;
};

/// \p text cut into URLs (http and https) and what lies between them; one after the other the pieces are the text.
/// Punctuation and a bracket behind a URL belong to the text. The pieces point into \p text.
QList<Piece> pieces(QStringView text);

/// \p url without blanks around it if a click may open it (http, https, mailto), else nothing.
QString openable(QString url);

/// The start tag of a link. An empty \p color leaves the colour to the style sheet.
QString anchorTag(const QString &url, const QString &color);

/// Plain text as HTML: escaped, with URLs as anchors. Line breaks stay as they are.
QString toHtml(QStringView text, const QString &linkColor);

} // namespace TextLinks
