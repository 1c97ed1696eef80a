#include "ui/theme/Theme.h"

#include "models/Constants.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QDateTimeEdit>
#include <QFile>
#include <QList>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QRegularExpression>
#include <QTextCharFormat>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Theme {

int FontSizeXs = 9;
int FontSizeSm = 10;
int FontSizeBody = 11;
int FontSizeLg = 13;
int FontSizeXl = 16;
int FontSizeXxl = 22;

}

namespace {

constexpr double ReadableContrast = 4.5; // WCAG 2.1, success criterion 1.4.3
constexpr int AccentAlphaLight = 38;
constexpr int AccentAlphaDark = 50;

Theme::Mode s_mode = Theme::Mode::Light;
QString s_accentOverride;
QString s_iconFamily = QStringLiteral("Material Icons");
int s_fontScalePercent = 100;

bool isDark()
{
    return s_mode == Theme::Mode::Dark;
}

QColor pick(const QColor &light, const QColor &dark)
{
    return isDark() ? dark : light;
}

QColor overriddenAccent()
{
    return s_accentOverride.isEmpty() ? QColor() : QColor::fromString(s_accentOverride);
}

double linearised(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    const QColor rgb = color.toRgb();
    return 0.2126 * linearised(rgb.redF()) + 0.7152 * linearised(rgb.greenF()) + 0.0722 * linearised(rgb.blueF());
}

// surfaceMuted is the hardest background: the darkest in light mode, the lightest in dark mode.
QColor readable(const QColor &color)
{
    QColor result = color.toHsl();
    const float step = isDark() ? 0.01F : -0.01F;
    while (Theme::contrastRatio(result, Theme::surfaceMuted()) < ReadableContrast) {
        const float lightness = result.lightnessF() + step;
        if (lightness < 0 || lightness > 1)
            break;
        result.setHslF(std::max(0.0F, result.hslHueF()), result.hslSaturationF(), lightness);
    }
    return result.toRgb();
}

// A button's accent under the pointer moves away from its text, so that the text stays readable.
QColor accentShade(int percent)
{
    const QColor accent = Theme::accent();
    return Theme::textOn(accent) == QColor(Qt::white) ? accent.darker(percent) : accent.lighter(percent);
}

QString cssColor(const QColor &color)
{
    if (color.alpha() == 255)
        return color.name();
    return QStringLiteral("rgba(%1, %2, %3, %4)")
        .arg(QString::number(color.red()), QString::number(color.green()), QString::number(color.blue()),
             QString::number(color.alphaF(), 'f', 3));
}

QString cssSize(int size, QLatin1StringView unit)
{
    return QString::number(size) + unit;
}

using Tokens = QList<std::pair<QString, QString>>;

Tokens colorTokens()
{
    return {
        { QStringLiteral("@canvas"), cssColor(Theme::canvas()) },
        { QStringLiteral("@surface"), cssColor(Theme::surface()) },
        { QStringLiteral("@surfaceMuted"), cssColor(Theme::surfaceMuted()) },
        { QStringLiteral("@border"), cssColor(Theme::border()) },
        { QStringLiteral("@borderStrong"), cssColor(Theme::borderStrong()) },
        { QStringLiteral("@textPrimary"), cssColor(Theme::textPrimary()) },
        { QStringLiteral("@textMuted"), cssColor(Theme::textMuted()) },
        { QStringLiteral("@textDisabled"), cssColor(Theme::textDisabled()) },
        { QStringLiteral("@accent"), cssColor(Theme::accent()) },
        { QStringLiteral("@accentMuted"), cssColor(Theme::accentMuted()) },
        { QStringLiteral("@danger"), cssColor(Theme::danger()) },
        // textMuted alone has 4.4:1 on surfaceMuted in light mode.
        { QStringLiteral("@textMutedStrong"), cssColor(readable(Theme::textMuted())) },
        { QStringLiteral("@accentHover"), cssColor(accentShade(107)) },
        { QStringLiteral("@accentPressed"), cssColor(accentShade(115)) },
        { QStringLiteral("@onAccent"), cssColor(Theme::textOn(Theme::accent())) },
    };
}

Tokens sizeTokens()
{
    const QLatin1StringView px("px");
    const QLatin1StringView pt("pt");
    return {
        { QStringLiteral("@radiusSm"), cssSize(4, px) },
        { QStringLiteral("@radiusMd"), cssSize(6, px) },
        { QStringLiteral("@radiusLg"), cssSize(10, px) },
        { QStringLiteral("@spacingXs"), cssSize(4, px) },
        { QStringLiteral("@spacingSm"), cssSize(8, px) },
        { QStringLiteral("@spacingMd"), cssSize(12, px) },
        { QStringLiteral("@spacingLg"), cssSize(16, px) },
        { QStringLiteral("@fontBody"), cssSize(Theme::FontSizeBody, pt) },
        { QStringLiteral("@fontSm"), cssSize(Theme::FontSizeSm, pt) },
        { QStringLiteral("@fontLg"), cssSize(Theme::FontSizeLg, pt) },
        { QStringLiteral("@sansFamily"), Theme::sansFamily() },
        { QStringLiteral("@mode"), isDark() ? QStringLiteral("dark") : QStringLiteral("light") },
    };
}

// On macOS the sheet must not reach menus, which stay native; elsewhere the palette colours them.
QString withoutMenuRules(QString sheet)
{
    static const QRegularExpression menuRule(QStringLiteral(
        "(?ms)^QMenu(Bar)?(::[a-zA-Z\\-]+(:[a-z\\-]+)?(\\s*,\\s*QMenu(Bar)?::[a-zA-Z\\-]+(:[a-z\\-]+)?)*)?"
        "\\s*\\{[^}]*\\}\\s*"));
    return sheet.remove(menuRule);
}

qreal devicePixelRatio()
{
    return qApp ? qApp->devicePixelRatio() : 1.0;
}

// Styles tint the icon of a selected row, but a calendar's colour has to stay what it is.
QIcon iconOf(const QPixmap &pixmap)
{
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected);
    return icon;
}

