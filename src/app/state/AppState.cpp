#include "app/state/AppState.h"

#include "app/state/FirstDayOfWeek.h"
#include "app/state/UndoStack.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRemovals.h"
#include "storage/CalendarRepository.h"
#include "storage/Database.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/Savepoint.h"
#include "storage/TaskRepository.h"
#include "storage/TemplateRepository.h"
#include "storage/ViewRepository.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTimer>

#include <utility>

namespace {

constexpr int StoreDelayMs = 500;
constexpr int SyncDelayMs = 2000;

const QString WeekStartDayKey = QStringLiteral("ui/weekStartDay");
const QString WorkdayStartKey = QStringLiteral("ui/workdayStart");
const QString WorkdayEndKey = QStringLiteral("ui/workdayEnd");

QString densityKey(const QString &view)
{
    return QStringLiteral("ui/density/") + view;
}

}

AppState::AppState(QObject *parent)
    : QObject(parent)
    , m_storeTimer(new QTimer(this))
    , m_todayTimer(new QTimer(this))
    , m_undoStack(new UndoStack(this))
{
    m_storeTimer->setSingleShot(true);
    m_storeTimer->setInterval(StoreDelayMs);
    connect(m_storeTimer, &QTimer::timeout, this, &AppState::flushViewState);
    m_todayTimer->setSingleShot(true);
    connect(m_todayTimer, &QTimer::timeout, this, [this] { checkToday(); });
    if (QCoreApplication *application = QCoreApplication::instance())
        connect(application, &QCoreApplication::aboutToQuit, this, &AppState::flushViewState);
}

AppState::~AppState()
{
    flushViewState();
    // Repositories hold prepared statements, so they go before the database that was made before them.
    while (!children().isEmpty())
        delete children().constLast();
}

bool AppState::openStorage(const QString &databasePath)
{
    m_database = new Database(this);
    qInfo() << "[AppState] Opening database at:" << databasePath;
    if (!m_database->open(databasePath) || !m_database->runMigrations())
        return false;

    m_preferences = new PreferencesRepository(m_database, this);
    connect(m_preferences, &PreferencesRepository::changed, this, &AppState::onPreferenceChanged);
    m_accounts = new AccountRepository(m_database, this);
    m_calendars = new CalendarRepository(m_database, this);
    m_events = new EventRepository(m_database, this);
    m_tasks = new TaskRepository(m_database, this);

    m_syncDebounce = new QTimer(this);
    m_syncDebounce->setSingleShot(true);
    m_syncDebounce->setInterval(SyncDelayMs);
    connect(m_syncDebounce, &QTimer::timeout, this, &AppState::requestSyncOfEdits);
    const auto onChanged = [this](const QString &, ChangeOrigin origin) {
        if (origin == ChangeOrigin::User)
            m_syncDebounce->start();
    };
    connect(m_events, &EventRepository::eventsChanged, this, onChanged);
    connect(m_tasks, &TaskRepository::tasksChanged, this, onChanged);

    m_views = new ViewRepository(m_database, this);
    m_filterRules = new FilterRuleRepository(m_database, this);
    m_templates = new TemplateRepository(m_database, this);

    // Before anything asks which calendars there are: those of a removed account must not count.
    m_database->removals()->resume();
    if (const int finished = m_accounts->finishInterruptedRemovals(); finished > 0)
        qInfo() << "[AppState] finished" << finished << "interrupted account removal(s)";
    m_events->warmUp();
    return true;
}

void AppState::onPreferenceChanged(const QString &key)
{
    if (key == WeekStartDayKey)
        emit firstDayOfWeekChanged(firstDayOfWeek());
    else if (key == WorkdayStartKey || key == WorkdayEndKey)
        emit workdayHoursChanged(m_preferences->getInt(WorkdayStartKey, 8), m_preferences->getInt(WorkdayEndKey, 18));
}

void AppState::setSelectedEventId(const QString &id)
{
    setSelectedOccurrence(id, {});
}

void AppState::setSelectedOccurrence(const QString &id, const QDateTime &occurrenceStart)
{
    if (id == m_selectedEventId && occurrenceStart == m_selectedOccurrence)
        return;
    m_selectedEventId = id;
    m_selectedOccurrence = occurrenceStart;
    emit selectedEventChanged(id);
}

void AppState::setFilterHiddenCount(int count)
{
    if (count == m_filterHiddenCount)
        return;
    m_filterHiddenCount = count;
    emit filterHiddenCountChanged(count);
}

QString AppState::densityFor(const QString &view) const
{
    const QString comfortable = QStringLiteral("comfortable");
    return m_preferences ? m_preferences->get(densityKey(view), comfortable) : comfortable;
}

void AppState::setDensityFor(const QString &view, const QString &density)
{
    const QString wanted =
        density == QLatin1StringView("compact") ? QStringLiteral("compact") : QStringLiteral("comfortable");
    if (!m_preferences || wanted == densityFor(view))
        return;
    m_preferences->set(densityKey(view), wanted);
    emit densityChanged(view, wanted);
}

bool AppState::isCompact(const QString &view) const
{
    return densityFor(view) == QLatin1StringView("compact");
}

Qt::DayOfWeek AppState::firstDayOfWeek() const
{
    const int chosen = m_preferences ? m_preferences->getInt(WeekStartDayKey, 0) : 0;
    if (chosen >= Qt::Monday && chosen <= Qt::Sunday)
        return static_cast<Qt::DayOfWeek>(chosen);
    return FirstDayOfWeek::ofTerritory(QLocale::system().territory());
}

QDate AppState::weekStart(QDate date) const
{
    return date.addDays(-((date.dayOfWeek() - firstDayOfWeek() + 7) % 7));
}

void AppState::storeSoon(const QString &key, const QString &value)
{
    m_toStore.insert(key, value);
    m_storeTimer->start();
}

void AppState::flushViewState()
{
    m_storeTimer->stop();
    if (!m_preferences || m_toStore.isEmpty())
        return;
    const QHash<QString, QString> values = std::exchange(m_toStore, {});
    Savepoint savepoint(m_database);
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        m_preferences->set(it.key(), it.value());
    savepoint.commit();
}

void AppState::watchToday()
{
    m_today = QDate::currentDate();
    checkToday();
}

void AppState::checkToday(const QDateTime &now)
{
    // Never more than a minute ahead: timers stand still while the machine sleeps, and the clock may be set.
    constexpr qint64 longestMs = 60'000;
    const qint64 toMidnightMs = now.msecsTo(now.date().addDays(1).startOfDay());
    m_todayTimer->start(static_cast<int>(std::clamp<qint64>(toMidnightMs + 20, 20, longestMs)));
    if (now.date() == m_today)
        return;
    m_today = now.date();
    emit todayChanged(m_today);
}
