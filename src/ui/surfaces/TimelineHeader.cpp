#include "ui/surfaces/TimelineHeader.h"

#include "ui/surfaces/SurfaceFonts.h"
#include "ui/theme/Theme.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int MarginPx = 4;
constexpr int LineCount = 2;
constexpr int CellInsetPx = 2;

}

TimelineHeader::TimelineHeader(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setMouseTracking(true);
}

void TimelineHeader::setDays(QDate first, int count)
{
    m_first = first;
    m_columns.count = std::max(1, count);
    update();
}

void TimelineHeader::setToday(QDate today)
{
    m_today = today;
    update();
}

void TimelineHeader::setGutterPx(int pixels)
{
    m_columns.gutterPx = pixels;
    update();
}

void TimelineHeader::setContentWidth(int pixels)
{
    m_columns.widthPx = pixels;
    update();
}

QDate TimelineHeader::dateAt(QPoint point) const
{
    const int column = m_columns.columnAt(point.x());
    return column < 0 || !rect().contains(point) ? QDate() : m_first.addDays(column);
}

QRect TimelineHeader::columnRect(int column) const
{
    return { m_columns.left(column), 0, m_columns.columnWidthPx(), height() };
}

QStringList TimelineHeader::linesIn(Form form, QDate date) const
{
    const QLocale locale;
    if (form == Form::WithMonth) {
        //: weekday and date above a column of the week, as a date pattern in two lines
        return locale.toString(date, tr("ddd\nMMM d")).split(u'\n');
    }
    const auto length = form == Form::DayNumber ? QLocale::ShortFormat : QLocale::NarrowFormat;
    return { locale.standaloneDayName(date.dayOfWeek(), length), locale.toString(date, u"d") };
}

bool TimelineHeader::fits(Form form) const
{
    const int room = m_columns.columnWidthPx() - 2 * CellInsetPx;
    for (int column = 0; m_first.isValid() && column < m_columns.count; ++column) {
        const QDate date = m_first.addDays(column);
        const QFontMetrics fontMetrics(dayFont(date));
        for (const QString &line : linesIn(form, date)) {
            if (fontMetrics.horizontalAdvance(line) > room)
                return false;
        }
    }
    return true;
}

TimelineHeader::Form TimelineHeader::fittingForm() const
{
    for (const Form form : { Form::WithMonth, Form::DayNumber }) {
        if (fits(form))
            return form;
    }
    return Form::Narrow;
}

QFont TimelineHeader::dayFont(QDate date) const
{
    return SurfaceFonts::bold(font(), date == m_today);
}

QSize TimelineHeader::sizeHint() const
{
    return { m_columns.gutterPx, LineCount * QFontMetrics(SurfaceFonts::bold(font())).height() + 2 * MarginPx };
}

QSize TimelineHeader::minimumSizeHint() const
{
    return sizeHint();
}

void TimelineHeader::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    const Form form = fittingForm();
    for (int column = 0; m_first.isValid() && column < m_columns.count; ++column) {
        const QDate date = m_first.addDays(column);
        const QRect cell = columnRect(column).adjusted(CellInsetPx, CellInsetPx, -CellInsetPx, -CellInsetPx);
        const QFontMetrics fontMetrics(dayFont(date));
        if (date == m_hovered) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(Theme::surfaceMuted());
            painter.drawRoundedRect(cell, 4, 4);
        }
        if (date == m_today) // a mark that does not rest on colour alone: bold text over a bar
            painter.fillRect(QRect(columnRect(column).left() + 1, height() - 3, cell.width() + 2, 3), Theme::accent());
        painter.setFont(dayFont(date));
        painter.setPen(date == m_today ? Theme::link() : Theme::textPrimary());
        QRect line(cell.left(), MarginPx, cell.width(), fontMetrics.height());
        for (const QString &text : linesIn(form, date)) {
            painter.drawText(line, Qt::AlignCenter, fontMetrics.elidedText(text, Qt::ElideRight, line.width()));
            line.translate(0, fontMetrics.height());
        }
    }
}

bool TimelineHeader::event(QEvent *event)
{
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const QDate date = dateAt(help->pos());
    //: a whole date, as a date pattern
    const QString text = date.isValid() ? QLocale().toString(date, tr("dddd, MMMM d, yyyy")) : QString();
    QToolTip::showText(help->globalPos(), text, this);
    return true;
}

void TimelineHeader::setHovered(QDate date)
{
    if (m_hovered == date)
        return;
    m_hovered = date;
    setCursor(date.isValid() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    update();
}

void TimelineHeader::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    m_pressed = dateAt(event->position().toPoint());
}

void TimelineHeader::mouseMoveEvent(QMouseEvent *event)
{
    setHovered(dateAt(event->position().toPoint()));
}

void TimelineHeader::mouseReleaseEvent(QMouseEvent *event)
{
    const QDate pressed = std::exchange(m_pressed, QDate());
    if (event->button() == Qt::LeftButton && pressed.isValid() && dateAt(event->position().toPoint()) == pressed)
        emit dayActivated(pressed);
}

void TimelineHeader::leaveEvent(QEvent *event)
{
    setHovered({});
    QWidget::leaveEvent(event);
}
