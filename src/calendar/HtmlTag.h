#pragma once

#include <QString>
#include <QStringView>

/// The pieces of HTML text. Broken input is read the way browsers do where that is cheap.
namespace Html {

struct Tag {
    QString name; ///< in lower case
    bool isEnd = false;
    QString href; ///< of the first attribute with that name, decoded
    qsizetype length = 0; ///< of its text, brackets included
    bool isComplete = false; ///< the closing bracket was found; one within quotes does not count
};

/// Reads the tag that \p text begins with: "<" or "</" and a letter.
Tag readTag(QStringView text);

struct Entity {
    qsizetype length = 0; ///< 0: an ampersand and no more
    QString text; ///< empty for a name that only a renderer knows, such as "&eacute;"
};

/// Reads the character reference that \p text, which begins with "&", may begin with.
Entity readEntity(QStringView text);

/// \p text with all references that readEntity() knows replaced.
QString decoded(QStringView text);

} // namespace Html
