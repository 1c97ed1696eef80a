#pragma once

#include <QLatin1StringView>

class AppState;

/// The account of the calendars that were made on this device.
namespace LocalAccount {

inline constexpr QLatin1StringView Name{ "Quillon" };

/// Creates the account unless it is there; a deleted one is replaced. False if the database refused.
bool ensure(AppState *state);

} // namespace LocalAccount
