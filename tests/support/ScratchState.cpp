#include "support/ScratchState.h"

#include "calendar/services/VisibleEvents.h"
#include "models/NewId.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

ScratchState::ScratchState()
{
    const bool opened = m_dir.isValid() && m_state.openStorage(m_dir.filePath(QStringLiteral("calendar.db")));
    if (!opened)
        qFatal("cannot open a scratch database");
    m_state.seedDefaultCalendarIfMissing();
    m_state.setVisibleEvents(new VisibleEvents(&m_state, &m_state));
    m_state.restoreViewState();
}

QString ScratchState::calendarId()
{
    return LocalDefaults::PersonalCalendarId;
}

Event ScratchState::addEvent(const QString &title, const QDateTime &start, const QDateTime &end)
{
    Event event;
    event.id = newId();
    event.uid = event.id;
    event.calendarId = calendarId();
    event.title = title;
    event.startTime = start;
    event.endTime = end;
    event.rawIcalendar = QStringLiteral("BEGIN:VCALENDAR\r\nEND:VCALENDAR\r\n");
    if (!m_state.events()->insert(event))
        qFatal("cannot store a scratch event");
    return event;
}

Event ScratchState::addAllDayEvent(const QString &title, QDate first, int days)
{
    Event event =
        addEvent(title, QDateTime(first, QTime(0, 0), Qt::UTC), QDateTime(first.addDays(days), QTime(0, 0), Qt::UTC));
    event.isAllDay = true;
    if (!m_state.events()->update(event))
        qFatal("cannot store a scratch event");
    return event;
}

QString ScratchState::addCalendar(const QString &name, const QString &color, const QString &accountId)
{
    Calendar calendar = m_state.calendars()->getById(calendarId()).value();
    calendar.id = newId();
    calendar.url = QStringLiteral("local://calendar/") + calendar.id;
    calendar.name = name;
    calendar.isDefault = false;
    calendar.canonicalKey.clear();
    if (!color.isEmpty())
        calendar.color = color;
    if (!accountId.isEmpty())
        calendar.accountId = accountId;
    if (!m_state.calendars()->insert(calendar))
        qFatal("cannot store a scratch calendar");
    return calendar.id;
}

ViewDef ScratchState::addGroup(const QString &name, const QStringList &calendarIds)
{
    ViewDef group;
    group.id = group.name = name;
    group.calendarIds =
        QString::fromUtf8(QJsonDocument(QJsonArray::fromStringList(calendarIds)).toJson(QJsonDocument::Compact));
    if (!m_state.views()->insert(group))
        qFatal("cannot store a scratch group");
    return m_state.views()->getById(group.id).value();
}

FilterRule ScratchState::addFilter(const QString &name, const QString &titlePart, const QString &action)
{
    FilterRule rule;
    rule.id = rule.name = name;
    rule.type = FilterType::Pattern;
    rule.action = action;
    const QJsonObject conditions{ { QStringLiteral("runtimeType"), QStringLiteral("pattern") },
                                  { QStringLiteral("titleContains"), QJsonArray{ titlePart } } };
    rule.conditions = QString::fromUtf8(QJsonDocument(conditions).toJson(QJsonDocument::Compact));
    if (!m_state.filterRules()->insert(rule))
        qFatal("cannot store a scratch filter");
    return m_state.filterRules()->getById(rule.id).value();
}

void ScratchState::makeReadOnly(const QString &calendarId)
{
    Calendar calendar = m_state.calendars()->getById(calendarId).value();
    calendar.isReadOnly = true;
    if (!m_state.calendars()->update(calendar))
        qFatal("cannot change a scratch calendar");
}
