#include "calendar/services/TaskText.h"
#include "ui/surfaces/EventColors.h"
#include "ui/surfaces/SurfaceFonts.h"
#include "ui/tasks/TasksPaneRow.h"
#include "ui/theme/Theme.h"

#include <QDate>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int BoxPx = 16;
constexpr int BoxTopPx = 10;
constexpr int BoxLeftPx = 12;
constexpr int IndentedBoxLeftPx = 20;
constexpr int IndentPx = 16; // for each level below the first
constexpr int MaxIndentLevels = 8;
constexpr int GapPx = 8;
constexpr int RightPx = 10;
constexpr int PadPx = 8;
constexpr int LineGapPx = 3;
constexpr int PillPadPx = 4;
constexpr int PillRadiusPx = 3;
constexpr int DropAlpha = 36;
constexpr int ChipAlpha = 48;
constexpr int HighestMedium = 5;
const QColor High(0xef, 0x44, 0x44);

}

QRect TasksPaneRow::checkboxRect() const
{
    const int deeper = std::clamp(m_row.depth - 1, 0, MaxIndentLevels) * IndentPx;
    const int x = m_row.depth > 0 ? IndentedBoxLeftPx + deeper : BoxLeftPx;
    // In the middle of the title, also where the font makes that taller.
    const int y = std::max(BoxTopPx, PadPx + (QFontMetrics(font()).height() - BoxPx) / 2);
    return { x, y, BoxPx, BoxPx };
}

int TasksPaneRow::siblingIndicatorLeftX() const
{
    return checkboxRect().left();
}

int TasksPaneRow::textLeft() const
{
    return checkboxRect().right() + 1 + GapPx;
}

QStringList TasksPaneRow::tags() const
{
    QStringList result;
    if (m_row.status == TaskStatus::InProcess)
        result.append(tr("IN PROGRESS"));
    if (m_row.status == TaskStatus::Cancelled)
        result.append(tr("CANCELLED"));
    return result;
}

bool TasksPaneRow::hasSecondLine() const
{
    const bool isHigh = m_row.priority > 0 && m_row.priority < HighestMedium;
    return m_row.dueDate || isHigh || m_look.isWaitingToSync || m_row.isCutOff || !tags().isEmpty();
}

int TasksPaneRow::lineCount() const
{
    int lines = hasSecondLine() ? 1 : 0;
    if (m_look.showCategories && !m_row.categories.isEmpty())
        ++lines;
    if (m_look.showNotes && !m_row.description.trimmed().isEmpty())
        ++lines;
    return lines;
}

QSize TasksPaneRow::sizeHint() const
{
    const int title = std::max(BoxPx + 2 * (BoxTopPx - PadPx), QFontMetrics(font()).height());
    const int small = QFontMetrics(SurfaceFonts::resized(font(), -1)).height() + LineGapPx;
    return { 200, 2 * PadPx + title + lineCount() * small };
}

void TasksPaneRow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (underMouse())
        painter.fillRect(rect(), Theme::surfaceMuted());
    paintCheckbox(painter);
    const QFontMetrics title(font());
    const QFont smallFont = SurfaceFonts::resized(font(), -1);
    const int smallHeight = QFontMetrics(smallFont).height();
    QRect line(textLeft(), PadPx, width() - textLeft() - RightPx,
               std::max(title.height(), checkboxRect().bottom() - PadPx));
    paintTitle(painter, line);
    painter.setFont(smallFont);
    line.moveTop(line.bottom() + 1 + LineGapPx);
    line.setHeight(smallHeight);
    if (hasSecondLine()) {
        paintFacts(painter, line);
        line.translate(0, smallHeight + LineGapPx);
    }
    if (m_look.showCategories && !m_row.categories.isEmpty()) {
        paintChips(painter, line);
        line.translate(0, smallHeight + LineGapPx);
    }
    if (m_look.showNotes && !m_row.description.trimmed().isEmpty()) {
        painter.setPen(Theme::textMuted());
        const QString notes = m_row.description.left(300).simplified();
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                         painter.fontMetrics().elidedText(notes, Qt::ElideRight, line.width()));
    }
    painter.fillRect(QRectF(0, height() - 0.5, width(), 0.5), Theme::border());
    paintDropMark(painter);
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(Theme::accent(), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    }
}

