#pragma once

#include <QKeyEvent>

#include <cstdint>
#include <optional>

// The desktop's key codes, which the game and the list both hear: 13 Return, 27
// Escape, 33 to 40 the paging and arrow keys, 48 to 57 and 65 to 90 the digits and
// letters, 96 to 105 the number pad's digits, 112 on the function keys; 0 for a key
// that has none (it still counts as a press).
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

int16_t keyNumber(const QKeyEvent& event);

// The character a key types, as its code; none for a key that types nothing.
std::optional<int16_t> keyAscii(const QKeyEvent& event);

// The other way, for tools that press keys by their codes; 0 when there is none.
int QtKeyFor(int16_t code);
