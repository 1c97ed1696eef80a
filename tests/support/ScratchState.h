#pragma once

#include "app/state/AppState.h"
#include "models/Constants.h"
#include "models/Event.h"
#include "models/FilterRule.h"
#include "models/ViewDef.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/ViewRepository.h"

#include <QTemporaryDir>

/// An AppState over a database of its own, seeded as on a first start, without theme and window. With it come
/// the records and the repositories, which hardly any test does without.
class ScratchState {
public:
    ScratchState();

    AppState *operator->() { return &m_state; }
    AppState *state() { return &m_state; }
    [[nodiscard]] QString path(const QString &fileName) const { return m_dir.filePath(fileName); }
    /// The calendar that a first start creates.
    static QString calendarId();

    /// A stored event of that calendar; times as given.
    Event addEvent(const QString &title, const QDateTime &start, const QDateTime &end);
    Event addAllDayEvent(const QString &title, QDate first, int days = 1);
    /// A copy of the calendar with another id and name; of the same account if \p accountId is empty.
    QString addCalendar(const QString &name, const QString &color = {}, const QString &accountId = {});
    void makeReadOnly(const QString &calendarId);
    /// A group of calendars; its id is its name.
    ViewDef addGroup(const QString &name, const QStringList &calendarIds = {});
    /// A filter for events whose title contains \p titlePart; its id is its name.
    FilterRule addFilter(const QString &name, const QString &titlePart, const QString &action = FilterAction::Hide);

private:
    QTemporaryDir m_dir;
    AppState m_state;
};
