#include "calendar/ICalTree.h"

#include <algorithm>

using namespace ICal;

namespace {

constexpr qsizetype MaxLineBytes = 75; // RFC 5545 §3.1
constexpr qsizetype LongestCharacter = 4; // in UTF-8
constexpr size_t DeepestComponent = 16;

/// Where the part of \p text that begins at \p from ends, so that it has at most \p room bytes and whole characters.
qsizetype endOfFold(QByteArrayView text, qsizetype from, qsizetype room)
{
    qsizetype end = from + room;
    if (end >= text.size())
        return text.size();
    const auto isWithinCharacter = [text](qsizetype i) { return (static_cast<uchar>(text[i]) & 0xC0) == 0x80; };
    while (isWithinCharacter(end) && end > from + room - LongestCharacter)
        --end;
    return isWithinCharacter(end) ? from + room : end; // bytes that are no UTF-8 have no characters to keep
}

void appendFolded(QByteArray &out, QByteArrayView text)
{
    qsizetype from = endOfFold(text, 0, MaxLineBytes);
    out += text.first(from);
    while (from < text.size()) {
        const qsizetype end = endOfFold(text, from, MaxLineBytes - 1);
        out += "\r\n ";
        out += text.sliced(from, end - from);
        from = end;
    }
}

QByteArrayView withoutLineBreak(QByteArrayView line)
{
    if (line.endsWith('\n'))
        line.chop(1);
    return line.endsWith('\r') ? line.chopped(1) : line;
}

bool isFolded(QByteArrayView bytes)
{
    for (qsizetype from = 0; from < bytes.size();) {
        const qsizetype end = bytes.indexOf('\n', from);
        const qsizetype next = end < 0 ? bytes.size() : end + 1;
        if (withoutLineBreak(bytes.sliced(from, next - from)).size() > MaxLineBytes)
            return false;
        from = next;
    }
    return true;
}

/// "X:value" and "X;parameter:value" are called X.
QByteArrayView nameOf(const QByteArray &line)
{
    return ContentLine(line).name();
}

}

TreeLine::TreeLine(QByteArray text)
    : m_text(std::move(text))
{
}

TreeLine::TreeLine(QByteArrayView text, QByteArrayView bytes)
    : m_text(text.toByteArray())
    , m_bytes(isFolded(bytes) ? withoutLineBreak(bytes).toByteArray() : QByteArray())
{
}

void TreeLine::appendTo(QByteArray &out) const
{
    if (m_bytes.isEmpty()) {
        appendFolded(out, m_text);
    } else {
        char last = 0;
        for (const char c : m_bytes) {
            if (c == '\n' && last != '\r')
                out += '\r';
            out += c;
            last = c;
        }
    }
    out += "\r\n";
}

TreeComponent::TreeComponent(TreeLine begin)
    : m_begin(std::move(begin))
    , m_end(QByteArray())
{
}

TreeComponent::TreeComponent(QByteArrayView name)
    : m_begin("BEGIN:" + name.toByteArray())
    , m_end("END:" + name.toByteArray())
{
}

std::optional<TreeComponent> TreeComponent::parse(QByteArrayView text)
{
    std::vector<TreeComponent> open{ TreeComponent(TreeLine(QByteArray())) };
    LineReader lines(text);
    for (qsizetype from = lines.position(); lines.next(text.size()); from = lines.position()) {
        TreeLine line(lines.line(), text.sliced(from, lines.position() - from));
        const ContentLine content = line.content();
        if (content.is("BEGIN")) {
            if (open.size() > DeepestComponent)
                return std::nullopt;
            open.push_back(TreeComponent(std::move(line)));
        } else if (content.is("END")) {
            TreeComponent done = std::move(open.back());
            open.pop_back();
            if (open.empty() || !done.is(content.value().trimmed()))
                return std::nullopt;
            done.m_end = std::move(line);
            open.back().m_items.emplace_back(std::move(done));
        } else {
            open.back().m_items.emplace_back(std::move(line));
        }
    }
    return open.size() == 1 ? std::optional(std::move(open.front())) : std::nullopt;
}

bool TreeComponent::is(QByteArrayView name) const
{
    return isWord(this->name(), name);
}

QByteArray TreeComponent::bytes() const
{
    QByteArray out;
    appendTo(out);
    return out;
}

