#include "SyncBench.h"

#include "Heart.h"
#include "app/state/AppState.h"
#include "caldav/CalDavSyncClient.h"
#include "models/Account.h"
#include "models/Calendar.h"
#include "models/Constants.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/Database.h"
#include "storage/EventRepository.h"
#include "storage/Statement.h"

#include <sys/resource.h>

#include <cstdio>

namespace {

const QString calendarId = QStringLiteral("bench-calendar");

double cpuMs()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto ms = [](const timeval &time) { return double(time.tv_sec) * 1000 + double(time.tv_usec) / 1000; };
    return ms(usage.ru_utime) + ms(usage.ru_stime);
}

double peakMiB()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_maxrss) / 1024;
}

int rowsWritten(Database *database)
{
    Statement statement(database, QStringLiteral("SELECT total_changes()"));
    return statement.run("Reading failed:") && statement.next() ? statement.value(0).toInt() : -1;
}

void addCalendar(AppState *state, const QString &url, const QString &username)
{
    if (state->calendars()->getById(calendarId))
        return;
    Account account;
    account.id = QStringLiteral("bench-account");
    account.name = QStringLiteral("Bench");
    account.type = AccountType::CalDAV;
    account.serverUrl = url;
    account.username = username;
    state->accounts()->insert(account);
    Calendar calendar;
    calendar.id = calendarId;
    calendar.accountId = account.id;
    calendar.url = url;
    calendar.name = QStringLiteral("Bench");
    calendar.supportedComponents = QStringLiteral("[\"VEVENT\",\"VTODO\"]");
    state->calendars()->insert(calendar);
}

void editOne(AppState *state)
{
    QList<Event> events = state->events()->getByCalendar(calendarId);
    if (events.isEmpty())
        return;
    Event event = events.first();
    event.title += QStringLiteral(" (edited)");
    event.syncStatus = SyncStatus::Pending;
    state->events()->update(event);
}

}

bool SyncBench::run(const QStringList &arguments)
{
    AppState state;
    if (arguments.size() < 4 || !state.openStorage(arguments[0]))
        return false;
    addCalendar(&state, arguments[1], arguments[2]);
    longestHoldUntil([&state] { return state.events()->isWarm(); });
    if (arguments.value(4) == u"edit")
        editOne(&state);

    CalDavSyncClient client(&state);
    bool hasEnded = false;
    int count = -1;
    QObject::connect(&client, &CalDavSyncClient::calendarSyncCompleted, &client,
                     [&count](const QString &, int completed) { count = completed; });
    QObject::connect(&client, &CalDavSyncClient::calendarSyncEnded, &client, [&hasEnded] { hasEnded = true; });
    const int writtenBefore = rowsWritten(state.database());
    const double cpuBefore = cpuMs();
    const Report::Stopwatch clock;
    client.syncCalendar(*state.calendars()->getById(calendarId), {}, arguments[2], arguments[3], {});
    // Most of the time is the server's: the beat must not burn it.
    constexpr int beatMs = 5;
    const double holdMs = longestHoldUntil([&hasEnded] { return hasEnded; }, beatMs);
    std::printf("{\"wallMs\": %.1f, \"cpuMs\": %.1f, \"holdMs\": %.1f, \"peakMiB\": %.1f, \"rows\": %d, \"count\": %d}\n",
                clock.elapsedMs(), cpuMs() - cpuBefore, holdMs, peakMiB(),
                rowsWritten(state.database()) - writtenBefore, count);
    return count >= 0;
}
