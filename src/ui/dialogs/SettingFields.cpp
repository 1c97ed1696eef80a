#include "ui/dialogs/SettingFields.h"

#include "app/state/AppState.h"
#include "calendar/services/TimeFormat.h"
#include "storage/PreferencesRepository.h"
#include "ui/theme/ThemeManager.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QLocale>

namespace {

constexpr QLatin1StringView WeekStartKey{ "ui/weekStartDay" };
constexpr QLatin1StringView WeekStartChosenKey{ "ui/weekStartDay/customized" };
constexpr QLatin1StringView TimeFormatKey{ "ui/timeFormat" };

struct Text {
    Q_DECLARE_TR_FUNCTIONS(PreferencesDialog)
};

}

QComboBox *SettingFields::makeThemeMode(AppState *state)
{
    auto *combo = new QComboBox;
    combo->addItem(Text::tr("Like the system"), QStringLiteral("system"));
    combo->addItem(Text::tr("Light"), QStringLiteral("light"));
    combo->addItem(Text::tr("Dark"), QStringLiteral("dark"));
    ThemeManager *theme = state->theme();
    combo->setEnabled(theme != nullptr);
    if (!theme)
        return combo;
    combo->setCurrentIndex(qMax(0, combo->findData(theme->mode())));
    QObject::connect(combo, &QComboBox::currentIndexChanged, theme,
                     [combo, theme] { theme->setMode(combo->currentData().toString()); });
    return combo;
}

QComboBox *SettingFields::makeWeekStart(AppState *state)
{
    auto *combo = new QComboBox;
    const QLocale locale;
    combo->addItem(Text::tr("Automatic"), 0);
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day)
        combo->addItem(locale.standaloneDayName(day), day);
    PreferencesRepository *preferences = state->preferences();
    combo->setCurrentIndex(qMax(0, combo->findData(preferences->getInt(WeekStartKey, 0))));
    QObject::connect(combo, &QComboBox::activated, preferences, [combo, preferences] {
        // Before the day itself: whoever hears of the day finds it marked as the user's own.
        preferences->setBool(WeekStartChosenKey, true);
        preferences->setInt(WeekStartKey, combo->currentData().toInt());
    });
    return combo;
}

QComboBox *SettingFields::makeTimeFormat(AppState *state)
{
    auto *combo = new QComboBox;
    combo->addItem(Text::tr("12 hours (1:30 PM)"), QStringLiteral("12"));
    combo->addItem(Text::tr("24 hours (13:30)"), QStringLiteral("24"));
    combo->setCurrentIndex(TimeFormat::use24Hour(state) ? 1 : 0);
    QObject::connect(combo, &QComboBox::activated, state,
                     [combo, state] { state->preferences()->set(TimeFormatKey, combo->currentData().toString()); });
    return combo;
}
