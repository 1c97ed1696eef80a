#include "ui/surfaces/EventCanvasAccessible.h"

#include "ui/surfaces/EventCanvas.h"
#include "ui/surfaces/TimelineGeometry.h"

#include <QPointer>

namespace {

/// One block, named by its place in the canvas: after a reload it speaks for what is drawn there now.
class EventBlockAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    EventBlockAccessible(EventCanvas *canvas, int index)
        : m_canvas(canvas)
        , m_index(index)
    {
    }

    [[nodiscard]] int index() const { return m_index; }
    [[nodiscard]] bool isValid() const override { return m_canvas && m_index < m_canvas->blocks().size(); }
    [[nodiscard]] QObject *object() const override { return nullptr; }
    [[nodiscard]] QWindow *window() const override { return parent() ? parent()->window() : nullptr; }
    [[nodiscard]] QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_canvas.data());
    }
    [[nodiscard]] QAccessibleInterface *child(int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }

    [[nodiscard]] QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect &rect = block().rect;
        return { m_canvas->mapToGlobal(rect.topLeft()), rect.size() };
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invalid = !isValid();
        if (state.invalid)
            return state;
        state.selectable = state.focusable = true;
        state.selected = m_canvas->isSelected(block());
        state.focused = state.selected && m_canvas->hasFocus();
        state.offscreen = (block().rect & m_canvas->visibleRegion().boundingRect()).isEmpty();
        return state;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name && isValid() ? m_canvas->describe(block()) : QString();
    }
    void setText(QAccessible::Text, const QString &) override { }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
    }
    [[nodiscard]] QStringList actionNames() const override { return { pressAction() }; }
    void doAction(const QString &name) override
    {
        if (name == pressAction() && isValid())
            m_canvas->selectAndOpen(m_index);
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    [[nodiscard]] const EventBlock &block() const { return m_canvas->blocks().at(m_index); }

    QPointer<EventCanvas> m_canvas;
    int m_index;
};

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    auto *canvas = qobject_cast<EventCanvas *>(object);
    return canvas ? new EventCanvasAccessible(canvas) : nullptr;
}

}

void EventCanvasAccessible::install()
{
    QAccessible::installFactory(makeInterface);
}

EventCanvasAccessible::EventCanvasAccessible(EventCanvas *canvas)
    : QAccessibleWidget(canvas, QAccessible::List)
{
}

EventCanvasAccessible::~EventCanvasAccessible()
{
    for (const QAccessible::Id id : std::as_const(m_children))
        QAccessible::deleteAccessibleInterface(id);
}

EventCanvas *EventCanvasAccessible::canvas() const
{
    return qobject_cast<EventCanvas *>(object());
}

int EventCanvasAccessible::childCount() const
{
    return canvas() ? static_cast<int>(canvas()->blocks().size()) : 0;
}

QAccessibleInterface *EventCanvasAccessible::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    if (!m_children.contains(index))
        m_children.insert(index, QAccessible::registerAccessibleInterface(new EventBlockAccessible(canvas(), index)));
    return QAccessible::accessibleInterface(m_children.value(index));
}

QAccessibleInterface *EventCanvasAccessible::childAt(int x, int y) const
{
    return canvas() ? child(blockIndexAt(canvas()->blocks(), canvas()->mapFromGlobal(QPoint(x, y)))) : nullptr;
}

int EventCanvasAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *block = dynamic_cast<const EventBlockAccessible *>(child);
    return block ? block->index() : -1;
}

QAccessibleInterface *EventCanvasAccessible::focusChild() const
{
    if (!canvas() || !canvas()->hasFocus())
        return nullptr;
    return child(canvas()->blockIndexOf(canvas()->selection()));
}
