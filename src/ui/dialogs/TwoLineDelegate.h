#pragma once

#include <QStyledItemDelegate>

/// The title of a row, and below it a detail in the muted colour; both elide.
class TwoLineDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    static constexpr int DetailRole = Qt::UserRole + 1;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
