#include "ui/actions/PopoverPlacement.h"

#include <algorithm>

namespace {

constexpr int GapPx = 8; // to the anchor
constexpr int MarginPx = 8; // to the edge of the bounds

int clamped(int position, int size, int low, int high)
{
    return std::max(low, std::min(position, high - size + 1));
}

}

QRect popoverRect(QSize size, const QRect &anchor, const QRect &bounds)
{
    const QRect inner = bounds.adjusted(MarginPx, MarginPx, -MarginPx, -MarginPx);
    QRect card(QPoint(), size.boundedTo(inner.size()));
    card.moveCenter(inner.center());
    const QRect shown = anchor & bounds;
    if (shown.isEmpty())
        return card;
    const int width = card.width();
    const int height = card.height();
    const int beside = clamped(shown.top(), height, inner.top(), inner.bottom());
    const int across = clamped(shown.left(), width, inner.left(), inner.right());
    if (shown.right() + GapPx + width <= inner.right())
        card.moveTopLeft({ shown.right() + 1 + GapPx, beside });
    else if (shown.left() - GapPx - width >= inner.left())
        card.moveTopLeft({ shown.left() - GapPx - width, beside });
    else if (shown.bottom() + GapPx + height <= inner.bottom())
        card.moveTopLeft({ across, shown.bottom() + 1 + GapPx });
    else if (shown.top() - GapPx - height >= inner.top())
        card.moveTopLeft({ across, shown.top() - GapPx - height });
    return card;
}
