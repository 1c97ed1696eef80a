#include "ui/dialogs/PlainText.h"

namespace {

constexpr QChar ZeroWidthSpace(0x200B);

}

QString PlainText::breakLongWords(const QString &text, int longestRun)
{
    QString result;
    result.reserve(text.size() + text.size() / longestRun);
    int run = 0;
    for (const QChar c : text) {
        // A place to wrap between the halves of a surrogate pair would break the character.
        if (run >= longestRun && !c.isLowSurrogate()) {
            result.append(ZeroWidthSpace);
            run = 0;
        }
        run = c.isSpace() ? 0 : run + 1;
        result.append(c);
    }
    return result;
}

QString PlainText::typed(const QString &text, const QString &shown)
{
    return text == shown ? shown : text.trimmed();
}
