#include "ui/theme/ThemeManager.h"

#include "platform/SystemColorScheme.h"
#include "storage/PreferencesRepository.h"
#include "ui/theme/CalendarProxyStyle.h"
#include "ui/theme/Theme.h"

#include <QApplication>
#include <QPalette>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace {

const QString ModeKey = QStringLiteral("ui/theme");
const QString AccentKey = QStringLiteral("ui/accentColor");
const QString FontScaleKey = QStringLiteral("ui/fontScale");
const QString SystemMode = QStringLiteral("system");

using FontsOfWidgets = QList<std::pair<QPointer<QWidget>, QFont>>;

FontsOfWidgets ownFonts()
{
    FontsOfWidgets fonts;
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (widget->testAttribute(Qt::WA_SetFont))
            fonts.append({ widget, widget->font() });
    }
    return fonts;
}

// A size that a font has of its own: scaled, but the application's own size where it was that.
QFont scaled(QFont font, const QFont &oldBase, double ratio)
{
    const bool hasOwnSize = font.resolveMask() & QFont::SizeResolved;
    if (!hasOwnSize || font.pointSize() <= 0)
        return font;
    const bool isBaseSize = font.pointSize() == oldBase.pointSize();
    font.setPointSize(isBaseSize ? QApplication::font().pointSize() : std::max(1, qRound(font.pointSize() * ratio)));
    return font;
}

void setFonts(const FontsOfWidgets &fonts, const QFont &oldBase, double ratio)
{
    for (const auto &[widget, font] : fonts) {
        if (!widget)
            continue;
        // Qt keeps the font that a widget had when a sheet first polished it, and every later polish brings
        // that one back. Without the note it takes the font of now.
        widget->setProperty("_q_styleSheetWidgetFont", QVariant());
        widget->setFont(scaled(font, oldBase, ratio));
    }
}

}

ThemeManager::ThemeManager(PreferencesRepository *preferences, QObject *parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_system(new SystemColorScheme(this))
    , m_mode(SystemMode)
    , m_unscaledFont(QApplication::font())
{
    connect(m_system, &SystemColorScheme::changed, this, [this] {
        if (!m_style || m_mode != SystemMode)
            return;
        applyMode(m_mode);
        emit modeChanged(m_mode);
    });
}

void ThemeManager::applyStoredFontScale()
{
    applyFontScalePercent(m_preferences->getInt(FontScaleKey, 100), false);
}

void ThemeManager::applyStoredMode()
{
    m_mode = m_preferences->get(ModeKey, SystemMode);
    Theme::setAccentOverride(m_preferences->get(AccentKey, QString()));
    applyMode(m_mode);
}

void ThemeManager::setMode(const QString &mode)
{
    if (mode == m_mode)
        return;
    m_mode = mode;
    m_preferences->set(ModeKey, mode);
    applyMode(mode);
    emit modeChanged(mode);
}

void ThemeManager::setAccentOverride(const QString &color)
{
    Theme::setAccentOverride(color);
    if (color.isEmpty())
        m_preferences->remove(AccentKey);
    else
        m_preferences->set(AccentKey, color);
    applyMode(m_mode);
    emit accentChanged(Theme::accent());
}

void ThemeManager::applyFontScalePercent(int percent, bool persist)
{
    const int previous = Theme::fontScalePercent();
    Theme::setFontScalePercent(percent);
    const int current = Theme::fontScalePercent();
    if (persist)
        m_preferences->set(FontScaleKey, QString::number(current));

    const QFont oldBase = QApplication::font();
    const FontsOfWidgets fonts = previous == current ? FontsOfWidgets() : ownFonts();
    if (m_unscaledFont.pointSize() > 0) {
        QFont font = m_unscaledFont;
        font.setPointSize(std::max(1, font.pointSize() * current / 100));
        QApplication::setFont(font);
    }
    if (previous != current) {
        if (m_style)
            qApp->setStyleSheet(Theme::stylesheet()); // also makes the other widgets take the font
        setFonts(fonts, oldBase, static_cast<double>(current) / previous);
    }
    emit fontScaleChanged(current);
}

int ThemeManager::currentFontScalePercent() const
{
    return Theme::fontScalePercent();
}

void ThemeManager::applyMode(const QString &mode)
{
    if (!m_style) {
        m_style = new CalendarProxyStyle;
        QApplication::setStyle(m_style); // which takes it
    }
    const bool isDark = mode == QLatin1StringView("dark") || (mode == SystemMode && m_system->isDark());
    Theme::setActiveMode(isDark ? Theme::Mode::Dark : Theme::Mode::Light);
    QApplication::setPalette(Theme::palette());
    const QString sheet = Theme::stylesheet();
    if (qApp->styleSheet() == sheet)
        return; // applying it would polish every widget of the program again
    const FontsOfWidgets fonts = ownFonts();
    qApp->setStyleSheet(sheet);
    setFonts(fonts, QApplication::font(), 1.0);
}
