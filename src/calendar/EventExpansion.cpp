#include "calendar/EventExpansion.h"

#include "calendar/CivilDate.h"
#include "calendar/RruleExpander.h"

#include <QHash>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

Q_LOGGING_CATEGORY(lcExpansion, "calendar.expansion", QtInfoMsg)

namespace {

using RruleExpander::Occurrence;

/// The overrides of one series by recurrence id. Of several with one id the last counts.
struct Override {
    const Event *row = nullptr;
    bool isUsed = false;
};
using SeriesOverrides = QHash<QString, Override>;
using SeriesKey = std::pair<QString, QString>; // calendar and UID

struct Rows {
    QList<const Event *> singles;
    QList<const Event *> masters;
    QList<const Event *> overrides;
    QHash<SeriesKey, SeriesOverrides> overridesBySeries;

    void add(const Event &event)
    {
        if (event.isOverride()) {
            overrides.append(&event);
            overridesBySeries[{ event.calendarId, event.masterEventUid }].insert(event.recurrenceId, { &event });
        } else {
            (event.isRecurring() ? masters : singles).append(&event);
        }
    }

    SeriesOverrides *overridesOf(const Event &master)
    {
        if (overridesBySeries.isEmpty())
            return nullptr;
        const auto series = overridesBySeries.find({ master.calendarId, master.uid });
        return series == overridesBySeries.end() ? nullptr : &*series;
    }

    [[nodiscard]] bool isLeftOver(const Event *row) const
    {
        const auto series = overridesBySeries.constFind({ row->calendarId, row->masterEventUid });
        const Override entry = series->value(row->recurrenceId);
        return entry.row == row && !entry.isUsed && row->status != EventStatus::Cancelled;
    }
};

/// A row, or one occurrence of it, without a copy: records are large.
struct Instance {
    const Event *row;
    std::optional<Occurrence> occurrence;

    [[nodiscard]] const QDateTime &start() const { return occurrence ? occurrence->start : row->startTime; }
    [[nodiscard]] bool showsIn(const EventDays::Span &span) const
    {
        return occurrence ? span.holds(occurrence->start, occurrence->end, row->isAllDay) : span.holds(*row);
    }
    void appendTo(QList<Event> &events) &&
    {
        if (occurrence)
            RruleExpander::appendInstance(events, *row, std::move(*occurrence));
        else
            events.append(*row);
    }
};
using Instances = std::vector<Instance>;

struct Window {
    qint64 fromMs;
    qint64 toMs;
};

void logNothing(const Event &master, const Window &window)
{
    const auto text = [](qint64 ms) { return QDateTime::fromMSecsSinceEpoch(ms).toString(Qt::ISODate); };
    qCDebug(lcExpansion) << "master uid=" << master.uid << "title=" << master.title << "rrule=" << master.recurrenceRule
                         << "dtstart=" << master.startTime.toString(Qt::ISODate)
                         << QStringLiteral("→ 0 occurrences in range").toUtf8().constData() << text(window.fromMs)
                         << "..." << text(window.toMs);
}

void addSeries(Instances &instances, const Event &master, SeriesOverrides *overrides, const Window &window)
{
    QList<Occurrence> occurrences = RruleExpander::occurrences(master, window.fromMs, window.toMs);
    if (occurrences.isEmpty())
        logNothing(master, window);
    for (Occurrence &occurrence : occurrences) {
        if (overrides) {
            const auto found = overrides->find(occurrence.recurrenceId);
            if (found != overrides->end()) {
                found->isUsed = true;
                instances.push_back({ found->row, {} });
                continue;
            }
        }
        instances.push_back({ &master, std::move(occurrence) });
    }
}

/// \p tight is for series whose occurrences show just where they overlap the window, \p wide for the rest.
Instances instancesOf(Rows &&rows, const Window &tight, const Window &wide)
{
    const auto isPlain = [](const Event &master) {
        return !master.isAllDay && (!master.endTime || *master.endTime >= master.startTime);
    };
    Instances instances;
    instances.reserve(rows.singles.size() + 2 * rows.masters.size() + rows.overrides.size());
    for (const Event *single : std::as_const(rows.singles))
        instances.push_back({ single, {} });
    for (const Event *master : std::as_const(rows.masters)) {
        SeriesOverrides *overrides = rows.overridesOf(*master);
        addSeries(instances, *master, overrides, !overrides && isPlain(*master) ? tight : wide);
    }
    for (const Event *row : std::as_const(rows.overrides)) {
        if (rows.isLeftOver(row))
            instances.push_back({ row, {} });
    }
    return instances;
}

}

QList<Event> EventExpansion::expand(const QList<Event> &events, const QDateTime &from, const QDateTime &to)
{
    Rows rows;
    for (const Event &event : events)
        rows.add(event);
    const Window window{ from.toMSecsSinceEpoch(), to.toMSecsSinceEpoch() };
    Instances instances = instancesOf(std::move(rows), window, window);
    QList<Event> result;
    result.reserve(static_cast<qsizetype>(instances.size()));
    for (Instance &instance : instances)
        std::move(instance).appendTo(result);
    return result;
}

QList<Event> EventExpansion::showIn(const EventDays::Span &span, const QList<const Event *> &events)
{
    Rows rows;
    for (const Event *event : events)
        rows.add(*event);
    // All-day dates are at 00:00 UTC, up to 14 hours from the machine's midnight; and what replaces an
    // occurrence may have moved. An instance without length shows where the window begins.
    Instances instances = instancesOf(std::move(rows), { span.fromMs() - 1, span.toMs() },
                                      { span.fromMs() - Civil::MsPerDay, span.toMs() + Civil::MsPerDay });

    std::vector<std::pair<qint64, Instance *>> order;
    order.reserve(instances.size());
    for (Instance &instance : instances) {
        if (instance.showsIn(span))
            order.emplace_back(instance.start().toMSecsSinceEpoch(), &instance);
    }
    std::sort(order.begin(), order.end());
    QList<Event> result;
    result.reserve(static_cast<qsizetype>(order.size()));
    for (const auto &[startMs, instance] : order)
        std::move(*instance).appendTo(result);
    return result;
}
