#include "calendar/HtmlTag.h"

#include <algorithm>

namespace {

constexpr qsizetype LongestEntity = 33; // "&CounterClockwiseContourIntegral;"

/// Walks a tag from behind its name.
class AttributeReader {
public:
    AttributeReader(QStringView text, qsizetype pos)
        : m_text(text)
        , m_pos(pos)
    {
    }

    /// False at the end of the tag, or of the text.
    bool next()
    {
        skip([](QChar c) { return c.isSpace() || c == u'/'; });
        if (atEnd() || m_text[m_pos] == u'>')
            return false;
        const qsizetype nameAt = m_pos++; // a "=" in the first place belongs to the name
        skip([](QChar c) { return !c.isSpace() && c != u'/' && c != u'>' && c != u'='; });
        m_name = m_text.sliced(nameAt, m_pos - nameAt);
        m_value = {};
        skip([](QChar c) { return c.isSpace(); });
        if (!atEnd() && m_text[m_pos] == u'=')
            readValue();
        return true;
    }

    [[nodiscard]] QStringView name() const { return m_name; }
    [[nodiscard]] QStringView value() const { return m_value; }
    [[nodiscard]] bool atEnd() const { return m_pos >= m_text.size(); }
    [[nodiscard]] qsizetype position() const { return m_pos; }

private:
    template <typename Predicate> void skip(Predicate isSkipped)
    {
        while (!atEnd() && isSkipped(m_text[m_pos]))
            ++m_pos;
    }

    void readValue()
    {
        ++m_pos;
        skip([](QChar c) { return c.isSpace(); });
        if (atEnd())
            return;
        const QChar quote = m_text[m_pos];
        const bool isQuoted = quote == u'"' || quote == u'\'';
        const qsizetype from = isQuoted ? ++m_pos : m_pos;
        skip([=](QChar c) { return isQuoted ? c != quote : !c.isSpace() && c != u'>'; });
        m_value = m_text.sliced(from, m_pos - from);
        if (isQuoted && !atEnd())
            ++m_pos;
    }

    QStringView m_text;
    qsizetype m_pos;
    QStringView m_name;
    QStringView m_value;
};

/// "#65" or "#x41" of a reference; empty if it is none.
QString numbered(QStringView digits)
{
    const bool isHex = digits.startsWith(u'x', Qt::CaseInsensitive);
    bool isNumber = false;
    char32_t code = isHex ? digits.sliced(1).toUInt(&isNumber, 16) : digits.toUInt(&isNumber, 10);
    if (!isNumber)
        return {};
    if (code == 0 || code > 0x10FFFF || QChar::isSurrogate(code))
        code = QChar::ReplacementCharacter;
    return QString::fromUcs4(&code, 1);
}

QString named(QStringView name)
{
    if (name == u"amp")
        return QStringLiteral("&");
    if (name == u"lt")
        return QStringLiteral("<");
    if (name == u"gt")
        return QStringLiteral(">");
    if (name == u"quot")
        return QStringLiteral("\"");
    return name == u"apos" ? QStringLiteral("'") : QString();
}

bool isWindowsPunctuation(const QString &text)
{
    return text.size() == 1 && text[0] >= QChar(0x80) && text[0] <= QChar(0x9F);
}

}

Html::Tag Html::readTag(QStringView text)
{
    Tag tag;
    tag.isEnd = text.size() > 1 && text[1] == u'/';
    const qsizetype nameAt = tag.isEnd ? 2 : 1;
    qsizetype pos = nameAt;
    while (pos < text.size() && !text[pos].isSpace() && text[pos] != u'/' && text[pos] != u'>')
        ++pos;
    tag.name = text.sliced(nameAt, pos - nameAt).toString().toLower();
    bool hasHref = false;
    AttributeReader attributes(text, pos);
    while (attributes.next()) {
        if (hasHref || attributes.name().compare(QLatin1StringView("href"), Qt::CaseInsensitive) != 0)
            continue;
        tag.href = decoded(attributes.value());
        hasHref = true;
    }
    tag.isComplete = !attributes.atEnd();
    tag.length = attributes.position() + (tag.isComplete ? 1 : 0);
    return tag;
}

Html::Entity Html::readEntity(QStringView text)
{
    const qsizetype end = text.left(LongestEntity).indexOf(u';');
    if (end < 2)
        return {};
    const QStringView name = text.sliced(1, end - 1);
    const bool isNumber = name.startsWith(u'#');
    const auto isAscii = [](QChar c) { return c.unicode() < 0x80 && c.isLetterOrNumber(); };
    if (!std::ranges::all_of(name.sliced(isNumber ? 1 : 0), isAscii))
        return {};
    if (isNumber) {
        const QString character = numbered(name.sliced(1));
        if (character.isEmpty())
            return {};
        // Old programs number the characters of Windows; renderers know those.
        return { .length = end + 1, .text = isWindowsPunctuation(character) ? QString() : character };
    }
    return { .length = end + 1, .text = named(name) };
}

QString Html::decoded(QStringView text)
{
    QString plain;
    qsizetype done = 0;
    for (qsizetype at = text.indexOf(u'&'); at >= 0; at = text.indexOf(u'&', at + 1)) {
        const Entity entity = readEntity(text.sliced(at));
        if (entity.text.isEmpty())
            continue;
        plain += text.sliced(done, at - done);
        plain += entity.text;
        done = at + entity.length;
    }
    plain += text.sliced(done);
    return plain;
}
