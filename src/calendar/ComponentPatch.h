#pragma once

#include "calendar/ICalAlarm.h"
#include "calendar/ICalTree.h"
#include "models/Reminder.h"

#include <QDateTime>
#include <QString>

#include <limits>
#include <optional>
#include <vector>

/// What events and tasks have in common when a record is written over its component.
///
/// A property is compared in the form in which it would read back: \p before is the reader's, \p after the record's.
/// Where both read alike nothing is touched, so that what was written once is never written again.
namespace ComponentPatch {

/// A TEXT property. Parameters that speak of the old text go with it.
void setText(ICal::TreeComponent &component, QByteArrayView name, const QString &before, const QString &after);
/// A property that is read as it stands, such as URL.
void setPlain(ICal::TreeComponent &component, QByteArrayView name, const QString &before, const QString &after);
/// A word that is read in lower case. An empty \p after stands for \p fallback.
void setWord(ICal::TreeComponent &component, QByteArrayView name, const QString &before, const QString &after,
             const QString &fallback);
/// A number; no line if it is not positive.
void setNumber(ICal::TreeComponent &component, QByteArrayView name, int before, int after);
/// The value, or no line if it is empty. Compares nothing.
void setValue(ICal::TreeComponent &component, QByteArrayView name, const QByteArray &value);

/// RRULE, with an UNTIL as the start is: a date, or an instant in UTC (RFC 5545 §3.3.10). The order of its parts is no
/// difference. \p isTypeChanged: the start has become a date, or no longer is one.
void setRule(ICal::TreeComponent &component, const QString &before, const QString &after, bool isAllDay,
             bool isTypeChanged);

/// Which of several parents a reader takes.
enum class Parent { FirstNamed, Last };
void setParent(ICal::TreeComponent &component, Parent which, const QString &before, const QString &after);

using ReadReminder = std::optional<Reminder> (ICal::Alarm::*)() const;
/// Makes the alarms that \p read understands, up to the \p limit that it stops at, those in \p wanted: what is in both
/// stays, and what is only at another time keeps all else. Without \p canAdd none comes.
void setAlarms(ICal::TreeComponent &component, std::vector<ICal::TreeComponent> wanted, ReadReminder read,
               bool canAdd = true, qsizetype limit = std::numeric_limits<qsizetype>::max());
/// \p trigger is the property's name with its parameters.
ICal::TreeComponent alarm(const Reminder &reminder, const QByteArray &trigger, const QString &text);

/// DTSTAMP, LAST-MODIFIED and SEQUENCE. RFC 5545 §3.8.7.
void stamp(ICal::TreeComponent &component, const QDateTime &now, int sequence);

} // namespace ComponentPatch
