#include "ui/dialogs/TwoLineDelegate.h"

#include "ui/theme/Theme.h"

#include <QApplication>
#include <QPainter>

namespace {

void drawLine(QPainter *painter, const QRect &rect, const QStyleOptionViewItem &item, const QString &text,
              const QColor &color)
{
    painter->setPen(color);
    const QString elided = item.fontMetrics.elidedText(text, Qt::ElideRight, rect.width());
    painter->drawText(rect, int(Qt::TextSingleLine | Qt::AlignVCenter | Qt::AlignLeading), elided);
}

}

void TwoLineDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QStyle *style = item.widget ? item.widget->style() : QApplication::style();
    const QRect rect = style->subElementRect(QStyle::SE_ItemViewItemText, &item, item.widget).adjusted(4, 0, -4, 0);
    const QString title = item.text;
    item.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const int lineHeight = item.fontMetrics.height();
    const QString detail = index.data(DetailRole).toString();
    const int lines = detail.isEmpty() ? 1 : 2;
    const QRect line(rect.left(), rect.center().y() - lines * lineHeight / 2, rect.width(), lineHeight);
    painter->save();
    painter->setFont(item.font);
    drawLine(painter, line, item, title, Theme::textPrimary());
    drawLine(painter, line.translated(0, lineHeight), item, detail, Theme::textMuted());
    painter->restore();
}

QSize TwoLineDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize base = QStyledItemDelegate::sizeHint(option, index);
    return { base.width(), qMax(base.height(), option.fontMetrics.height() * 2 + 16) };
}
