#pragma once

#include "calendar/ICalLine.h"

#include <QByteArray>

#include <functional>
#include <optional>
#include <variant>
#include <vector>

/// iCalendar text as a tree of components, to be changed in places and written back: what was not touched keeps its
/// bytes, its folds and its place.
namespace ICal {

/// One content line.
class TreeLine {
public:
    /// A line written here, unfolded. It must hold no line break.
    explicit TreeLine(QByteArray text);
    /// A line of a text: without its folds, and as it stands there unless it is too long for a line.
    TreeLine(QByteArrayView text, QByteArrayView bytes);

    [[nodiscard]] const QByteArray &text() const { return m_text; } ///< unfolded
    [[nodiscard]] ContentLine content() const { return ContentLine(m_text); } ///< of this line; not to outlive it
    /// Folded at 75 octets; ends in CRLF.
    void appendTo(QByteArray &out) const;
    /// Gives up the folds that it came with.
    void refold() { m_bytes.clear(); }

private:
    QByteArray m_text;
    QByteArray m_bytes; // with its folds; empty if it is to be folded here
};

/// A component: lines and further components, in order.
class TreeComponent {
public:
    using Item = std::variant<TreeLine, TreeComponent>;

    /// An empty one.
    explicit TreeComponent(QByteArrayView name);

    /// The components and lines of \p text, within a component without a name. Nothing if one has no end, or another's,
    /// or if they are nested deeper than any calendar's.
    static std::optional<TreeComponent> parse(QByteArrayView text);

    [[nodiscard]] bool is(QByteArrayView name) const;
    /// In the very letters that the readers of records wait for.
    [[nodiscard]] bool isSpelled(QByteArrayView name) const { return m_begin.text() == "BEGIN:" + name.toByteArray(); }
    [[nodiscard]] QByteArray bytes() const;
    void refold();

    /// True once a function below has changed something in it.
    [[nodiscard]] bool isChanged() const;

    [[nodiscard]] const std::vector<Item> &items() const { return m_items; }
    /// Its own lines with this name, in any case. Valid until the next change.
    [[nodiscard]] std::vector<const TreeLine *> lines(QByteArrayView name) const;
    [[nodiscard]] const TreeLine *lastLine(QByteArrayView name) const; ///< null if there is none

    /// Behind the last line of that name, or behind the lines before the first component.
    void addLine(const QByteArray &text);
    /// In the place of the last line of that name, and the only one.
    void setLine(const QByteArray &text);
    void removeLines(QByteArrayView name);
    /// What each line of that name is to become; nothing to remove it.
    using Rewrite = std::function<std::optional<QByteArray>(const TreeLine &)>;
    void rewriteLines(QByteArrayView name, const Rewrite &rewrite);

    /// Those directly in it with this name. Valid until the next change.
    [[nodiscard]] std::vector<TreeComponent *> components(QByteArrayView name);
    [[nodiscard]] std::vector<const TreeComponent *> components(QByteArrayView name) const;
    /// Behind the last one of that name, or at the end.
    void addComponent(TreeComponent component);
    /// Before all components.
    void prependComponent(TreeComponent component);
    void removeComponents(const std::function<bool(const TreeComponent &)> &isRemoved);

private:
    explicit TreeComponent(TreeLine begin);

    [[nodiscard]] QByteArrayView name() const { return m_begin.content().value().trimmed(); }
    [[nodiscard]] bool isRoot() const { return m_begin.text().isEmpty(); }
    void appendTo(QByteArray &out) const;

    TreeLine m_begin;
    std::vector<Item> m_items;
    TreeLine m_end;
    bool m_isChanged = false;
};

} // namespace ICal
