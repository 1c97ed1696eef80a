#include "calendar/ICalTexts.h"

#include <cstring>
#include <string_view>

namespace {

// Long texts are seldom equal.
constexpr qsizetype LongestRepeated = 100;

/// The first backslash at or after \p from, or -1.
qsizetype nextBackslash(QByteArrayView text, qsizetype from)
{
    const void *found = std::memchr(text.data() + from, '\\', size_t(text.size() - from));
    return found ? static_cast<const char *>(found) - text.data() : -1;
}

}

QString ICal::unescapedText(QByteArrayView value)
{
    qsizetype backslash = value.isEmpty() ? -1 : nextBackslash(value, 0);
    if (backslash < 0)
        return QString::fromUtf8(value);
    thread_local std::string plain; // kept: most values need one
    plain.clear();
    qsizetype copied = 0;
    for (; backslash >= 0 && backslash + 1 < value.size(); backslash = nextBackslash(value, copied)) {
        const char escaped = value[backslash + 1];
        plain.append(value.data() + copied, size_t(backslash - copied));
        const bool isBreak = escaped == 'n' || escaped == 'N';
        const bool isEscape = isBreak || escaped == ',' || escaped == ';' || escaped == '\\';
        plain.push_back(isBreak ? '\n' : isEscape ? escaped : '\\');
        copied = backslash + (isEscape ? 2 : 1);
    }
    plain.append(value.data() + copied, size_t(value.size() - copied));
    return QString::fromStdString(plain);
}

QStringList ICal::unescapedList(QByteArrayView value)
{
    QStringList texts;
    qsizetype from = 0;
    for (qsizetype i = 0; i <= value.size(); ++i) {
        if (i + 1 < value.size() && value[i] == '\\') {
            ++i; // the comma behind it separates nothing
        } else if (i == value.size() || value[i] == ',') {
            if (i > from)
                texts.append(unescapedText(value.sliced(from, i - from).trimmed()));
            from = i + 1;
        }
    }
    return texts;
}

QString ICal::lowerCaseText(QByteArrayView value)
{
    return QString::fromUtf8(value).toLower();
}

QString ICal::RepeatedTexts::text(QByteArrayView utf8, Decoder decode)
{
    if (utf8.isEmpty() || utf8.size() > LongestRepeated)
        return decode(utf8);
    const std::string_view bytes(utf8.data(), size_t(utf8.size()));
    Entry &entry = m_entries[std::hash<std::string_view>()(bytes) % m_entries.size()];
    if (entry.decode != decode || entry.utf8 != bytes) {
        entry.text = decode(utf8);
        entry.utf8 = bytes;
        entry.decode = decode;
    }
    return entry.text;
}
