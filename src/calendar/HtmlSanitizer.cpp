#include "calendar/HtmlSanitizer.h"

#include "calendar/HtmlTag.h"
#include "calendar/TextLinks.h"

#include <QHash>
#include <QStringList>

#include <algorithm>

namespace {

// Deeper nesting has no meaning to a reader, and costs a renderer its stack.
constexpr qsizetype MaxDepth = 24;

enum class Kind {
    Unknown, ///< its text stays
    Inline,
    Anchor,
    Block,
    Break,
    Line, ///< a block that is shown as a line of its own and no more
    Cell,
    Hidden ///< goes with all that is in it
};

Kind kindOf(const QString &name)
{
    static const QHash<QString, Kind> kinds = [] {
        QHash<QString, Kind> result;
        const auto add = [&result](Kind kind, const QString &names) {
            for (const QString &each : names.split(u' '))
                result.insert(each, kind);
        };
        add(Kind::Inline, QStringLiteral("b i strong em u code"));
        add(Kind::Anchor, QStringLiteral("a"));
        add(Kind::Block, QStringLiteral("p ul ol li h1 h2 h3 h4 blockquote pre"));
        add(Kind::Break, QStringLiteral("br hr"));
        add(Kind::Line,
            QStringLiteral("address article body center div dl dt dd fieldset footer form h5 h6 head "
                           "header main nav section table tr"));
        add(Kind::Cell, QStringLiteral("td th"));
        add(Kind::Hidden, QStringLiteral("iframe script style title"));
        return result;
    }();
    return kinds.value(name, Kind::Unknown);
}

/// Text converted from mail names addresses in angle brackets: no tag looks like that.
bool isAddress(const QString &tagName)
{
    return tagName == u"http:" || tagName == u"https:" || tagName.contains(u'@');
}

/// Reads from the start to the end once. What it writes comes from it alone: tags out of the tables above, and
/// text and addresses escaped.
class Sanitizer {
public:
    Sanitizer(QStringView html, QString linkColor, qsizetype maxChars)
        : m_html(html)
        , m_lastBracket(html.lastIndexOf(u'>'))
        , m_linkColor(std::move(linkColor))
        , m_maxChars(maxChars)
    {
    }

    QString run()
    {
        while (m_pos < m_html.size() && m_out.size() < m_maxChars) {
            if (isAtMarkup())
                readMarkup();
            else
                readText();
        }
        if (m_pos < m_html.size())
            m_out += u'…';
        closeDownTo(0);
        return m_out;
    }

private:
    [[nodiscard]] bool isAtMarkup() const;
    void readMarkup();
    void readText();
    void skipPast(QLatin1StringView text, qsizetype from);
    void skipContent(const QString &name);

    void onStartTag(const Html::Tag &tag);
    void onEndTag(const QString &name);
    void onText(QStringView raw);

    void open(const QString &name, const QString &tag);
    void closeDownTo(qsizetype index);
    void closeImplied(const QString &name);
    void beginLine();
    void finishLine();
    void writeText(QString &plain);

