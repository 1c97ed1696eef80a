#pragma once

#include <QByteArrayView>

#include <string>

/// The content lines of iCalendar text, as bytes: nothing is decoded before it is known to be kept.
namespace ICal {

/// Walks UTF-8 text line by line and joins folded lines (RFC 5545 §3.1). Lines end in LF or CRLF; a byte
/// order mark at the start is left out. \p text must outlive the reader.
class LineReader {
public:
    explicit LineReader(QByteArrayView text);

    /// Goes to the next line. False at the end of the text, or when \p stopAt was passed within a line:
    /// the next call then goes on with that line.
    bool next(qsizetype stopAt);
    /// Passes over lines that do not begin with \p first. Not after a next() that stopped within a line.
    void skipTo(char first);
    /// Without its folds and its line break; valid until the next call of next().
    [[nodiscard]] QByteArrayView line() const
    {
        return m_isCopied ? QByteArrayView(m_joined.data(), qsizetype(m_joined.size())) : m_line;
    }

    [[nodiscard]] bool atEnd() const { return m_pos >= m_text.size() && !m_isUnfinished; }
    [[nodiscard]] qsizetype position() const { return m_pos; }

private:
    QByteArrayView takePhysicalLine();
    [[nodiscard]] bool isAtContinuation() const;

    QByteArrayView m_text;
    qsizetype m_pos = 0;
    QByteArrayView m_line; // within m_text
    std::string m_joined; // a line that had folds; kept for its capacity
    bool m_isCopied = false; // the line is in m_joined
    bool m_isUnfinished = false;
};

constexpr char inUpperCase(char c)
{
    return c >= 'a' && c <= 'z' ? char(c - ('a' - 'A')) : c;
}

/// Equal but for the case of ASCII letters.
constexpr bool isWord(QByteArrayView text, QByteArrayView word)
{
    if (text.size() != word.size())
        return false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != word[i] && inUpperCase(text[i]) != inUpperCase(word[i]))
            return false;
    }
    return true;
}

/// The text between quotes; \p text itself if there are none around it.
QByteArrayView withoutQuotes(QByteArrayView text);

struct Parameter {
    QByteArrayView name; ///< empty if the part of the line is no parameter
    QByteArrayView value; ///< with its quotes
};

/// Moves the first of the parameters \p rest into \p parameter, and takes it off with the semicolon behind it.
/// False if there is none left.
bool takeParameter(QByteArrayView &rest, Parameter &parameter);

/// One unfolded line: name *(";" parameter) ":" value. A line without a colon is all name.
class ContentLine {
public:
    explicit ContentLine(QByteArrayView line);

    [[nodiscard]] QByteArrayView name() const { return m_name; }
    [[nodiscard]] bool is(QByteArrayView name) const { return isWord(m_name, name); }
    [[nodiscard]] QByteArrayView value() const { return m_value; } ///< not unescaped
    [[nodiscard]] QByteArrayView parameters() const { return m_parameters; }
    /// Without quotes around it; null if there is none. Of several with one name the last counts.
    [[nodiscard]] QByteArrayView parameter(QByteArrayView name) const;
    /// The same with its quotes.
    [[nodiscard]] QByteArrayView parameterAsItStands(QByteArrayView name) const;

private:
    QByteArrayView m_name;
    QByteArrayView m_parameters;
    QByteArrayView m_value;
};

/// What a CAL-ADDRESS is kept as: the address of a mailto URI, any other URI as it stands. RFC 5545 §3.3.3.
QByteArrayView addressOf(QByteArrayView value);

/// True for a RELATED-TO that names the parent: RELTYPE is PARENT or absent. RFC 5545 §3.2.15.
bool isParentRelation(const ContentLine &line);

} // namespace ICal
