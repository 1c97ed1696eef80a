#include "ui/theme/ThemeManager.h"

#include "platform/SystemColorScheme.h"
#include "storage/PreferencesRepository.h"
#include "ui/theme/CalendarProxyStyle.h"
#include "ui/theme/Theme.h"

#include <QApplication>
#include <QPalette>
#include <QWidget>

#include <algorithm>

namespace {

const QString ModeKey = QStringLiteral("ui/theme");
const QString AccentKey = QStringLiteral("ui/accentColor");
const QString FontScaleKey = QStringLiteral("ui/fontScale");
const QString SystemMode = QStringLiteral("system");

// Applying a sheet polishes every widget of the program again.
void applyStyleSheet()
{
    const QString sheet = Theme::stylesheet();
    if (qApp->styleSheet() != sheet)
        qApp->setStyleSheet(sheet);
}

// A widget with a font of its own does not follow the application's.
void scaleOwnFonts(double ratio)
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        QFont font = widget->font();
        if (!widget->testAttribute(Qt::WA_SetFont) || font.pointSize() <= 0)
            continue;
        font.setPointSize(std::max(1, qRound(font.pointSize() * ratio)));
        widget->setFont(font);
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

    if (m_unscaledFont.pointSize() > 0) {
        QFont font = m_unscaledFont;
        font.setPointSize(std::max(1, font.pointSize() * current / 100));
        QApplication::setFont(font);
    }
    if (previous != current) {
        scaleOwnFonts(static_cast<double>(current) / previous);
        if (m_style)
            applyStyleSheet();
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
    applyStyleSheet();
}
