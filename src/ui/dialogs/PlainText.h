#pragma once

#include <QString>

namespace PlainText {

/// \p text with invisible places to wrap in its overlong words (a file name without spaces), which
/// would else widen a label without limit.
/// A word counts as overlong beyond \p longestRun characters.
QString breakLongWords(const QString &text, int longestRun = 32);

/// What the \p text of a field means: without the blanks around it, but \p shown, which it was filled with, as that
/// was.
QString typed(const QString &text, const QString &shown);

} // namespace PlainText
