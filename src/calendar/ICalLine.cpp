#include "calendar/ICalLine.h"

#include <algorithm>
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

void LineReader::skipTo(char first)
{
    while (m_pos < m_text.size()) {
        const char *line = m_text.data() + m_pos;
        // A line that is folded at its very start begins with what follows the fold.
        if (*line == first || *line == '\r' || *line == '\n')
            return;
        const void *lineFeed = std::memchr(line, '\n', size_t(m_text.size() - m_pos));
        m_pos = lineFeed ? static_cast<const char *>(lineFeed) + 1 - m_text.data() : m_text.size();
    }
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

bool ICal::takeParameter(QByteArrayView &rest, Parameter &parameter)
{
    if (rest.isEmpty())
        return false;
    const qsizetype end = endOfPart(rest, 0, ';');
    const QByteArrayView part = rest.first(end);
    rest = end < rest.size() ? rest.sliced(end + 1) : QByteArrayView();
    const qsizetype equals = part.indexOf('=');
    parameter.name = equals > 0 ? part.first(equals) : QByteArrayView();
    parameter.value = part.sliced(equals + 1);
    return true;
}

QByteArrayView ContentLine::parameter(QByteArrayView name) const
{
    return withoutQuotes(parameterAsItStands(name));
}

QByteArrayView ContentLine::parameterAsItStands(QByteArrayView name) const
{
    QByteArrayView found;
    QByteArrayView rest = m_parameters;
    Parameter parameter;
    while (takeParameter(rest, parameter)) {
        if (isWord(parameter.name, name))
            found = parameter.value;
    }
    return found;
}

QByteArrayView ICal::withoutQuotes(QByteArrayView text)
{
    return text.size() >= 2 && text.startsWith('"') && text.endsWith('"') ? text.sliced(1, text.size() - 2) : text;
}

QByteArrayView ICal::addressOf(QByteArrayView value)
{
    constexpr QByteArrayView scheme{ "mailto:" };
    return isWord(value.first(std::min(value.size(), scheme.size())), scheme) ? value.sliced(scheme.size()) : value;
}

bool ICal::isParentRelation(const ContentLine &line)
{
    const QByteArrayView type = line.parameter("RELTYPE");
    return type.isNull() || isWord(type, "PARENT");
}
