#pragma once

#include <QAccessibleWidget>
#include <QHash>

class EventCanvas;

/// Gives assistive technology what an EventCanvas paints: a list with one entry for each block.
class EventCanvasAccessible : public QAccessibleWidget {
public:
    /// Makes Qt use this class; repeated calls change nothing.
    static void install();

    explicit EventCanvasAccessible(EventCanvas *canvas);
    ~EventCanvasAccessible() override;

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface *child(int index) const override;
    [[nodiscard]] QAccessibleInterface *childAt(int x, int y) const override; ///< global
    [[nodiscard]] int indexOfChild(const QAccessibleInterface *child) const override;
    [[nodiscard]] QAccessibleInterface *focusChild() const override;

private:
    [[nodiscard]] EventCanvas *canvas() const;

    mutable QHash<int, QAccessible::Id> m_children; // by block index, made when first asked for
};
