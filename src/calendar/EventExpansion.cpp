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

void logNothing(const Event &master, qint64 fromMs, qint64 toMs)
{
    const auto text = [](qint64 ms) { return QDateTime::fromMSecsSinceEpoch(ms).toString(Qt::ISODate); };
    qCDebug(lcExpansion) << "master uid=" << master.uid << "title=" << master.title << "rrule=" << master.recurrenceRule
                         << "dtstart=" << master.startTime.toString(Qt::ISODate)
                         << QStringLiteral("→ 0 occurrences in range").toUtf8().constData() << text(fromMs) << "..."
                         << text(toMs);
}

void addSeries(Instances &instances, const Event &master, SeriesOverrides *overrides, qint64 fromMs, qint64 toMs)
{
    QList<Occurrence> occurrences = RruleExpander::occurrences(master, fromMs, toMs);
    if (occurrences.isEmpty())
        logNothing(master, fromMs, toMs);
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

Instances instancesOf(Rows &&rows, qint64 fromMs, qint64 toMs)
{
    Instances instances;
    instances.reserve(rows.singles.size() + 2 * rows.masters.size() + rows.overrides.size());
    for (const Event *single : std::as_const(rows.singles))
        instances.push_back({ single, {} });
    for (const Event *master : std::as_const(rows.masters))
        addSeries(instances, *master, rows.overridesOf(*master), fromMs, toMs);
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
    Instances instances = instancesOf(std::move(rows), from.toMSecsSinceEpoch(), to.toMSecsSinceEpoch());
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
    // All-day dates are at 00:00 UTC, up to 14 hours from the machine's midnight.
    Instances instances = instancesOf(std::move(rows), span.fromMs() - Civil::MsPerDay, span.toMs() + Civil::MsPerDay);

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
