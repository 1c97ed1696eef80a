// View state that is kept across runs, and the history of where the user has been.

#include "app/state/AppState.h"

#include "models/Constants.h"
#include "storage/PreferencesRepository.h"
#include "storage/ViewRepository.h"

#include <utility>

namespace {

const QString ActiveViewKey = QStringLiteral("ui/activeViewId");
const QString ViewModeKey = QStringLiteral("ui/viewMode");
const QString ViewDateKey = QStringLiteral("ui/viewDate");
const QString HourHeightKey = QStringLiteral("ui/timelineHourHeight");
const QString WeekHorizonKey = QStringLiteral("ui/weekHorizon");
constexpr int DefaultWeekHorizon = 7;

// "agenda" and "list" were modes of the main area once, and older databases still say so.
QString normalizedMode(const QString &mode)
{
    const bool isGone = mode == QLatin1StringView("agenda") || mode == QLatin1StringView("list");
    return isGone ? QStringLiteral("week") : mode;
}

bool isKnownMode(const QString &mode)
{
    static const QStringList known{ QStringLiteral("day"),  QStringLiteral("week"),  QStringLiteral("days"),
                                    QStringLiteral("grid"), QStringLiteral("month"), QStringLiteral("year") };
    return known.contains(mode);
}

}

void AppState::restoreViewState()
{
    m_activeViewId = m_preferences->get(ActiveViewKey, ViewDefaults::AllCalendarsId);
    const std::optional<ViewDef> stored = m_views->getById(m_activeViewId);
    if (!stored || stored->deletedAt) {
        const QList<ViewDef> views = m_views->getAll();
        m_activeViewId = views.isEmpty() ? QString() : views.constFirst().id;
    }
    watchToday();
    m_currentDate = m_today; // always opens on today; the stored date is for other devices
    const QString storedMode = m_preferences->get(ViewModeKey, QStringLiteral("week"));
    m_viewMode = normalizedMode(storedMode);
    if (m_viewMode != storedMode)
        storeSoon(ViewModeKey, m_viewMode);
    if (!isKnownMode(m_viewMode)) // of a newer version, which finds it again if the user picks no other
        m_viewMode = QStringLiteral("week");
    m_hourHeight = std::clamp(m_preferences->getInt(HourHeightKey, MinHourHeight), MinHourHeight, MaxHourHeight);
    m_weekHorizon =
        std::clamp(m_preferences->getInt(WeekHorizonKey, DefaultWeekHorizon), MinWeekHorizon, MaxWeekHorizon);
}

void AppState::setActiveViewId(const QString &id)
{
    if (id == m_activeViewId)
        return;
    m_activeViewId = id;
    storeSoon(ActiveViewKey, id);
    emit activeViewChanged(id);
}

void AppState::setHourHeight(int pixels)
{
    const int bounded = std::clamp(pixels, MinHourHeight, MaxHourHeight);
    if (bounded == m_hourHeight)
        return;
    m_hourHeight = bounded;
    storeSoon(HourHeightKey, QString::number(bounded));
    emit hourHeightChanged(bounded);
}

void AppState::setCurrentDate(QDate date)
{
    if (!date.isValid() || date == m_currentDate)
        return;
    recordNavigation();
    m_currentDate = date;
    storeSoon(ViewDateKey, date.toString(Qt::ISODate));
    emit currentDateChanged(date);
}

void AppState::setViewMode(const QString &mode)
{
    const QString wanted = normalizedMode(mode);
    if (wanted == m_viewMode)
        return;
    recordNavigation();
    replaceViewMode(wanted);
}

void AppState::replaceViewMode(const QString &mode)
{
    const QString wanted = normalizedMode(mode);
    if (wanted == m_viewMode)
        return;
    m_viewMode = wanted;
    storeSoon(ViewModeKey, wanted);
    emit viewModeChanged(wanted);
}

void AppState::setWeekHorizon(int days)
{
    const int bounded = std::clamp(days, MinWeekHorizon, MaxWeekHorizon);
    if (bounded == m_weekHorizon)
        return;
    recordNavigation();
    m_weekHorizon = bounded;
    storeSoon(WeekHorizonKey, QString::number(bounded));
    emit weekHorizonChanged(bounded);
}

void AppState::setViewModeAndDate(const QString &mode, QDate date)
{
    const QString wanted = normalizedMode(mode);
    const bool moves = date.isValid() && date != m_currentDate;
    if (wanted == m_viewMode && !moves)
        return;
    recordNavigation();
    const bool wasRestoring = std::exchange(m_restoringNav, true);
    setCurrentDate(date);
    setViewMode(wanted);
    m_restoringNav = wasRestoring;
}

void AppState::navigateBack()
{
    if (m_backHistory.isEmpty())
        return;
    m_forwardHistory.append({ m_viewMode, m_currentDate, m_weekHorizon });
    applyNavigation(m_backHistory.takeLast());
}

void AppState::navigateForward()
{
    if (m_forwardHistory.isEmpty())
        return;
    m_backHistory.append({ m_viewMode, m_currentDate, m_weekHorizon });
    applyNavigation(m_forwardHistory.takeLast());
}

void AppState::recordNavigation()
{
    if (m_restoringNav)
        return;
    m_backHistory.append({ m_viewMode, m_currentDate, m_weekHorizon });
    m_forwardHistory.clear();
}

void AppState::applyNavigation(const NavState &target)
{
    m_restoringNav = true;
    setViewMode(target.viewMode);
    setCurrentDate(target.date);
    setWeekHorizon(target.weekHorizon);
    m_restoringNav = false;
}
