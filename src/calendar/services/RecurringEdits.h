#pragma once

#include "models/Event.h"

#include <QDateTime>

#include <optional>

class EventRepository;

/// Changes of time of a series: one occurrence, that and all later ones, or all.
namespace RecurringEdits {

enum class Scope { Cancel, ThisOnly, ThisAndFollowing, All };

/// Moves the occurrence of \p master that begins at \p originalStart to \p newStart. A \p newEnd sets its
/// duration too. All of it is one transaction; false, and nothing changed, if that fails or there is no
/// repository. Cancel changes nothing and is a success.
///
/// \p master is the row as stored now. The occurrence may be named in any zone.
bool apply(EventRepository *repository, const Event &master, const QDateTime &originalStart,
           const QDateTime &newStart, const std::optional<QDateTime> &newEnd, Scope scope);

/// \p rule ending at the last instance that begins no later than \p cut: UNTIL in UTC in place of COUNT and UNTIL.
QString withUntil(const QString &rule, const QDateTime &cut);

} // namespace RecurringEdits
