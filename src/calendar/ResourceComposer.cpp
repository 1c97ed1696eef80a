#include "calendar/ResourceComposer.h"

#include "calendar/ComponentPatch.h"
#include "calendar/EventPatch.h"
#include "calendar/EventTimesPatch.h"
#include "calendar/ICalLineText.h"
#include "calendar/ICalParser.h"
#include "calendar/ICalTexts.h"
#include "calendar/InstanceName.h"
#include "calendar/ResourceText.h"
#include "calendar/TaskPatch.h"

#include <algorithm>
#include <deque>
#include <limits>

using ICal::TreeComponent;
using ICal::TreeLine;
using ResourceComposer::Composed;
using ResourceComposer::Context;

namespace {

/// An id as it reads back.
QString uidKey(const QString &uid)
{
    return ICal::unescapedText(ICal::textValue(uid));
}

/// The same text for the same instant; empty for what is no instance of a series.
QString instanceKey(const QString &recurrenceId)
{
    const std::optional<InstanceName> name = InstanceName::parse(recurrenceId);
    return name ? QString::number(name->startMs) : recurrenceId;
}

bool isSameEvent(const Event &a, const Event &b)
{
    return uidKey(a.uid) == uidKey(b.uid) && instanceKey(a.recurrenceId) == instanceKey(b.recurrenceId);
}

std::optional<Event> readEvent(const TreeComponent &vevent)
{
    QList<Event> events = ICalParser::parse(vevent.bytes());
    return events.isEmpty() ? std::nullopt : std::optional(std::move(events.first()));
}

/// Nothing for an override.
std::optional<Task> readTask(const TreeComponent &vtodo)
{
    QList<Task> tasks = ICalParser::parseTasks(vtodo.bytes());
    return tasks.isEmpty() ? std::nullopt : std::optional(std::move(tasks.first()));
}

int raised(int sequence)
{
    return sequence < std::numeric_limits<int>::max() ? sequence + 1 : sequence;
}

QString uidOf(const TreeComponent &component)
{
    const TreeLine *line = component.lastLine("UID");
    return line ? ICal::unescapedText(line->content().value()) : QString();
}

TreeComponent started(QByteArrayView name, const QString &uid, const QDateTime &created)
{
    TreeComponent component(name);
    component.addLine("UID:" + ICal::textValue(uid));
    if (created.isValid())
        component.addLine(TimeForm(TimeForm::Kind::Utc).line("CREATED", created));
    return component;
}

/// Patches the events of one resource.
class EventComposer {
public:
    EventComposer(ResourceText &resource, const Context &context)
        : m_resource(resource)
        , m_context(context)
    {
        for (TreeComponent *component : resource.components("VEVENT")) {
            if (std::optional<Event> event = readEvent(*component))
                m_present.push_back({ .component = component, .event = *std::move(event) });
        }
    }

    void write(const QList<Event> &rows)
    {
        std::vector<Present *> places;
        for (const Event &row : rows)
            places.push_back(claimed(findFormer(row)));
        for (qsizetype i = 0; i < rows.size(); ++i) {
            if (!places[size_t(i)])
                places[size_t(i)] = claimed(find(rows[i]));
        }
        // Overrides name their instance in the form in which their series begins.
        for (const bool isOverride : { false, true }) {
            for (qsizetype i = 0; i < rows.size(); ++i) {
                if (rows[i].recurrenceId.isEmpty() != isOverride)
                    write(rows[i], places[size_t(i)]);
            }
        }
    }

    /// Takes out \p rows. Nothing can be written after this.
    void finish(const QList<Event> &rows)
    {
        for (const Event &row : rows) {
            Present *former = findFormer(row);
            if (const Present *present = claimed(former ? former : find(row)))
                m_removed.push_back(present->component);
        }
        m_resource.removeComponents(m_removed);
        for (TreeComponent &added : m_added)
            m_resource.addComponent(std::move(added));
    }

private:
    struct Present {
        TreeComponent *component;
        Event event; // as it read before
        bool isClaimed = false;
    };

    static Present *claimed(Present *present)
    {
        if (present)
            present->isClaimed = true;
        return present;
    }

    Present *find(const Event &event)
    {
        const auto found = std::ranges::find_if(m_present, [&event](const Present &present) {
            return !present.isClaimed && isSameEvent(present.event, event);
        });
        return found == m_present.end() ? nullptr : &*found;
    }

    /// An instance that went elsewhere with its series still has its former name in the text that it came with.
    Present *findFormer(const Event &row)
    {
        if (row.recurrenceId.isEmpty())
            return nullptr;
        const QList<Event> stored = ICalParser::parse(row.rawIcalendar);
        const auto former = std::ranges::find_if(stored, [&row](const Event &event) {
            return uidKey(event.uid) == uidKey(row.uid) && !event.recurrenceId.isEmpty();
        });
        return former == stored.end() ? nullptr : find(*former);
    }

