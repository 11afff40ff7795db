#pragma once

#include <QKeyEvent>
#include <QMouseEvent>

#include <cstdint>
#include <optional>

// The numbers the list's events carry, as hosts of such a list know them.
namespace inputnumbers {

// Buttons and shift keys are numbered as on the board's own faces (controls/mouse_numbers.h):
// a press or release names its one button, a move the sum of the buttons held.

// The desktop's key codes: 13 Return, 27 Escape, 33 to 40 the paging and arrow keys,
// 48 to 57 and 65 to 90 the digits and letters, 112 on the function keys; 0 for a
// key that has none.
namespace key {
constexpr int16_t Return = 13;
constexpr int16_t Escape = 27;
constexpr int16_t PageUp = 33;
constexpr int16_t PageDown = 34;
constexpr int16_t End = 35;
constexpr int16_t Home = 36;
constexpr int16_t Up = 38;
constexpr int16_t Down = 40;
} // namespace key
int16_t KeyCode(const QKeyEvent& event);
// The character a key types, as its code; none for a key that types nothing.
std::optional<int16_t> KeyAscii(const QKeyEvent& event);

} // namespace inputnumbers
