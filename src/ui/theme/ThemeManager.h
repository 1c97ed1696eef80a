#pragma once

#include <QColor>
#include <QFont>
#include <QObject>
#include <QPointer>
#include <QString>

class CalendarProxyStyle;
class PreferencesRepository;
class SystemColorScheme;

/// Owns the user's choice of mode, accent and font scale, stores it, and pushes palette, style and style
/// sheet into the application.
class ThemeManager : public QObject {
    Q_OBJECT

public:
    explicit ThemeManager(PreferencesRepository *preferences, QObject *parent = nullptr);

    void applyStoredFontScale();
    void applyStoredMode();

    [[nodiscard]] QString mode() const { return m_mode; } ///< "system", "light" or "dark"
    void setMode(const QString &mode);
    void setAccentOverride(const QString &color); ///< empty: back to the standard accent
    void applyFontScalePercent(int percent, bool persist);
    [[nodiscard]] int currentFontScalePercent() const;

signals:
    /// The choice changed, or the system changed what "system" means.
    void modeChanged(const QString &mode);
    void accentChanged(const QColor &accent);
    void fontScaleChanged(int percent);

private:
    void applyMode(const QString &mode);

    PreferencesRepository *m_preferences;
    SystemColorScheme *m_system;
    QPointer<CalendarProxyStyle> m_style; // QApplication::style() is another class once a sheet is set
    QString m_mode;
    QFont m_unscaledFont;
};
