#include "calendar/EventExpansion.h"

#include "calendar/RruleExpander.h"

#include <QHash>

#include <utility>
#include <vector>

Q_LOGGING_CATEGORY(lcExpansion, "calendar.expansion", QtInfoMsg)

namespace {

using RruleExpander::Occurrences;

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

    explicit Rows(const QList<Event> &events)
    {
        for (const Event &event : events) {
            if (event.isOverride()) {
                overrides.append(&event);
                overridesBySeries[{ event.calendarId, event.masterEventUid }].insert(event.recurrenceId, { &event });
            } else {
                (event.isRecurring() ? masters : singles).append(&event);
            }
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

void appendInstances(QList<Event> &result, const Occurrences &occurrences, SeriesOverrides *overrides)
{
    for (const qint64 startMs : occurrences.starts()) {
        if (overrides) {
            const auto found = overrides->find(RruleExpander::formatRecurrenceId(startMs));
            if (found != overrides->end()) {
                found->isUsed = true;
                result.append(*found->row);
                continue;
            }
        }
        occurrences.appendAt(startMs, result);
    }
}

void logNothing(const Event &master, const QDateTime &from, const QDateTime &to)
{
    qCDebug(lcExpansion) << "master uid=" << master.uid << "title=" << master.title << "rrule=" << master.recurrenceRule
                         << "dtstart=" << master.startTime.toString(Qt::ISODate)
                         << QStringLiteral("→ 0 occurrences in range").toUtf8().constData()
                         << from.toString(Qt::ISODate) << "..." << to.toString(Qt::ISODate);
}

}

QList<Event> EventExpansion::expand(const QList<Event> &events, const QDateTime &from, const QDateTime &to)
{
    Rows rows(events);
    const qint64 fromMs = from.toMSecsSinceEpoch();
    const qint64 toMs = to.toMSecsSinceEpoch();

    // Records are large: counting first spares moving them when the list grows.
    std::vector<Occurrences> occurrences;
    occurrences.reserve(size_t(rows.masters.size()));
    qsizetype total = rows.singles.size() + rows.overrides.size();
    for (const Event *master : std::as_const(rows.masters)) {
        const Occurrences &found = occurrences.emplace_back(*master, fromMs, toMs);
        total += found.starts().size();
        if (found.starts().isEmpty())
            logNothing(*master, from, to);
    }

    QList<Event> result;
    result.reserve(total);
    for (const Event *single : std::as_const(rows.singles))
        result.append(*single);
    for (qsizetype i = 0; i < rows.masters.size(); ++i)
        appendInstances(result, occurrences[size_t(i)], rows.overridesOf(*rows.masters.at(i)));
    for (const Event *row : std::as_const(rows.overrides)) {
        if (rows.isLeftOver(row))
            result.append(*row);
    }
    return result;
}