    [[nodiscard]] const TreeComponent *seriesOf(const Event &row) const
    {
        const auto isSeries = [&row](const TreeComponent &component) {
            return !component.lastLine("RECURRENCE-ID") && uidOf(component) == uidKey(row.uid);
        };
        for (const Present &present : m_present) {
            if (isSeries(*present.component))
                return present.component;
        }
        const auto added = std::ranges::find_if(m_added, isSeries);
        return added == m_added.end() ? nullptr : &*added;
    }

    void patch(TreeComponent &vevent, const Event &before, const Event &row) const
    {
        const TreeComponent *series = row.recurrenceId.isEmpty() ? nullptr : seriesOf(row);
        EventPatch::apply(vevent, before, row, series ? EventTimesPatch::startForm(*series) : std::nullopt,
                          m_context.ownAddresses);
    }

    void write(const Event &row, const Present *present)
    {
        if (!present)
            return add(row);
        // An instance that was renamed takes the place of one that has not been.
        if (const Present *displaced = isSameEvent(present->event, row) ? nullptr : claimed(find(row)))
            m_removed.push_back(displaced->component);
        TreeComponent &vevent = *present->component;
        patch(vevent, present->event, row);
        if (vevent.isChanged())
            ComponentPatch::stamp(vevent, m_context.now, raised(std::max(present->event.sequence, row.sequence)));
    }

    void add(const Event &row)
    {
        TreeComponent vevent = started("VEVENT", row.uid, row.created);
        Event before;
        int sequence = row.sequence;
        for (TreeComponent &stored : m_resource.stored(row.rawIcalendar, "VEVENT")) {
            std::optional<Event> event = readEvent(stored);
            if (!event || !isSameEvent(*event, row))
                continue;
            vevent = std::move(stored);
            before = *std::move(event);
            break;
        }
        if (const TreeComponent *series = row.recurrenceId.isEmpty() ? nullptr : seriesOf(row)) {
            takeOver(vevent, *series);
            // An invitation to one instance must not look older than the one to all.
            const TreeLine *line = series->lastLine("SEQUENCE");
            sequence = std::max(sequence, line ? line->content().value().toInt() : 0);
        }
        patch(vevent, before, row);
        ComponentPatch::stamp(vevent, m_context.now, std::max(before.sequence, sequence));
        m_added.push_back(std::move(vevent));
    }

    /// An override stands for itself: what hides its series, or keeps it free of busy times, has to be said again.
    static void takeOver(TreeComponent &vevent, const TreeComponent &series)
    {
        for (const char *name : { "CLASS", "TRANSP" }) {
            if (const TreeLine *line = series.lastLine(name); line && !vevent.lastLine(name))
                vevent.addLine(line->text());
        }
    }

    ResourceText &m_resource;
    const Context &m_context;
    std::vector<Present> m_present;
    std::deque<TreeComponent> m_added;
    std::vector<const TreeComponent *> m_removed;
};

/// That of the first of \p times by any clock.
int firstYear(const std::vector<QDateTime> &times)
{
    int year = std::numeric_limits<int>::max();
    for (const QDateTime &time : times) {
        if (time.isValid())
            year = std::min(year, time.addDays(-1).date().year());
    }
    return year;
}

int firstYear(const Task &task)
{
    return firstYear({ task.startDate.value_or(QDateTime()), task.dueDate.value_or(QDateTime()) });
}

TreeComponent newTask(ResourceText &resource, const Task &task, Task &before)
{
    TreeComponent vtodo = started("VTODO", task.uid, task.created);
    for (TreeComponent &stored : resource.stored(task.rawIcalendar, "VTODO")) {
        if (uidOf(stored) != uidKey(task.uid))
            continue;
        if (std::optional<Task> read = readTask(stored)) {
            vtodo = std::move(stored);
            before = *std::move(read);
        } else if (resource.isNew()) {
            resource.addComponent(std::move(stored)); // an override
        }
    }
    return vtodo;
}

}

Composed ResourceComposer::composeEvents(const QByteArray &newest, const QList<Event> &changed,
                                         const QList<Event> &removed, const Context &context)
{
    ResourceText resource(newest);
    EventComposer composer(resource, context);
    composer.write(changed);
    composer.finish(removed);
    std::vector<QDateTime> starts;
    for (const Event &row : changed)
        starts.push_back(row.startTime);
    return resource.composed(firstYear(starts));
}

Composed ResourceComposer::composeTask(const QByteArray &newest, const Task &task, const Context &context)
{
    ResourceText resource(newest);
    for (TreeComponent *vtodo : resource.components("VTODO")) {
        const std::optional<Task> before = readTask(*vtodo);
        if (!before || uidKey(before->uid) != uidKey(task.uid))
            continue;
        TaskPatch::apply(*vtodo, *before, task);
        if (vtodo->isChanged())
            ComponentPatch::stamp(*vtodo, context.now, raised(std::max(before->sequence, task.sequence)));
        return resource.composed(firstYear(task));
    }
    Task before;
    TreeComponent vtodo = newTask(resource, task, before);
    TaskPatch::apply(vtodo, before, task);
    ComponentPatch::stamp(vtodo, context.now, std::max(before.sequence, task.sequence));
    resource.addComponent(std::move(vtodo));
    return resource.composed(firstYear(task));
}
