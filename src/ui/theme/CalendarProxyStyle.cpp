#include "ui/theme/CalendarProxyStyle.h"

#include "ui/theme/Theme.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace {

constexpr int IndicatorSizePx = 18;
constexpr qreal BorderWidth = 2.0;
constexpr qreal CornerRadius = 3.0;

struct IndicatorColors {
    QColor border = Theme::textPrimary();
    QColor fill = Theme::surfaceMuted();
    QColor mark = Theme::textOn(Theme::accent());
};

IndicatorColors indicatorColors(QStyle::State state)
{
    IndicatorColors colors;
    const bool isMarked = state.testAnyFlags(QStyle::State_On | QStyle::State_NoChange);
    if (!state.testFlag(QStyle::State_Enabled)) {
        colors.border = Theme::textDisabled();
        colors.fill = Theme::surface();
        colors.mark = Theme::textDisabled();
    } else if (isMarked) {
        colors.border = Theme::accent();
        colors.fill = Theme::accent();
    } else if (state.testFlag(QStyle::State_MouseOver)) {
        colors.border = Theme::accent();
    }
    return colors;
}

QRectF indicatorSquare(const QRect &rect)
{
    const qreal side = std::min(rect.width(), rect.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(QRectF(rect).center());
    return square.adjusted(1, 1, -1, -1);
}

void drawCheckMark(QPainter *painter, const QRectF &square, const QColor &color, bool isPartial)
{
    const qreal s = square.width();
    const QPointF center = square.center();
    painter->setPen(QPen(color, 0.18 * s, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);
    if (isPartial) {
        painter->drawLine(center - QPointF(0.24 * s, 0), center + QPointF(0.24 * s, 0));
        return;
    }
    const QPointF points[] = { center + QPointF(-0.28 * s, 0.02 * s), center + QPointF(-0.06 * s, 0.22 * s),
                               center + QPointF(0.30 * s, -0.20 * s) };
    painter->drawPolyline(points, 3);
}

void drawCheckBox(QPainter *painter, const QStyleOption *option)
{
    const IndicatorColors colors = indicatorColors(option->state);
    const QRectF square = indicatorSquare(option->rect);
    painter->setPen(QPen(colors.border, BorderWidth));
    painter->setBrush(colors.fill);
    painter->drawRoundedRect(square, CornerRadius, CornerRadius);
    if (option->state.testFlag(QStyle::State_On))
        drawCheckMark(painter, square, colors.mark, false);
    else if (option->state.testFlag(QStyle::State_NoChange))
        drawCheckMark(painter, square, colors.mark, true);
}

void drawRadioButton(QPainter *painter, const QStyleOption *option)
{
    const IndicatorColors colors = indicatorColors(option->state);
    const QRectF square = indicatorSquare(option->rect);
    painter->setPen(QPen(colors.border, BorderWidth));
    painter->setBrush(colors.fill);
    painter->drawEllipse(square);
    if (!option->state.testFlag(QStyle::State_On))
        return;
    const qreal radius = 0.26 * square.width();
    painter->setPen(Qt::NoPen);
    painter->setBrush(colors.mark);
    painter->drawEllipse(square.center(), radius, radius);
}

void drawMenuHighlight(QPainter *painter, const QStyleOption *option)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(option->palette.highlight());
    painter->drawRoundedRect(option->rect.adjusted(2, 1, -2, -1), 4, 4);
    painter->restore();
}

}

CalendarProxyStyle::CalendarProxyStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{
}

// Who scrolls a form passes over its fields, and must not change what they hold.
void CalendarProxyStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    if (!qobject_cast<QComboBox *>(widget) && !qobject_cast<QAbstractSpinBox *>(widget))
        return;
    if (widget->focusPolicy() == Qt::WheelFocus)
        widget->setFocusPolicy(Qt::StrongFocus);
    widget->installEventFilter(this);
}

bool CalendarProxyStyle::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
        return QProxyStyle::eventFilter(watched, event);
    event->ignore(); // so that it goes on to the scroll area
    return true;
}

int CalendarProxyStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                  QStyleHintReturn *returned) const
{
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

int CalendarProxyStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return IndicatorSizePx;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

void CalendarProxyStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                       const QWidget *widget) const
{
    const bool isCheckBox = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
    if (!option || !painter || (!isCheckBox && element != PE_IndicatorRadioButton)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (isCheckBox)
        drawCheckBox(painter, option);
    else
        drawRadioButton(painter, option);
    painter->restore();
}

// Fusion would frame the highlighted entry with a hard line.
void CalendarProxyStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                     const QWidget *widget) const
{
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    const bool isHighlighted = item && item->state.testFlag(State_Selected) && item->state.testFlag(State_Enabled);
    if (isHighlighted && element == CE_MenuItem) {
        drawMenuHighlight(painter, item);
        QStyleOptionMenuItem plain(*item);
        plain.state.setFlag(State_Selected, false);
        QProxyStyle::drawControl(element, &plain, painter, widget);
    } else if (isHighlighted && element == CE_MenuBarItem) {
        painter->fillRect(item->rect, item->palette.window());
        drawMenuHighlight(painter, item);
        int flags = Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextDontClip | Qt::TextSingleLine;
        if (!proxy()->styleHint(SH_UnderlineShortcut, item, widget))
            flags |= Qt::TextHideMnemonic;
        proxy()->drawItemText(painter, item->rect, flags, item->palette, true, item->text, QPalette::WindowText);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}
