#pragma once

#include <QColor>

#include <cstdint>

// Colours travel as 0x00BBGGRR, or as a system colour with the top bit set
// (0x80000005 window background, 0x80000008 window text, 0x8000000F button face).
namespace olecolor {

constexpr int32_t WindowBackground = static_cast<int32_t>(0x80000005u);
constexpr int32_t WindowText = static_cast<int32_t>(0x80000008u);
constexpr int32_t ButtonFace = static_cast<int32_t>(0x8000000Fu);
constexpr int32_t ButtonText = static_cast<int32_t>(0x80000012u);

// System colours come from the application's palette, so they follow the desktop.
QColor toQColor(int32_t colour);

} // namespace olecolor
