#include "calendar/services/VisibleEvents.h"

#include "app/state/AppState.h"
#include "calendar/EventDays.h"
#include "calendar/EventExpansion.h"
#include "calendar/FilterEngine.h"
#include "storage/CalendarRepository.h"
#include "storage/Database.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "storage/ViewRepository.h"

#include <QTimeZone>

#include <utility>

namespace {

// A few surfaces, the statistics and the mini month, each with the spans around it; long ones count more.
constexpr int KeptSpans = 24;
constexpr qsizetype EventsPerCost = 5'000;
// The repository compares digits. Zones run from UTC-12 to UTC+14, so the digits of one instant can be
// 26 hours apart.
constexpr int QueryPadDays = 2;

QList<Event> instancesIn(AppState *state, QDate first, int days)
{
    const QStringList calendarIds = VisibleEvents::calendarIds(state);
    if (calendarIds.isEmpty())
        return {};
    const QDateTime from = first.addDays(-QueryPadDays).startOfDay();
    const QDateTime to = first.addDays(days + QueryPadDays).startOfDay();
    const EventSelection selection = state->events()->select(from, to, calendarIds);
    return EventExpansion::showIn(EventDays::Span(first, days), selection.rows);
}

}

VisibleEvents::VisibleEvents(AppState *state, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_spans(KeptSpans)
{
}

QStringList VisibleEvents::calendarIds(AppState *state)
{
    const QList<Calendar> calendars = state->calendars()->getAll();
    QStringList ids;
    const std::optional<ViewDef> group = state->views()->getById(state->activeViewId());
    if (group && !group->deletedAt) {
        const QSet<QString> listed = FilterEngine::parseCalendarIds(group->calendarIds);
        for (const Calendar &calendar : calendars) {
            if (listed.contains(calendar.id))
                ids.append(calendar.id);
        }
    }
    if (!ids.isEmpty())
        return ids;
    for (const Calendar &calendar : calendars) {
        if (calendar.isVisible)
            ids.append(calendar.id);
    }
    return ids;
}

QSharedPointer<const VisibleSpan> VisibleEvents::inRange(QDate first, int days)
{
    dropStale();
    const QString key = spanKey(first, days);
    if (const QSharedPointer<const VisibleSpan> *kept = m_spans.object(key))
        return *kept;
    QList<Event> events = m_unfilteredKey == key ? m_unfiltered : instancesIn(m_state, first, days);
    FilterEngine::FilterResult filtered = FilterEngine::apply(std::move(events), m_state->filterRules()->getEnabled());
    auto span = QSharedPointer<VisibleSpan>::create();
    span->events = std::move(filtered.events);
    span->dimmedIds = std::move(filtered.dimmedIds);
    span->hiddenCount = filtered.hiddenCount;
    const QList<Calendar> calendars = m_state->calendars()->getAll();
    for (const Calendar &calendar : calendars)
        span->calendarColors.insert(calendar.id, calendar.color);
    m_spans.insert(key, new QSharedPointer<const VisibleSpan>(span), 1 + span->events.size() / EventsPerCost);
    return span;
}

QList<Event> VisibleEvents::unfilteredInRange(QDate first, int days)
{
    dropStale();
    const QString key = spanKey(first, days);
    if (m_unfilteredKey != key) {
        m_unfiltered = instancesIn(m_state, first, days);
        m_unfilteredKey = key;
    }
    return m_unfiltered;
}

void VisibleEvents::dropStale()
{
    const quint64 generation = m_state->database()->dataGeneration();
    const QByteArray zoneId = QTimeZone::systemTimeZoneId();
    if (generation == m_generation && zoneId == m_zoneId)
        return;
    m_generation = generation;
    m_zoneId = zoneId;
    m_spans.clear();
    m_unfilteredKey.clear();
    m_unfiltered.clear();
}

QString VisibleEvents::spanKey(QDate first, int days) const
{
    return QStringLiteral("%1/%2/%3").arg(first.toJulianDay()).arg(days).arg(m_state->activeViewId());
}
