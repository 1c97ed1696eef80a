#include "calendar/NLParser.h"

#include <QTimeZone>

#include <cstdlib>

// The input is the line.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QDateTime now(QDate(2026, 10, 25), QTime(1, 40), QTimeZone("Europe/Berlin"));
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const ParsedQuickAdd parsed = NLParser::parse(text, now);
    if (parsed.start.isValid() && parsed.end && (*parsed.end < parsed.start || parsed.end->date().year() > 9999))
        std::abort();
    if (parsed.title != parsed.title.simplified() || parsed.title.size() > text.size())
        std::abort();
    return 0;
}
