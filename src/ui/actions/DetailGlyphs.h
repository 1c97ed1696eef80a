#pragma once

/// Glyphs of the icon font in front of the details of an event or a task.
namespace DetailGlyphs {

inline constexpr char16_t Clock = 0xE8B5;
inline constexpr char16_t Repeat = 0xE040;
inline constexpr char16_t Place = 0xE0C8;
inline constexpr char16_t Video = 0xE04B;
inline constexpr char16_t Link = 0xE157;
inline constexpr char16_t Calendar = 0xE916;
inline constexpr char16_t Bell = 0xE7F4;
inline constexpr char16_t People = 0xE7EF;
inline constexpr char16_t Task = 0xE834;
inline constexpr char16_t Notes = 0xE873;
inline constexpr char16_t Flag = 0xE153;
inline constexpr char16_t Progress = 0xE01D;
inline constexpr char16_t Label = 0xE892;
inline constexpr char16_t Tree = 0xE5DA;

} // namespace DetailGlyphs
