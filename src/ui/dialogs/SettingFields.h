#pragma once

class AppState;
class QComboBox;

/// Fields of settings that more than one dialog offers. Each shows what is stored, and stores and applies a
/// choice at once.
namespace SettingFields {

QComboBox *makeThemeMode(AppState *state); ///< disabled in a state without a theme
QComboBox *makeWeekStart(AppState *state);
QComboBox *makeTimeFormat(AppState *state);

} // namespace SettingFields
