#include "calendar/EventExpansion.h"

#include "calendar/CivilDate.h"
#include "calendar/RruleExpander.h"

#include <QHash>

#include <algorithm>
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

struct Window {
    qint64 fromMs;
    qint64 toMs;
};

/// A row, or one occurrence of it, without a copy: records are large.
struct Instance {
    const Event *row;
    const Occurrences *series = nullptr;
    qint64 startMs = 0; // of the occurrence

    [[nodiscard]] qint64 sortKey() const { return series ? startMs : row->startTime.toMSecsSinceEpoch(); }
    [[nodiscard]] bool showsIn(const EventDays::Span &span) const
    {
        if (!series)
            return span.holds(*row);
        if (!row->isAllDay)
            return span.holdsTimed(startMs, startMs + series->durationMs());
        QList<Event> copy;
        appendTo(copy);
        return span.holds(copy.constFirst());
    }
    void appendTo(QList<Event> &events) const
    {
        if (series)
            series->appendAt(startMs, events);
        else
            events.append(*row);
    }
};

class Instances {
public:
    /// \p tight is for series whose occurrences show just where they overlap the window, \p wide for the rest.
    Instances(Rows &&rows, const Window &tight, const Window &wide)
    {
        m_series.reserve(size_t(rows.masters.size())); // so that pointers into it stay valid
        m_all.reserve(size_t(rows.singles.size() + 2 * rows.masters.size() + rows.overrides.size()));
        for (const Event *single : std::as_const(rows.singles))
            m_all.push_back({ single });
        for (const Event *master : std::as_const(rows.masters)) {
            SeriesOverrides *overrides = rows.overridesOf(*master);
            addSeries(*master, overrides, !overrides && isPlain(*master) ? tight : wide);
        }
        for (const Event *row : std::as_const(rows.overrides)) {
            if (rows.isLeftOver(row))
                m_all.push_back({ row });
        }
    }
    Q_DISABLE_COPY_MOVE(Instances)

    [[nodiscard]] const std::vector<Instance> &all() const { return m_all; }

private:
    static bool isPlain(const Event &master)
    {
        return !master.isAllDay && (!master.endTime || *master.endTime >= master.startTime);
    }

    void addSeries(const Event &master, SeriesOverrides *overrides, const Window &window)
    {
        const Occurrences &series = m_series.emplace_back(master, window.fromMs, window.toMs);
        if (series.starts().isEmpty())
            logNothing(master, window);
        for (const qint64 startMs : series.starts()) {
            if (overrides) {
                const auto found = overrides->find(RruleExpander::formatRecurrenceId(startMs));
                if (found != overrides->end()) {
                    found->isUsed = true;
                    m_all.push_back({ found->row });
                    continue;
                }
            }
            m_all.push_back({ &master, &series, startMs });
        }
    }

    static void logNothing(const Event &master, const Window &window)
    {
        const auto text = [](qint64 ms) { return QDateTime::fromMSecsSinceEpoch(ms).toString(Qt::ISODate); };
        qCDebug(lcExpansion) << "master uid=" << master.uid << "title=" << master.title
                             << "rrule=" << master.recurrenceRule
                             << "dtstart=" << master.startTime.toString(Qt::ISODate)
                             << QStringLiteral("→ 0 occurrences in range").toUtf8().constData() << text(window.fromMs)
                             << "..." << text(window.toMs);
    }

    std::vector<Occurrences> m_series;
    std::vector<Instance> m_all;
};

}

QList<Event> EventExpansion::expand(const QList<Event> &events, const QDateTime &from, const QDateTime &to)
{
    Rows rows;
    for (const Event &event : events)
        rows.add(event);
    const Window window{ from.toMSecsSinceEpoch(), to.toMSecsSinceEpoch() };
    const Instances instances(std::move(rows), window, window);
    QList<Event> result;
    result.reserve(static_cast<qsizetype>(instances.all().size()));
    for (const Instance &instance : instances.all())
        instance.appendTo(result);
    return result;
}

QList<Event> EventExpansion::showIn(const EventDays::Span &span, const QList<const Event *> &events)
{
    Rows rows;
    for (const Event *event : events)
        rows.add(*event);
    // All-day dates are at 00:00 UTC, up to 14 hours from the machine's midnight; and what replaces an
    // occurrence may have moved. An instance without length shows where the window begins.
    const Instances instances(std::move(rows), { span.fromMs() - 1, span.toMs() },
                              { span.fromMs() - Civil::MsPerDay, span.toMs() + Civil::MsPerDay });

    std::vector<std::pair<qint64, const Instance *>> order;
    order.reserve(instances.all().size());
    for (const Instance &instance : instances.all()) {
        if (instance.showsIn(span))
            order.emplace_back(instance.sortKey(), &instance);
    }
    std::sort(order.begin(), order.end());
    QList<Event> result;
    result.reserve(static_cast<qsizetype>(order.size()));
    for (const auto &[startMs, instance] : order)
        instance->appendTo(result);
    return result;
}
