#pragma once

#include <cstdint>

/// The key codes that the pads look at.
namespace quillgrid::padkey {

inline constexpr std::int32_t Enter = 13;
inline constexpr std::int32_t Escape = 27;
inline constexpr std::int32_t Space = 32;
inline constexpr std::int32_t PageUp = 33;
inline constexpr std::int32_t PageDown = 34;
inline constexpr std::int32_t End = 35;
inline constexpr std::int32_t Home = 36;
inline constexpr std::int32_t Left = 37;
inline constexpr std::int32_t Up = 38;
inline constexpr std::int32_t Right = 39;
inline constexpr std::int32_t Down = 40;
inline constexpr std::int32_t F5 = 116;
inline constexpr std::int32_t F8 = 119;

} // namespace quillgrid::padkey
