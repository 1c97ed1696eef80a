#pragma once

#include <QStyledItemDelegate>

/// Paints the rows of the calendar list: a check box in the calendar's colour, the name, and marks for
/// "read-only" and "default" at the right.
class CalendarListDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    static void paintCheckBox(QPainter *painter, QRect rect, const QColor &color, bool checked);
    static int paintMarks(QPainter *painter, QRect rect, const QModelIndex &index);
};
