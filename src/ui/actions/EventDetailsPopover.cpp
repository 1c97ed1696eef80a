#include "ui/actions/EventDetailsPopover.h"

#include "app/state/AppState.h"
#include "calendar/DescriptionFormat.h"
#include "calendar/RruleFormat.h"
#include "calendar/RuleEnd.h"
#include "calendar/services/EventEdits.h"
#include "calendar/services/EventText.h"
#include "calendar/services/TimeFormat.h"
#include "models/Constants.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/TaskRepository.h"
#include "ui/actions/DetailGlyphs.h"
#include "ui/theme/Theme.h"

#include <QPushButton>
#include <QRegularExpression>
#include <QUrl>
#include <QUrlQuery>

namespace {

constexpr int MaxPeople = 50; // of a large meeting; the form lists all

/// The first link in a place: many people paste that of a video call there.
QString linkIn(const QString &text)
{
    static const QRegularExpression link(QStringLiteral("https?://[^\\s<>\"]+"),
                                         QRegularExpression::CaseInsensitiveOption);
    return link.match(text).captured();
}

QString mapUrl(const QString &place)
{
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("query"), QString::fromLatin1(QUrl::toPercentEncoding(place)));
    QUrl url(QStringLiteral("https://www.openstreetmap.org/search"));
    url.setQuery(query);
    return url.toString(QUrl::FullyEncoded);
}

QString unquoted(QString name)
{
    if (name.size() >= 2 && name.startsWith(u'"') && name.endsWith(u'"'))
        name = name.mid(1, name.size() - 2);
    return name;
}

}

EventDetailsPopover::EventDetailsPopover(AppState *state, const Event &shown, QWidget *anchor)
    : DetailsPopover(anchor)
    , m_state(state)
    , m_event(shown)
{
    if (const auto stored = state->events()->getById(shown.id))
        m_stored = *stored;
    populate();
    connect(state->events(), &EventRepository::eventsChanged, this, &EventDetailsPopover::onEventsChanged);
}

void EventDetailsPopover::onEventsChanged()
{
    const auto stored = m_state->events()->getById(m_event.id);
    if (!stored || stored->deletedAt)
        return dismiss();
    if (*stored == m_stored)
        return;
    const bool hasMoved = stored->startTime != m_stored.startTime || stored->recurrenceRule != m_stored.recurrenceRule;
    if (hasMoved && stored->isRecurring())
        return dismiss(); // the occurrence that it told of may be gone
    m_stored = *stored;
    m_event = EventEdits::shownAt(*stored, hasMoved ? stored->startTime : m_event.startTime);
    populate();
    fitToContent();
}

void EventDetailsPopover::populate()
{
    clear();
    const auto calendar = m_state->calendars()->getById(m_event.calendarId);
    const bool isCancelled = m_event.status == EventStatus::Cancelled;
    const QColor color = Theme::eventColor(m_event.color, calendar ? calendar->color : QString());
    setHeading(EventText::title(m_event), color.name(), isCancelled);
    QString when = EventText::when(m_event, TimeFormat::eventTimeFormatString(m_state));
    if (isCancelled)
        when = tr("%1 (cancelled)", "date and time").arg(when);
    addLine(DetailGlyphs::Clock, tr("When"), when);
    setAccessibleDescription(when);
    if (m_event.isRecurring())
        addLine(DetailGlyphs::Repeat, tr("Repeats"),
                RruleFormat::humanReadable(RuleEnd::asDay(m_event.recurrenceRule, m_event.isAllDay)));
    addPlace();
    if (calendar)
        addLine(DetailGlyphs::Calendar, tr("Calendar"),
                calendar->isReadOnly ? tr("%1 (read-only)").arg(calendar->name) : calendar->name);
    QStringList reminders;
    for (const Reminder &reminder : std::as_const(m_event.reminders))
        reminders.append(RruleFormat::humanReadableReminder(reminder.minutesBefore));
    if (!reminders.isEmpty())
        addLine(DetailGlyphs::Bell, tr("Reminders"), reminders.join(QLatin1StringView("\n")));
    addPeople();
    addLinkedTask();
    if (!m_event.description.trimmed().isEmpty())
        addRichText(DetailGlyphs::Notes, tr("Notes"),
                    DescriptionFormat::toSafeHtml(m_event.description, m_event.conferenceUrl, Theme::link().name()));
    addActions();
}

void EventDetailsPopover::addPlace()
{
    const QString place = EventText::location(m_event);
    const QString link = linkIn(m_event.location);
    const QString call = m_event.conferenceUrl.isEmpty() ? link : m_event.conferenceUrl;
    if (!call.isEmpty())
        addLink(DetailGlyphs::Video, tr("Video call"), call, call);
    if (!place.isEmpty() && place != link)
        addLink(DetailGlyphs::Place, tr("Where (opens a map)"), place, mapUrl(place));
    if (!m_event.eventUrl.isEmpty())
        addLink(DetailGlyphs::Link, tr("Link"), m_event.eventUrl, m_event.eventUrl);
}

void EventDetailsPopover::addPeople()
{
    const auto answer = [](const QString &status) {
        if (status == QLatin1StringView("accepted"))
            return tr("accepted");
        if (status == QLatin1StringView("declined"))
            return tr("declined");
        if (status == QLatin1StringView("tentative"))
            return tr("tentative");
        if (status == QLatin1StringView("delegated"))
            return tr("delegated");
        return tr("no answer yet");
    };
    QStringList people;
    const QString organizer = unquoted(m_event.organizerName);
    if (!organizer.isEmpty() || !m_event.organizerEmail.isEmpty())
        people.append(tr("%1 (organizer)").arg(organizer.isEmpty() ? m_event.organizerEmail : organizer));
    for (qsizetype i = 0; i < m_event.attendees.size() && i < MaxPeople; ++i) {
        const Attendee &attendee = m_event.attendees.at(i);
        const QString name = attendee.name.isEmpty() ? attendee.email : attendee.name;
        people.append(tr("%1 – %2", "attendee, answer").arg(name, answer(attendee.status)));
    }
    if (m_event.attendees.size() > MaxPeople)
        people.append(tr("and %n more", nullptr, int(m_event.attendees.size() - MaxPeople)));
    if (!people.isEmpty())
        addLine(DetailGlyphs::People, tr("Attendees"), people.join(QLatin1StringView("\n")));
}

void EventDetailsPopover::addLinkedTask()
{
    if (m_event.relatedToUid.isEmpty())
        return;
    const auto task = m_state->tasks()->findByUid(m_event.relatedToUid);
    if (!task)
        return;
    QPushButton *button = addLinkButton(DetailGlyphs::Task, tr("Task"), EventText::shortName(task->title));
    connect(button, &QPushButton::clicked, this, [this, uid = task->uid] { emit taskRequested(uid); });
}

void EventDetailsPopover::addActions()
{
    const bool isReadOnly = EventEdits::isReadOnly(m_state, m_event);
    if (!isReadOnly) {
        QPushButton *remove = addButton(tr("Delete"));
        connect(remove, &QPushButton::clicked, this, [this] {
            emit deleteRequested();
            dismiss();
        });
    }
    QPushButton *edit = addButton(isReadOnly ? tr("Open…") : tr("Edit…"));
    connect(edit, &QPushButton::clicked, this, [this] {
        emit editRequested();
        dismiss();
    });
}
