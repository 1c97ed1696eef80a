#include "ui/surfaces/EventColors.h"

#include "ui/theme/Theme.h"

#include <algorithm>

namespace {

/// A white event on white, or a black one on black, still gets a stripe that can be seen.
QColor visibleStripe(const QColor &event, const QColor &base, const QColor &text)
{
    constexpr double MinStripeContrast = 1.5;
    QColor stripe = event;
    for (int alpha = 25; alpha < 255 && Theme::contrastRatio(stripe, base) < MinStripeContrast; alpha += 25)
        stripe = EventColors::blend(EventColors::withAlpha(text, alpha), event);
    return stripe;
}

}

QColor EventColors::withAlpha(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

QColor EventColors::blend(const QColor &over, const QColor &under)
{
    const double share = over.alphaF();
    const auto mix = [share](int above, int below) { return qRound(above * share + below * (1 - share)); };
    return QColor(mix(over.red(), under.red()), mix(over.green(), under.green()), mix(over.blue(), under.blue()));
}

BlockColors EventColors::blockColors(const QColor &event, int bodyAlpha, int textAlpha, const QColor &base,
                                     const QColor &text)
{
    constexpr int Step = 4;
    const auto contrast = [&base, &text](const QColor &body, int alpha) {
        const QColor ground = blend(body, base);
        return Theme::contrastRatio(blend(withAlpha(text, alpha), ground), ground);
    };
    QColor body = withAlpha(event, bodyAlpha);
    while (body.alpha() > 0 && contrast(body, 255) < MinContrast)
        body.setAlpha(std::max(0, body.alpha() - Step));
    int alpha = textAlpha;
    while (alpha < 255 && contrast(body, alpha) < MinContrast)
        alpha = std::min(255, alpha + Step);
    return { body, visibleStripe(event, base, text), withAlpha(text, alpha) };
}
