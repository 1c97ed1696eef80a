#include "calendar/HtmlSanitizer.h"

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace {

constexpr qsizetype MaxTagChars = 4096; // a longer one is text

const QSet<QString> &shapingTags()
{
    static const QSet<QString> tags{
        QStringLiteral("p"),          QStringLiteral("div"),  QStringLiteral("b"),  QStringLiteral("i"),
        QStringLiteral("strong"),     QStringLiteral("em"),   QStringLiteral("u"),  QStringLiteral("s"),
        QStringLiteral("ul"),         QStringLiteral("ol"),   QStringLiteral("li"), QStringLiteral("h1"),
        QStringLiteral("h2"),         QStringLiteral("h3"),   QStringLiteral("h4"), QStringLiteral("pre"),
        QStringLiteral("blockquote"), QStringLiteral("code"),
    };
    return tags;
}

/// Tags whose content is no text for people.
bool isSilent(const QString &name)
{
    return name == u"script" || name == u"style" || name == u"head" || name == u"title" || name == u"template"
        || name == u"object" || name == u"svg" || name == u"iframe" || name == u"noscript" || name == u"textarea";
}

struct Tag {
    QString name; ///< lower case
    bool isEnd = false;
    QString href; ///< as it stood
    qsizetype end = 0; ///< behind its ">"
};

QString attribute(QStringView tag, QStringView wanted)
{
    qsizetype at = 0;
    while (at < tag.size()) {
        while (at < tag.size() && (tag.at(at).isSpace() || tag.at(at) == u'/'))
            ++at;
        const qsizetype nameStart = at;
        while (at < tag.size() && !tag.at(at).isSpace() && tag.at(at) != u'=' && tag.at(at) != u'/')
            ++at;
        const QStringView name = tag.mid(nameStart, at - nameStart);
        while (at < tag.size() && tag.at(at).isSpace())
            ++at;
        if (at >= tag.size() || tag.at(at) != u'=') {
            if (name.isEmpty())
                ++at;
            continue;
        }
        ++at;
        while (at < tag.size() && tag.at(at).isSpace())
            ++at;
        const bool isQuoted = at < tag.size() && (tag.at(at) == u'"' || tag.at(at) == u'\'');
        const QChar quote = isQuoted ? tag.at(at++) : QChar();
        const qsizetype start = at;
        while (at < tag.size() && (isQuoted ? tag.at(at) != quote : !tag.at(at).isSpace()))
            ++at;
        if (name.compare(wanted, Qt::CaseInsensitive) == 0)
            return tag.mid(start, at - start).toString();
        ++at;
    }
    return {};
}

/// The tag that begins at \p start, which holds "<". None if this is no tag.
std::optional<Tag> tagAt(const QString &html, qsizetype start)
{
    qsizetype at = start + 1;
    Tag tag;
    if (at < html.size() && html.at(at) == u'/') {
        tag.isEnd = true;
        ++at;
    }
    const qsizetype nameStart = at;
    while (at < html.size() && html.at(at).isLetterOrNumber())
        ++at;
    tag.name = html.mid(nameStart, at - nameStart).toLower();
    if (tag.name.isEmpty() || !tag.name.front().isLetter())
        return std::nullopt;
    const qsizetype attributes = at;
    QChar quote;
    for (; at < html.size() && at - start < MaxTagChars; ++at) {
        const QChar c = html.at(at);
        if (!quote.isNull()) {
            if (c == quote)
                quote = QChar();
        } else if (c == u'"' || c == u'\'') {
            quote = c;
        } else if (c == u'>') {
            if (!tag.isEnd && tag.name == u"a")
                tag.href = attribute(QStringView(html).mid(attributes, at - attributes), u"href");
            tag.end = at + 1;
            return tag;
        }
    }
    return std::nullopt;
}

QString unescaped(QString text)
{
    return text.replace(QStringLiteral("&amp;"), QStringLiteral("&"), Qt::CaseInsensitive);
}

bool isSafeLink(const QString &href)
{
    const QString scheme = QUrl(href.trimmed()).scheme().toLower();
    return scheme == u"http" || scheme == u"https" || scheme == u"mailto";
}

class Cleaner {
public:
    explicit Cleaner(const QString &html)
        : m_html(html)
    {
        m_out.reserve(html.size());
    }

    QString run()
    {
        for (qsizetype at = 0; at < m_html.size();) {
            const QChar c = m_html.at(at);
            if (c != u'<') {
                if (c == u'>')
                    m_out += QStringLiteral("&gt;");
                else
                    m_out += c;
                ++at;
                continue;
            }
            at = readTag(at);
        }
        while (!m_open.isEmpty())
            m_out += QStringLiteral("</%1>").arg(m_open.takeLast());
        return m_out;
    }

private:
    qsizetype readTag(qsizetype at)
    {
        if (QStringView(m_html).mid(at, 4) == u"<!--") {
            const qsizetype end = m_html.indexOf(QStringLiteral("-->"), at + 4);
            return end < 0 ? m_html.size() : end + 3;
        }
        if (at + 1 < m_html.size() && (m_html.at(at + 1) == u'!' || m_html.at(at + 1) == u'?')) {
            const qsizetype end = m_html.indexOf(u'>', at);
            return end < 0 ? m_html.size() : end + 1;
        }
        const std::optional<Tag> tag = tagAt(m_html, at);
        if (!tag) {
            m_out += QStringLiteral("&lt;");
            return at + 1;
        }
        if (!tag->isEnd && isSilent(tag->name))
            return endOf(*tag);
        if (tag->isEnd)
            close(tag->name);
        else
            open(*tag);
        return tag->end;
    }

    qsizetype endOf(const Tag &tag) const
    {
        const qsizetype end = m_html.indexOf(QStringLiteral("</") + tag.name, tag.end, Qt::CaseInsensitive);
        if (end < 0)
            return m_html.size();
        const qsizetype behind = m_html.indexOf(u'>', end);
        return behind < 0 ? m_html.size() : behind + 1;
    }

    void open(const Tag &tag)
    {
        constexpr int MaxDepth = 64;
        if (tag.name == u"br") {
            m_out += QStringLiteral("<br>");
        } else if (tag.name == u"tr" || tag.name == u"hr") {
            m_out += QStringLiteral("<br>");
        } else if (tag.name == u"td" || tag.name == u"th") {
            m_out += u' ';
        } else if (m_open.size() >= MaxDepth) {
            return;
        } else if (tag.name == u"a") {
            const QString href = unescaped(tag.href);
            if (!isSafeLink(href) || m_open.contains(QStringLiteral("a")))
                return;
            m_out += QStringLiteral("<a href=\"%1\">").arg(href.trimmed().toHtmlEscaped());
            m_open.append(tag.name);
        } else if (shapingTags().contains(tag.name)) {
            m_out += QStringLiteral("<%1>").arg(tag.name);
            m_open.append(tag.name);
        }
    }

    void close(const QString &name)
    {
        const qsizetype index = m_open.lastIndexOf(name);
        if (index < 0)
            return;
        while (m_open.size() > index)
            m_out += QStringLiteral("</%1>").arg(m_open.takeLast());
    }

    const QString &m_html;
    QString m_out;
    QStringList m_open; // innermost last
};

}

QString HtmlSanitizer::sanitized(const QString &html)
{
    return Cleaner(html).run();
}