QPixmap transparentPixmap(int size)
{
    const qreal ratio = devicePixelRatio();
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

}

namespace Theme {

Mode activeMode()
{
    return s_mode;
}

void setActiveMode(Mode mode)
{
    s_mode = mode;
}

QColor canvas()
{
    return pick({ 246, 247, 249 }, { 20, 22, 27 });
}

QColor surface()
{
    return pick({ 255, 255, 255 }, { 27, 30, 36 });
}

QColor surfaceMuted()
{
    return pick({ 240, 241, 244 }, { 35, 39, 47 });
}

QColor border()
{
    return pick({ 227, 229, 234 }, { 44, 49, 58 });
}

QColor borderStrong()
{
    return pick({ 201, 205, 212 }, { 58, 64, 75 });
}

QColor textPrimary()
{
    return pick({ 24, 27, 34 }, { 231, 233, 238 });
}

QColor textMuted()
{
    return pick({ 107, 112, 122 }, { 154, 160, 171 });
}

QColor textDisabled()
{
    return pick({ 168, 173, 182 }, { 92, 98, 109 });
}

QColor accent()
{
    const QColor chosen = overriddenAccent();
    return chosen.isValid() ? chosen : pick({ 66, 133, 244 }, { 107, 161, 247 });
}

QColor accentMuted()
{
    QColor color = accent();
    color.setAlpha(isDark() ? AccentAlphaDark : AccentAlphaLight);
    return color;
}

QColor danger()
{
    return pick({ 220, 53, 69 }, { 231, 76, 60 });
}

QColor warning()
{
    return pick({ 138, 90, 0 }, { 245, 158, 11 });
}

QColor accentText()
{
    return readable(accent());
}

QColor link()
{
    return accentText();
}

QString accentOverride()
{
    return s_accentOverride;
}

void setAccentOverride(const QString &color)
{
    s_accentOverride = color;
}

QColor textOn(const QColor &background)
{
    if (contrastRatio(Qt::white, background) >= ReadableContrast)
        return Qt::white;
    // Between the two, on a few middle tones, only pure black reaches the ratio.
    const QColor ink(20, 22, 27);
    return contrastRatio(ink, background) >= ReadableContrast ? ink : QColor(Qt::black);
}

double contrastRatio(const QColor &a, const QColor &b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QColor eventColor(const QString &eventColor, const QString &calendarColor)
{
    for (const QString &name : { eventColor, calendarColor }) {
        const QColor color = QColor::fromString(name);
        if (color.isValid())
            return color;
    }
    return QColor::fromString(DefaultColor);
}

void setFontScalePercent(int percent)
{
    s_fontScalePercent = std::clamp(percent, 70, 200);
    const auto scaled = [](int base) { return std::max(1, base * s_fontScalePercent / 100); };
    FontSizeXs = scaled(9);
    FontSizeSm = scaled(10);
    FontSizeBody = scaled(11);
    FontSizeLg = scaled(13);
    FontSizeXl = scaled(16);
    FontSizeXxl = scaled(22);
}

int fontScalePercent()
{
    return s_fontScalePercent;
}

QFont headingFont(const QFont &font)
{
    QFont heading = font;
    heading.setBold(true);
    heading.setPointSize(FontSizeLg);
    return heading;
}

QString sansFamily()
{
    return QStringLiteral("IBM Plex Sans");
}

QString iconFamily()
{
    return s_iconFamily;
}

void setIconFamily(const QString &family)
{
    s_iconFamily = family;
}

QString stylesheet()
{
    QFile file(QStringLiteral(":/styles/calendar.qss"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString sheet = withoutMenuRules(QString::fromUtf8(file.readAll()));
    Tokens tokens = colorTokens() + sizeTokens();
    // Longest first, as "@surface" also begins "@surfaceMuted".
    std::ranges::stable_sort(tokens, std::ranges::greater(), [](const auto &token) { return token.first.size(); });
    for (const auto &[token, value] : std::as_const(tokens))
        sheet.replace(token, value);
    return sheet;
}

QPalette palette()
{
    QPalette palette;
    const auto set = [&palette](std::initializer_list<QPalette::ColorRole> roles, const QColor &color) {
        for (const QPalette::ColorRole role : roles)
            palette.setColor(role, color);
    };
    set({ QPalette::Window }, canvas());
    set({ QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipBase }, textPrimary());
    set({ QPalette::Base, QPalette::Button, QPalette::Light, QPalette::ToolTipText }, surface());
    set({ QPalette::AlternateBase, QPalette::Midlight }, surfaceMuted());
    set({ QPalette::BrightText }, danger());
    set({ QPalette::PlaceholderText }, textMuted());
    set({ QPalette::Link, QPalette::LinkVisited }, link());
    set({ QPalette::Mid }, border());
    set({ QPalette::Dark, QPalette::Shadow }, borderStrong());
    // White on the accent itself would be 3.6:1; on its tint the text stays what it is everywhere else.
    set({ QPalette::Highlight }, accentMuted());
    set({ QPalette::HighlightedText }, textPrimary());
    for (const QPalette::ColorRole role :
         { QPalette::Text, QPalette::ButtonText, QPalette::WindowText, QPalette::HighlightedText })
        palette.setColor(QPalette::Disabled, role, textDisabled());
    palette.setColor(QPalette::Disabled, QPalette::Base, surfaceMuted());
    return palette;
}

QIcon iconFromGlyph(char16_t glyph, int size, const QColor &color)
{
    QPixmap pixmap = transparentPixmap(size);
    QPainter painter(&pixmap);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    QFont font(iconFamily());
    font.setPixelSize(std::max(1, size));
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(QRect(0, 0, size, size), Qt::AlignCenter, QString(QChar(glyph)));
    painter.end();
    return iconOf(pixmap);
}

QIcon calendarDotIcon(const QString &color)
{
    const QColor named = QColor::fromString(color);
    QPixmap pixmap = transparentPixmap(14);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(named.isValid() ? named : QColor(0x9a, 0xa0, 0xa6));
    painter.drawEllipse(1, 1, 12, 12);
    painter.end();
    return iconOf(pixmap);
}

QString checkableListStylesheet()
{
    return QStringLiteral(
               "QListView::indicator {  width: 14px;  height: 14px;  border: 1px solid %1;  border-radius: 3px;"
               "  background: %2;}QListView::indicator:checked {  background: %3;  border-color: %3;}"
               "QListView::indicator:hover {  border-color: %3;}")
        .arg(cssColor(borderStrong()), cssColor(surface()), cssColor(accent()));
}

void applyCalendarLocale(QDateTimeEdit *edit, Qt::DayOfWeek firstDay)
{
    QCalendarWidget *calendar = edit ? edit->calendarWidget() : nullptr;
    if (!calendar)
        return;
    calendar->setFirstDayOfWeek(firstDay);
    // The red of Qt's weekends cannot be read in dark mode.
    for (const Qt::DayOfWeek day : { Qt::Saturday, Qt::Sunday })
        calendar->setWeekdayTextFormat(day, {});
}

QString plainLabel(const QString &text)
{
    return QString(text).replace(u'&', QStringLiteral("&&"));
}

QString plainToolTip(const QString &text)
{
    if (text.isEmpty())
        return {};
    return QStringLiteral("<qt>") + text.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>"))
        + QStringLiteral("</qt>");
}

} // namespace Theme
