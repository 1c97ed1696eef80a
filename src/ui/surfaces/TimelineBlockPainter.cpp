#include "ui/surfaces/TimelineBlockPainter.h"

#include "calendar/services/EventText.h"
#include "models/Constants.h"
#include "ui/surfaces/EventColors.h"
#include "ui/surfaces/SurfaceFonts.h"
#include "ui/theme/Theme.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int IconAlpha = 170;
constexpr int IconGapPx = 4;
constexpr int IconPx = 13; // at a font scale of 100 %
constexpr QChar BellGlyph(0xE7F4);
constexpr QChar UploadGlyph(0xE2C3);

QFont iconFont()
{
    QFont font(Theme::iconFamily());
    font.setPixelSize(std::max(IconPx, IconPx * Theme::fontScalePercent() / 100));
    return font;
}

QString leadingChars(const QString &text, const QFontMetrics &metrics, int width)
{
    qsizetype count = std::min<qsizetype>(text.size(), 4);
    while (count > 0 && metrics.horizontalAdvance(text, static_cast<int>(count)) > width)
        --count;
    return text.left(count);
}

QStaticText prepared(const QString &text, const QFont &font)
{
    QStaticText result(text);
    result.setTextFormat(Qt::PlainText);
    result.prepare({}, font);
    return result;
}

QStaticText elided(const QString &text, const QFont &font, int width)
{
    const QFontMetrics metrics(font);
    QString shown = metrics.elidedText(text, Qt::ElideRight, width);
    if (shown.size() == 1 && text.size() > 1)
        shown = leadingChars(text, metrics, width); // says more than a lone ellipsis
    return prepared(shown, font);
}

}

TimelineBlockPainter::TimelineBlockPainter(const QFont &font, const BlockInsets &insets, const QString &timePattern)
    : m_insets(insets)
    , m_timePattern(timePattern)
    , m_titleFont(SurfaceFonts::bold(font))
    , m_smallFont(SurfaceFonts::resized(font, -1))
    , m_iconFont(iconFont())
    , m_titleHeight(QFontMetrics(m_titleFont).height())
    , m_smallHeight(QFontMetrics(m_smallFont).height())
    , m_canDrawIcons(QFontMetrics(m_iconFont).inFont(BellGlyph)) // else the icon font is missing
{
}

int TimelineBlockPainter::iconsWidth(const QString &icons) const
{
    const QFontMetrics metrics(m_iconFont);
    int width = 0;
    for (const QChar icon : icons)
        width += metrics.horizontalAdvance(icon) + IconGapPx;
    return width;
}

QString TimelineBlockPainter::fittingIcons(const Event &event, int width, bool waitsForUpload) const
{
    QString icons;
    if (event.firstReminderMinutes())
        icons += BellGlyph;
    if (waitsForUpload)
        icons += UploadGlyph;
    const bool hasRoom = width - iconsWidth(icons) >= 3 * m_titleHeight; // the title matters more
    return m_canDrawIcons && hasRoom ? icons : QString();
}

QStaticText TimelineBlockPainter::fittingTimeLine(const Event &event, int width) const
{
    const QFontMetrics metrics(m_smallFont);
    QString text = EventText::timeLine(event, m_timePattern);
    if (metrics.horizontalAdvance(text) > width)
        text = EventText::startTime(event, m_timePattern);
    // Half a time would be read as another one.
    return metrics.horizontalAdvance(text) <= width ? prepared(text, m_smallFont) : QStaticText();
}

BlockContent TimelineBlockPainter::fit(const Event &event, QSize block, bool waitsForUpload) const
{
    BlockContent content;
    content.isCancelled = event.status == EventStatus::Cancelled;
    const int width = block.width() - m_insets.textLeftPx - m_insets.textRightPx;
    if (width <= 0)
        return content;
    content.icons = fittingIcons(event, width, waitsForUpload);
    content.title = elided(EventText::title(event), m_titleFont, width - iconsWidth(content.icons));
    const int room = block.height() - 2 * m_insets.paddingPx;
    if (block.height() < heightWithTimePx())
        return content;
    content.time = fittingTimeLine(event, width);
    const QString place = EventText::location(event);
    if (!content.time.text().isEmpty() && !place.isEmpty() && room >= m_titleHeight + 2 * m_smallHeight)
        content.location = elided(place, m_smallFont, width);
    return content;
}

void TimelineBlockPainter::paint(QPainter &painter, const QRect &block, const BlockContent &content,
                                 const QColor &color) const
{
    const QPoint text = block.topLeft() + QPoint(m_insets.textLeftPx, m_insets.paddingPx);
    painter.setPen(color);
    painter.setFont(m_titleFont);
    painter.drawStaticText(text, content.title);
    if (content.isCancelled)
        strikeOut(painter, text, content.title);
    if (!content.time.text().isEmpty()) {
        painter.setFont(m_smallFont);
        painter.drawStaticText(text + QPoint(0, m_titleHeight), content.time);
        painter.drawStaticText(text + QPoint(0, m_titleHeight + m_smallHeight), content.location);
    }
    paintIcons(painter, block, content, color);
}

// A static text in a font that strikes out draws its line somewhere else on the widget.
void TimelineBlockPainter::strikeOut(QPainter &painter, const QPoint &topLeft, const QStaticText &text) const
{
    const QFontMetrics metrics(m_titleFont);
    const QRectF line(topLeft.x(), topLeft.y() + metrics.ascent() - metrics.strikeOutPos(), text.size().width(),
                      metrics.lineWidth());
    painter.fillRect(line, painter.pen().color());
}

void TimelineBlockPainter::paintIcons(QPainter &painter, const QRect &block, const BlockContent &content,
                                      const QColor &color) const
{
    if (content.icons.isEmpty())
        return;
    const QFontMetrics metrics(m_iconFont);
    painter.setFont(m_iconFont);
    painter.setPen(EventColors::withAlpha(color, IconAlpha));
    int right = block.right() - m_insets.iconRightPx;
    for (const QChar icon : content.icons) {
        const int width = metrics.horizontalAdvance(icon);
        painter.drawText(QRect(right - width, block.top() + m_insets.paddingPx, width, m_titleHeight), Qt::AlignCenter,
                         icon);
        right -= width + IconGapPx;
    }
}
