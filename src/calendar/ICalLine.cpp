#include "calendar/ICalLine.h"

#include <cstring>
#include <string>

using namespace ICal;

namespace {

/// The first \p wanted at or after \p from that stands outside quotes, or the length of \p text. A quote
/// that is never closed is an ordinary character.
qsizetype endOfPart(QByteArrayView text, qsizetype from, char wanted)
{
    for (qsizetype i = from; i < text.size(); ++i) {
        if (text[i] == wanted)
            return i;
        if (text[i] == '"') {
            if (const qsizetype closing = text.indexOf('"', i + 1); closing > 0)
                i = closing;
        }
    }
    return text.size();
}

QByteArrayView withoutQuotes(QByteArrayView text)
{
    return text.size() >= 2 && text.startsWith('"') && text.endsWith('"') ? text.sliced(1, text.size() - 2) : text;
}

}

LineReader::LineReader(QByteArrayView text)
    : m_text(text)
    , m_pos(text.startsWith("\xEF\xBB\xBF") ? 3 : 0)
{
}

QByteArrayView LineReader::takePhysicalLine()
{
    const char *begin = m_text.data() + m_pos;
    const qsizetype left = m_text.size() - m_pos;
    const void *lineFeed = std::memchr(begin, '\n', static_cast<size_t>(left));
    qsizetype length = left;
    m_pos = m_text.size();
    if (lineFeed) {
        length = static_cast<const char *>(lineFeed) - begin;
        m_pos = begin - m_text.data() + length + 1;
        if (length > 0 && begin[length - 1] == '\r')
            --length;
    }
    return QByteArrayView(begin, length);
}

bool LineReader::isAtContinuation() const
{
    return m_pos < m_text.size() && (m_text[m_pos] == ' ' || m_text[m_pos] == '\t');
}

bool LineReader::next(qsizetype stopAt)
{
    if (!m_isUnfinished) {
        if (m_pos >= m_text.size())
            return false;
        m_line = takePhysicalLine();
        m_isCopied = false;
    }
    m_isUnfinished = false;
    while (isAtContinuation()) {
        if (m_pos >= stopAt) {
            m_isUnfinished = true;
            return false;
        }
        if (!m_isCopied) {
            m_joined.assign(m_line.data(), size_t(m_line.size()));
            m_isCopied = true;
        }
        const QByteArrayView more = takePhysicalLine().sliced(1);
        m_joined.append(more.data(), size_t(more.size()));
    }
    return true;
}

ContentLine::ContentLine(QByteArrayView line)
    : m_name(line)
{
    qsizetype nameEnd = 0;
    while (nameEnd < line.size() && line[nameEnd] != ':' && line[nameEnd] != ';')
        ++nameEnd;
    if (nameEnd == line.size())
        return;
    qsizetype colon = nameEnd;
    if (line[nameEnd] == ';') {
        colon = endOfPart(line, nameEnd, ':');
        // A stray quote in the parameters must not swallow the value.
        if (colon == line.size())
            colon = line.indexOf(':', nameEnd);
        if (colon < 0)
            return;
        m_parameters = line.sliced(nameEnd + 1, colon - nameEnd - 1);
    }
    m_name = line.first(nameEnd);
    m_value = line.sliced(colon + 1);
}

QByteArrayView ContentLine::parameter(QByteArrayView name) const
{
    return withoutQuotes(parameterAsItStands(name));
}

QByteArrayView ContentLine::parameterAsItStands(QByteArrayView name) const
{
    QByteArrayView found;
    for (qsizetype from = 0; from < m_parameters.size();) {
        const qsizetype end = endOfPart(m_parameters, from, ';');
        const QByteArrayView part = m_parameters.sliced(from, end - from);
        const qsizetype equals = part.indexOf('=');
        if (equals > 0 && isWord(part.first(equals), name))
            found = part.sliced(equals + 1);
        from = end + 1;
    }
    return found;
}

bool ICal::isParentRelation(const ContentLine &line)
{
    const QByteArrayView type = line.parameter("RELTYPE");
    return type.isNull() || isWord(type, "PARENT");
}

QString ICal::unescapedText(QByteArrayView value)
{
    qsizetype backslash = value.indexOf('\\');
    if (backslash < 0)
        return QString::fromUtf8(value);
    thread_local std::string plain; // kept: most values need one
    plain.clear();
    qsizetype copied = 0;
    for (; backslash >= 0 && backslash + 1 < value.size(); backslash = value.indexOf('\\', copied)) {
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
