#pragma once

#include <QString>

namespace PlainText {

/// \p text with invisible places to wrap in its overlong words (a file name without spaces), which
/// would else widen a label without limit.
QString breakLongWords(const QString &text);

} // namespace PlainText