void TreeComponent::appendTo(QByteArray &out) const
{
    if (!isRoot())
        m_begin.appendTo(out);
    for (const Item &item : m_items)
        std::visit([&out](const auto &part) { part.appendTo(out); }, item);
    if (!isRoot())
        m_end.appendTo(out);
}

void TreeComponent::refold()
{
    m_begin.refold();
    m_end.refold();
    for (Item &item : m_items)
        std::visit([](auto &part) { part.refold(); }, item);
}

bool TreeComponent::isChanged() const
{
    return m_isChanged || std::ranges::any_of(m_items, [](const Item &item) {
               const auto *component = std::get_if<TreeComponent>(&item);
               return component && component->isChanged();
           });
}

std::vector<const TreeLine *> TreeComponent::lines(QByteArrayView name) const
{
    std::vector<const TreeLine *> found;
    for (const Item &item : m_items) {
        if (const auto *line = std::get_if<TreeLine>(&item); line && line->content().is(name))
            found.push_back(line);
    }
    return found;
}

const TreeLine *TreeComponent::lastLine(QByteArrayView name) const
{
    const std::vector<const TreeLine *> found = lines(name);
    return found.empty() ? nullptr : found.back();
}

void TreeComponent::addLine(const QByteArray &text)
{
    m_isChanged = true;
    const auto isAlike = [name = nameOf(text)](const Item &item) {
        const auto *line = std::get_if<TreeLine>(&item);
        return line && line->content().is(name);
    };
    const auto last = std::find_if(m_items.rbegin(), m_items.rend(), isAlike);
    const auto place = last != m_items.rend()
        ? last.base()
        : std::ranges::find_if(m_items, [](const Item &item) { return std::holds_alternative<TreeComponent>(item); });
    m_items.insert(place, TreeLine(text));
}

void TreeComponent::setLine(const QByteArray &text)
{
    const TreeLine *last = lastLine(nameOf(text));
    if (!last)
        return addLine(text);
    rewriteLines(nameOf(text),
                 [last, &text](const TreeLine &line) { return &line == last ? std::optional(text) : std::nullopt; });
}

void TreeComponent::removeLines(QByteArrayView name)
{
    rewriteLines(name, [](const TreeLine &) { return std::nullopt; });
}

void TreeComponent::rewriteLines(QByteArrayView name, const Rewrite &rewrite)
{
    std::vector<Item> items;
    items.reserve(m_items.size());
    for (Item &item : m_items) {
        const auto *line = std::get_if<TreeLine>(&item);
        if (!line || !line->content().is(name)) {
            items.push_back(std::move(item));
            continue;
        }
        const std::optional<QByteArray> text = rewrite(*line);
        if (text == line->text()) {
            items.push_back(std::move(item));
            continue;
        }
        m_isChanged = true;
        if (text)
            items.emplace_back(TreeLine(*text));
    }
    m_items = std::move(items);
}

std::vector<TreeComponent *> TreeComponent::components(QByteArrayView name)
{
    std::vector<TreeComponent *> found;
    for (Item &item : m_items) {
        if (auto *component = std::get_if<TreeComponent>(&item); component && component->is(name))
            found.push_back(component);
    }
    return found;
}

std::vector<const TreeComponent *> TreeComponent::components(QByteArrayView name) const
{
    std::vector<const TreeComponent *> found;
    for (const Item &item : m_items) {
        if (const auto *component = std::get_if<TreeComponent>(&item); component && component->is(name))
            found.push_back(component);
    }
    return found;
}

void TreeComponent::addComponent(TreeComponent component)
{
    m_isChanged = true;
    const auto last = std::find_if(m_items.rbegin(), m_items.rend(), [&component](const Item &item) {
        const auto *other = std::get_if<TreeComponent>(&item);
        return other && other->is(component.name());
    });
    m_items.insert(last != m_items.rend() ? last.base() : m_items.end(), std::move(component));
}

void TreeComponent::prependComponent(TreeComponent component)
{
    m_isChanged = true;
    const auto first =
        std::ranges::find_if(m_items, [](const Item &item) { return std::holds_alternative<TreeComponent>(item); });
    m_items.insert(first, std::move(component));
}

void TreeComponent::removeComponents(const std::function<bool(const TreeComponent &)> &isRemoved)
{
    const auto count = std::erase_if(m_items, [&isRemoved](const Item &item) {
        const auto *component = std::get_if<TreeComponent>(&item);
        return component && isRemoved(*component);
    });
    m_isChanged = m_isChanged || count > 0;
}