void TasksPaneRow::paintCheckbox(QPainter &painter) const
{
    const QColor color = Theme::eventColor(m_look.color);
    const QRectF box = QRectF(checkboxRect()).adjusted(0.75, 0.75, -0.75, -0.75);
    const bool isDone = m_row.isCompleted();
    painter.setPen(QPen(color, 1.5));
    painter.setBrush(isDone ? QBrush(color) : Qt::NoBrush);
    painter.drawRoundedRect(box, 3, 3);
    if (!isDone)
        return;
    painter.setPen(QPen(Theme::textOn(color), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF tick[] = { { box.left() + 3, box.center().y() },
                             { box.left() + 6, box.bottom() - 4 },
                             { box.right() - 3, box.top() + 4 } };
    painter.drawPolyline(tick, 3);
}

void TasksPaneRow::paintTitle(QPainter &painter, const QRect &line) const
{
    const bool isOver = m_row.isCompleted() || m_row.status == TaskStatus::Cancelled;
    QFont titleFont = font();
    titleFont.setStrikeOut(isOver);
    painter.setFont(titleFont);
    painter.setPen(isOver ? Theme::textMuted() : Theme::textPrimary());
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(TaskText::title(m_row), Qt::ElideRight, line.width()));
}

void TasksPaneRow::paintFacts(QPainter &painter, QRect line) const
{
    const auto text = [&](const QString &words, const QColor &color) {
        if (words.isEmpty() || line.width() <= 0)
            return;
        painter.setPen(color);
        const QString fitting = painter.fontMetrics().elidedText(words, Qt::ElideRight, line.width());
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, fitting);
        line.setLeft(line.left() + painter.fontMetrics().horizontalAdvance(fitting) + GapPx);
    };
    text(m_dueText, TaskListing::isOverdue(m_row, QDate::currentDate()) ? Theme::danger() : Theme::textMuted());
    if (m_row.priority > 0 && m_row.priority < HighestMedium)
        line.setLeft(paintPill(painter, line, TaskText::priority(m_row.priority), High, false));
    const QStringList words = tags();
    for (const QString &tag : words)
        line.setLeft(paintPill(painter, line, tag, Theme::textMuted(), false));
    if (m_row.isCutOff)
        text(tr("↳ subtask"), Theme::textMuted());
    if (m_look.isWaitingToSync)
        text(tr("Waiting to sync"), Theme::textMuted());
}

void TasksPaneRow::paintChips(QPainter &painter, QRect line) const
{
    for (const QString &category : m_row.categories)
        line.setLeft(paintPill(painter, line, category.simplified(), Theme::accentText(), true));
}

// Where the next one begins.
int TasksPaneRow::paintPill(QPainter &painter, const QRect &line, const QString &text, const QColor &color,
                            bool filled) const
{
    const int available = line.width() - 2 * PillPadPx;
    if (available < painter.fontMetrics().averageCharWidth() * 2)
        return line.left();
    const QString fitting = painter.fontMetrics().elidedText(text, Qt::ElideRight, available);
    const QRect pill(line.left(), line.top(), painter.fontMetrics().horizontalAdvance(fitting) + 2 * PillPadPx,
                     line.height());
    // An outline of one colour; the words take one that can be read on the surface.
    painter.setPen(filled ? QPen(Qt::NoPen) : QPen(color, 1));
    painter.setBrush(filled ? QBrush(EventColors::withAlpha(color, ChipAlpha)) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(QRectF(pill).adjusted(0.5, 0.5, -0.5, -0.5), PillRadiusPx, PillRadiusPx);
    const bool isReadable = Theme::contrastRatio(color, Theme::surface()) >= 4.5;
    painter.setPen(isReadable ? color : Theme::textPrimary());
    painter.drawText(pill, Qt::AlignCenter, fitting);
    return pill.right() + 1 + GapPx;
}

void TasksPaneRow::paintDropMark(QPainter &painter) const
{
    if (m_dropZone == Zone::None)
        return;
    if (m_dropZone == Zone::Onto) {
        painter.fillRect(rect(), EventColors::withAlpha(Theme::accent(), DropAlpha));
        return;
    }
    const int y = m_dropZone == Zone::Above ? 0 : height() - 2;
    painter.fillRect(QRect(siblingIndicatorLeftX(), y, width() - siblingIndicatorLeftX(), 2), Theme::accent());
}
