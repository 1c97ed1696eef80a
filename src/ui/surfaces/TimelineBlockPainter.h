#pragma once

#include "models/Event.h"

#include <QFont>
#include <QRect>
#include <QStaticText>

class QPainter;

/// Where text and icons lie in a block, in pixels.
struct BlockInsets {
    int textLeftPx = 0; ///< from the block's left edge
    int textRightPx = 0;
    int iconRightPx = 0; ///< from the block's right edge
    int paddingPx = 0; ///< above and below the text
};

/// What is written in a block, measured for its rectangle.
struct BlockContent {
    QStaticText title, time, location; ///< empty where there is no room
    QString icons; ///< glyphs of the icon font, from the right
    bool isCancelled = false;
};

/// Fits an event's texts into its block and draws them. Fitting costs far more than drawing, so a widget
/// keeps the contents while neither its font nor the blocks change.
class TimelineBlockPainter {
public:
    TimelineBlockPainter() = default;
    explicit TimelineBlockPainter(const QFont &font, const BlockInsets &insets, const QString &timePattern);

    [[nodiscard]] int minBlockHeightPx() const { return m_titleHeight + 2 * m_insets.paddingPx; }

    /// The smallest block that shows its time under the title.
    [[nodiscard]] int heightWithTimePx() const { return m_titleHeight + m_smallHeight + 4 * m_insets.paddingPx + 1; }

    /// \p waitsForUpload asks for the mark of a change that has not reached its server.
    [[nodiscard]] BlockContent fit(const Event &event, QSize block, bool waitsForUpload) const;
    void paint(QPainter &painter, const QRect &block, const BlockContent &content, const QColor &color) const;

private:
    [[nodiscard]] QString fittingIcons(const Event &event, int width, bool waitsForUpload) const;
    [[nodiscard]] int iconsWidth(const QString &icons) const;
    [[nodiscard]] QStaticText fittingTimeLine(const Event &event, int width) const;
    void strikeOut(QPainter &painter, const QPoint &topLeft, const QStaticText &text) const;
    void paintIcons(QPainter &painter, const QRect &block, const BlockContent &content, const QColor &color) const;

    BlockInsets m_insets;
    QString m_timePattern;
    QFont m_titleFont;
    QFont m_smallFont;
    QFont m_iconFont;
    int m_titleHeight = 0;
    int m_smallHeight = 0;
    bool m_canDrawIcons = false;
};
