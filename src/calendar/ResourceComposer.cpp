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

#include <QHash>

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

/// Names an event of a resource; the same text for the same instant.
QString eventKey(const QString &uid, const QString &recurrenceId)
{
    const std::optional<InstanceName> name = InstanceName::parse(recurrenceId);
    return uidKey(uid) + u'\n' + (name ? QString::number(name->startMs) : recurrenceId);
}

QString eventKey(const Event &event)
{
    return eventKey(event.uid, event.recurrenceId);
}

/// What the row was in the text that it came with, if that is another instance of the same series.
std::optional<Event> formerEvent(const Event &row)
{
    if (row.recurrenceId.isEmpty() || row.rawIcalendar.isEmpty())
        return std::nullopt;
    const QList<Event> stored = ICalParser::parse(row.rawIcalendar);
    const auto former = std::ranges::find_if(stored, [&row](const Event &event) {
        return uidKey(event.uid) == uidKey(row.uid) && !event.recurrenceId.isEmpty();
    });
    return former == stored.end() || eventKey(*former) == eventKey(row) ? std::nullopt : std::optional(*former);
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
            std::optional<Event> event = readEvent(*component);
            if (!event)
                continue;
            const QString key = eventKey(*event);
            if (!m_present.contains(key)) // one that is there twice is left alone
                m_present.insert(key, { .component = component, .event = *std::move(event) });
        }
    }

    void write(const QList<Event> &rows)
    {
        const std::vector<Present *> places = placesOf(rows);
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
            if (const Present *present = claimed(eventKey(row)))
                m_removed.push_back(present->component);
            else
                removeFormer(row);
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

    Present *unclaimed(const QString &key)
    {
        const auto found = m_present.find(key);
        return found == m_present.end() || found->isClaimed ? nullptr : &*found;
    }

    Present *claimed(const QString &key)
    {
        Present *present = unclaimed(key);
        if (present)
            present->isClaimed = true;
        return present;
    }

    /// Another instance may have come to the former name meanwhile: it has to be the same event still.
    void removeFormer(const Event &row)
    {
        const std::optional<Event> former = formerEvent(row);
        const Present *present = former ? unclaimed(eventKey(*former)) : nullptr;
        if (present && present->event.startTime == former->startTime && present->event.title == former->title)
            m_removed.push_back(present->component);
    }

    /// Where each row stands in the text, or null.
    ///
    /// The instances of a series that moved may have each other's former names: the one that has a name of its own now
    /// gives its place away, and so on. Without such a one the text has the new names already.
    std::vector<Present *> placesOf(const QList<Event> &rows)
    {
        std::vector<Present *> places(size_t(rows.size()));
        QStringList formerKeys;
        for (const Event &row : rows) {
            const std::optional<Event> former = formerEvent(row);
            formerKeys.append(former ? eventKey(*former) : QString());
        }
        for (bool isAnyFound = true; isAnyFound;) {
            isAnyFound = false;
            for (qsizetype i = 0; i < rows.size(); ++i) {
                Present *&place = places[size_t(i)];
                if (place || formerKeys[i].isEmpty() || unclaimed(eventKey(rows[i])))
                    continue;
                place = claimed(formerKeys[i]);
                isAnyFound = isAnyFound || place;
            }
        }
        for (qsizetype i = 0; i < rows.size(); ++i) {
            if (!places[size_t(i)])
                places[size_t(i)] = claimed(eventKey(rows[i]));
        }
        return places;
    }

    /// That of an override, as it is written by now; null if it is not in the text.
    const TreeComponent *seriesOf(const Event &row) const
    {
        if (row.recurrenceId.isEmpty())
            return nullptr;
        const QString key = eventKey(row.uid, {});
        const auto present = m_present.constFind(key);
        return present == m_present.cend() ? m_addedSeries.value(key) : present->component;
    }

    void patch(TreeComponent &vevent, const Event &before, const Event &row)
    {
        const TreeComponent *series = seriesOf(row);
        EventPatch::apply(vevent, before, row, series ? EventTimesPatch::startForm(*series) : std::nullopt,
                          m_context.ownAddresses);
    }

    void write(const Event &row, const Present *present)
    {
        if (!present)
            return add(row);
        TreeComponent &vevent = *present->component;
        const std::optional<TimeForm> form = EventTimesPatch::startForm(vevent);
        patch(vevent, present->event, row);
        if (vevent.isChanged())
            ComponentPatch::stamp(vevent, m_context.now, std::max(raised(present->event.sequence), row.sequence));
        if (row.recurrenceId.isEmpty() && form != EventTimesPatch::startForm(vevent))
            renameInstances(row.uid, *EventTimesPatch::startForm(vevent));
    }

    void renameInstances(const QString &uid, const TimeForm &series)
    {
        for (const Present &present : std::as_const(m_present)) {
            if (!present.event.recurrenceId.isEmpty() && uidKey(present.event.uid) == uidKey(uid))
                EventTimesPatch::renameInstance(*present.component, present.event, series);
        }
    }

    void add(const Event &row)
    {
        TreeComponent vevent = started("VEVENT", row.uid, row.created);
        Event before;
        int sequence = row.sequence;
        if (const TreeComponent *series = seriesOf(row)) {
            vevent = instanceOf(*series);
            before = readEvent(vevent).value_or(before);
            // An invitation to one instance must not look older than the one to all.
            sequence = std::max(sequence, before.sequence);
        }
        for (TreeComponent &stored : m_resource.stored(row.rawIcalendar, "VEVENT")) {
            std::optional<Event> event = readEvent(stored);
            if (!event || event->recurrenceId.isEmpty() != row.recurrenceId.isEmpty())
                continue;
            vevent = std::move(stored);
            before = *std::move(event);
            break;
        }
        if (uidOf(vevent) != uidKey(row.uid)) {
            // The tail of a series comes with the text of the whole, which keeps the single dates.
            vevent.setLine("UID:" + ICal::textValue(row.uid));
            vevent.removeLines("RDATE");
        }
        patch(vevent, before, row);
        ComponentPatch::stamp(vevent, m_context.now, std::max(before.sequence, sequence));
        m_added.push_back(std::move(vevent));
        if (row.recurrenceId.isEmpty())
            m_addedSeries.insert(eventKey(row), &m_added.back());
    }

    /// An override stands for itself: all that its series has, but what repeats, has to be said again.
    static TreeComponent instanceOf(const TreeComponent &series)
    {
        TreeComponent instance = series;
        for (const char *name : { "RRULE", "RDATE", "EXDATE", "EXRULE" })
            instance.removeLines(name);
        return instance;
    }

    ResourceText &m_resource;
    const Context &m_context;
    QHash<QString, Present> m_present; // by key
    std::deque<TreeComponent> m_added;
    QHash<QString, const TreeComponent *> m_addedSeries; // by key; in m_added
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
    vtodo.addLine("STATUS:NEEDS-ACTION"); // what a task says of itself without it, to us; others may want it said
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

bool ResourceComposer::isReadable(const QByteArray &text)
{
    return !ResourceText(text).isNew();
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
            ComponentPatch::stamp(*vtodo, context.now, std::max(raised(before->sequence), task.sequence));
        return resource.composed(firstYear(task));
    }
    Task before;
    TreeComponent vtodo = newTask(resource, task, before);
    TaskPatch::apply(vtodo, before, task);
    ComponentPatch::stamp(vtodo, context.now, std::max(before.sequence, task.sequence));
    resource.addComponent(std::move(vtodo));
    return resource.composed(firstYear(task));
}
