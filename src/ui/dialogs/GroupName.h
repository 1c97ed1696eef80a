#pragma once

#include <QString>

struct ViewDef;

/// The name of the built-in group, in the user's language.
QString allCalendarsName();

/// The name of \p group as the user reads it: that of the built-in group is translated until the user gives it
/// another one. Plain text.
QString groupDisplayName(const ViewDef &group);
