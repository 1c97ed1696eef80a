#pragma once

#include "models/FilterRule.h"

#include <QString>

class AppState;

/// Filter rules in words, as plain text.
namespace FilterText {

/// What the rule hits: "title contains "standup"", "from 22:00, Mon, Tue". Empty if it hits nothing.
QString describeConditions(const FilterRule &rule, AppState *state);
/// The whole rule in one line: action, conditions, calendars.
QString describe(const FilterRule &rule, AppState *state);

} // namespace FilterText
