#include "calendar/services/TimeFormat.h"

#include "app/state/AppState.h"
#include "storage/PreferencesRepository.h"

#include <QCoreApplication>

namespace {

constexpr QLatin1StringView SettingKey{ "ui/timeFormat" };
constexpr QLatin1StringView Hours12{ "12" };
constexpr QLatin1StringView Hours24{ "24" };

PreferencesRepository *preferencesOf(AppState *state)
{
    return state ? state->preferences() : nullptr;
}

}

bool TimeFormat::use24Hour(AppState *state)
{
    PreferencesRepository *preferences = preferencesOf(state);
    return preferences && preferences->get(SettingKey, Hours12) == Hours24;
}

QString TimeFormat::eventTimeFormatString(AppState *state)
{
    //: A time of day with 24 hours, see the Qt documentation of QTime::toString()
    return use24Hour(state) ? QCoreApplication::translate("TimeFormat", "HH:mm")
                            //: A time of day with 12 hours, see the Qt documentation of QTime::toString()
                            : QCoreApplication::translate("TimeFormat", "h:mm AP");
}

QString TimeFormat::formatTime(AppState *state, const QDateTime &value)
{
    return formatTime(state, value.time());
}

QString TimeFormat::formatTime(AppState *state, QTime value)
{
    return QLocale().toString(value, eventTimeFormatString(state));
}

void TimeFormat::initializeFromLocale(AppState *state, const QLocale &system)
{
    PreferencesRepository *preferences = preferencesOf(state);
    if (!preferences || preferences->get(SettingKey))
        return;
    const QLocale locale = system.language() == QLocale::C ? QLocale() : system;
    const bool hasHalfDays = locale.timeFormat(QLocale::ShortFormat).contains(u"ap", Qt::CaseInsensitive);
    preferences->set(SettingKey, hasHalfDays ? Hours12 : Hours24);
}
