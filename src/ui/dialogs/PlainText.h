#pragma once

#include <QString>

namespace PlainText {

/// \p text with invisible places to wrap in its overlong words (a file name without spaces), which
/// would else widen a label without limit.
/// A word counts as overlong beyond \p longestRun characters.
QString breakLongWords(const QString &text, int longestRun = 32);

} // namespace PlainText
