#include "ui/CalendarListDelegate.h"

#include "ui/CalendarListWidget.h"
#include "ui/dialogs/FormDialog.h"
#include "ui/theme/Theme.h"

#include <QApplication>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace {

constexpr int RowPaddingPx = 10;
constexpr int MinRowHeightPx = 28;
constexpr int MarkGapPx = 6;
constexpr int LockSizePx = 14;
constexpr char16_t LockGlyph = 0xE897;
constexpr double GraphicContrast = 3.0; // WCAG 1.4.11, for what is no text

bool isCalendar(const QModelIndex &index)
{
    return !index.data(CalendarListWidget::CalendarIdRole).toString().isEmpty();
}

}

void CalendarListDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (isCalendar(index))
        return;
    option->font.setBold(true);
    option->font.setPointSize(Theme::FontSizeSm);
    option->palette.setColor(QPalette::Text, Theme::textMuted());
}

QWidget *CalendarListDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                            const QModelIndex &index) const
{
    QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
    // The padding of an ordinary field leaves no room for the text in a row.
    editor->setStyleSheet(QStringLiteral("padding: 0px 2px;"));
    if (auto *field = qobject_cast<QLineEdit *>(editor))
        FormDialog::showName(field, index.data().toString());
    return editor;
}

QSize CalendarListDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize hint = QStyledItemDelegate::sizeHint(option, index);
    return { hint.width(), std::max(MinRowHeightPx, QFontMetrics(option.font).height() + RowPaddingPx) };
}

void CalendarListDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QStyle *style = row.widget ? row.widget->style() : QApplication::style();
    const QRect box = style->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &row, row.widget);
    QRect textRect = style->subElementRect(QStyle::SE_ItemViewItemText, &row, row.widget);
    const QString name = row.text;

    QStyleOptionViewItem background = row;
    background.text.clear();
    background.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    style->drawControl(QStyle::CE_ItemViewItem, &background, painter, row.widget);

    painter->save();
    const bool calendar = isCalendar(index);
    if (calendar) {
        const QColor color = Theme::eventColor(index.data(CalendarListWidget::ColorRole).toString());
        paintCheckBox(painter, box, color, row.checkState == Qt::Checked);
        textRect.setRight(paintMarks(painter, textRect, index) - MarkGapPx);
    }
    const bool muted = !calendar || index.data(CalendarListWidget::OutsideGroupRole).toBool();
    painter->setFont(row.font);
    painter->setPen(muted ? Theme::textMuted() : Theme::textPrimary());
    painter->drawText(textRect, int(Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine),
                      QFontMetrics(row.font).elidedText(name, Qt::ElideRight, textRect.width()));
    painter->restore();
}

void CalendarListDelegate::paintCheckBox(QPainter *painter, QRect rect, const QColor &color, bool checked)
{
    const double side = std::min(rect.width(), rect.height()) - 2;
    const QPointF centre = QRectF(rect).center();
    const QRectF box(centre.x() - side / 2, centre.y() - side / 2, side, side);
    // A pale calendar colour would vanish against the list.
    const bool legible = Theme::contrastRatio(color, Theme::surface()) >= GraphicContrast;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(legible ? color : Theme::textMuted(), legible ? 2.0 : 1.0));
    painter->setBrush(checked ? color : Theme::surface());
    painter->drawRoundedRect(box.adjusted(1, 1, -1, -1), 3, 3);
    if (!checked) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(color);
        painter->drawEllipse(centre, side * 0.14, side * 0.14);
        return;
    }
    QPainterPath mark(centre + QPointF(-0.26 * side, 0.02 * side));
    mark.lineTo(centre + QPointF(-0.06 * side, 0.21 * side));
    mark.lineTo(centre + QPointF(0.28 * side, -0.19 * side));
    painter->setPen(QPen(Theme::textOn(color), side * 0.14, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(mark);
}

/// Returns the left end of the marks.
int CalendarListDelegate::paintMarks(QPainter *painter, QRect rect, const QModelIndex &index)
{
    int right = rect.right();
    if (index.data(CalendarListWidget::ReadOnlyRole).toBool()) {
        const QRect where(right - LockSizePx, rect.center().y() - LockSizePx / 2, LockSizePx, LockSizePx);
        Theme::iconFromGlyph(LockGlyph, LockSizePx, Theme::textMuted()).paint(painter, where);
        right = where.left() - MarkGapPx;
    }
    if (index.data(CalendarListWidget::DefaultRole).toBool()) {
        QFont small = painter->font();
        small.setPointSize(Theme::FontSizeXs);
        painter->setFont(small);
        painter->setPen(Theme::textMuted());
        const QString text = tr("Default");
        const int width = QFontMetrics(small).horizontalAdvance(text);
        painter->drawText(QRect(right - width, rect.top(), width + 1, rect.height()), int(Qt::AlignVCenter), text);
        right -= width + MarkGapPx;
    }
    return right;
}