    QStringView m_html;
    qsizetype m_pos = 0;
    qsizetype m_lastBracket; // the last ">"; behind it there are no tags
    bool m_areQuotesBroken = false; // one is never closed: any ">" now ends a tag
    QString m_linkColor;
    qsizetype m_maxChars;
    QString m_out;
    QStringList m_open; // elements, outermost first
    bool m_isAtLineStart = true;
    bool m_isBreakDue = false;
};

bool Sanitizer::isAtMarkup() const
{
    if (m_html[m_pos] != u'<' || m_pos >= m_lastBracket)
        return false;
    QChar next = m_html[m_pos + 1];
    if (next == u'/')
        next = m_html[std::min(m_pos + 2, m_html.size() - 1)];
    return next == u'!' || next == u'?' || (next.unicode() < 0x80 && next.isLetter());
}

void Sanitizer::readMarkup()
{
    const QStringView rest = m_html.sliced(m_pos);
    if (rest.startsWith(QLatin1StringView("<!--")))
        return skipPast(QLatin1StringView("-->"), m_pos + 2); // "<!-->" is a whole comment
    if (rest[1] == u'!' || rest[1] == u'?')
        return skipPast(QLatin1StringView(">"), m_pos);

    Html::Tag tag;
    if (!m_areQuotesBroken) {
        tag = Html::readTag(rest);
        m_areQuotesBroken = !tag.isComplete;
    }
    if (m_areQuotesBroken)
        tag = Html::readTag(rest.left(rest.indexOf(u'>') + 1));
    m_pos += tag.length;
    if (isAddress(tag.name))
        onText(rest.first(tag.length));
    else if (tag.isEnd)
        onEndTag(tag.name);
    else
        onStartTag(tag);
}

void Sanitizer::readText()
{
    const qsizetype next = m_html.indexOf(u'<', m_pos + 1);
    const qsizetype length = (next < 0 ? m_html.size() : next) - m_pos;
    const QStringView raw = m_html.sliced(m_pos, std::min(length, m_maxChars - m_out.size()));
    m_pos += raw.size();
    onText(raw);
}

/// Goes behind the next \p text, or to the end if there is none.
void Sanitizer::skipPast(QLatin1StringView text, qsizetype from)
{
    const qsizetype found = m_html.indexOf(text, from);
    m_pos = found < 0 ? m_html.size() : found + text.size();
}

void Sanitizer::skipContent(const QString &name)
{
    const QString endTag = QStringLiteral("</") + name;
    const qsizetype end = m_html.indexOf(endTag, m_pos, Qt::CaseInsensitive);
    m_pos = end < 0 ? m_html.size() : end;
}

void Sanitizer::onStartTag(const Html::Tag &tag)
{
    switch (kindOf(tag.name)) {
    case Kind::Unknown:
        break;
    case Kind::Inline:
        finishLine();
        open(tag.name, u'<' + tag.name + u'>');
        break;
    case Kind::Anchor:
        onEndTag(tag.name); // links do not nest
        finishLine();
        if (const QString url = TextLinks::openable(tag.href); !url.isEmpty())
            open(tag.name, TextLinks::anchorTag(url, m_linkColor));
        break;
    case Kind::Block:
        closeImplied(tag.name);
        open(tag.name, u'<' + tag.name + u'>');
        m_isAtLineStart = true;
        m_isBreakDue = false;
        break;
    case Kind::Break:
        finishLine();
        m_out += QLatin1StringView("<br>");
        m_isAtLineStart = true;
        break;
    case Kind::Line:
        beginLine();
        break;
    case Kind::Cell:
        if (!m_isAtLineStart)
            m_out += u' ';
        break;
    case Kind::Hidden:
        skipContent(tag.name);
        break;
    }
}

void Sanitizer::onEndTag(const QString &name)
{
    const Kind kind = kindOf(name);
    if (kind == Kind::Line)
        beginLine();
    const qsizetype index = m_open.lastIndexOf(name);
    if (index < 0)
        return;
    closeDownTo(index);
    if (kind == Kind::Block) {
        m_isAtLineStart = true;
        m_isBreakDue = false;
    }
}

void Sanitizer::onText(QStringView raw)
{
    if (m_isAtLineStart && !m_open.contains(QLatin1StringView("pre"))) {
        const auto first = std::ranges::find_if_not(raw, [](QChar c) { return c.isSpace(); });
        raw = raw.sliced(first - raw.begin());
    }
    QString plain;
    qsizetype done = 0;
    for (qsizetype at = raw.indexOf(u'&'); at >= 0; at = raw.indexOf(u'&', at + 1)) {
        const Html::Entity entity = Html::readEntity(raw.sliced(at));
        if (entity.length == 0)
            continue;
        plain += raw.sliced(done, at - done);
        plain += entity.text;
        done = at + entity.length;
        if (entity.text.isEmpty()) {
            writeText(plain);
            finishLine();
            m_out += raw.sliced(at, entity.length);
            m_isAtLineStart = false;
        }
    }
    plain += raw.sliced(done);
    writeText(plain);
}

void Sanitizer::writeText(QString &plain)
{
    if (plain.isEmpty())
        return;
    finishLine();
    const bool isInAnchor = m_open.contains(QLatin1StringView("a"));
    m_out += isInAnchor ? plain.toHtmlEscaped() : TextLinks::toHtml(plain, m_linkColor);
    m_isAtLineStart = false;
    plain.clear();
}

void Sanitizer::open(const QString &name, const QString &tag)
{
    if (m_open.size() >= MaxDepth)
        return;
    m_out += tag;
    m_open.append(name);
}

void Sanitizer::closeDownTo(qsizetype index)
{
    while (m_open.size() > index)
        m_out += QLatin1StringView("</") + m_open.takeLast() + u'>';
}

/// Closes what a new block \p name ends: the end tags of paragraphs and of list items may be left out.
void Sanitizer::closeImplied(const QString &name)
{
    static const QStringList containers = QStringLiteral("ul ol li blockquote").split(u' ');
    const QLatin1StringView ended(name == u"li" ? "li" : "p");
    for (qsizetype i = m_open.size() - 1; i >= 0; --i) {
        if (m_open.at(i) == ended)
            return closeDownTo(i);
        if (containers.contains(m_open.at(i)))
            return;
    }
}

/// What comes next stands on a line of its own; if nothing does, there is no break.
void Sanitizer::beginLine()
{
    m_isBreakDue = m_isBreakDue || !m_isAtLineStart;
    m_isAtLineStart = true;
}

void Sanitizer::finishLine()
{
    if (m_isBreakDue)
        m_out += QLatin1StringView("<br>");
    m_isBreakDue = false;
}

}

QString HtmlSanitizer::sanitized(const QString &html, const QString &linkColor, qsizetype maxChars)
{
    return Sanitizer(html, linkColor, maxChars).run();
}
