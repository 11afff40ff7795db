#pragma once

#include <array>
#include <cstdint>
#include <limits>

// The ring of 14 slots: 0..5 the human's pots (green, lower row, A at the left),
// 6 the human's bank, 7..12 the computer's pots (red, upper row, slot 7 at the right),
// 13 the computer's bank. Sowing runs up the slot numbers and wraps from 13 to 0.

constexpr int SlotCount = 14;
constexpr int PotsPerRow = 6;
constexpr int16_t FirstHumanPot = 0;
constexpr int16_t LastHumanPot = 5;
constexpr int16_t HumanBank = 6;
constexpr int16_t FirstComputerPot = 7;
constexpr int16_t LastComputerPot = 12;
constexpr int16_t ComputerBank = 13;
constexpr int16_t NoSlot = -1;

using Board = std::array<int16_t, SlotCount>;

constexpr bool isSlot(int s)
{
    return s >= 0 && s < SlotCount;
}
constexpr bool isHumanPot(int s)
{
    return s >= FirstHumanPot && s <= LastHumanPot;
}
constexpr bool isComputerPot(int s)
{
    return s >= FirstComputerPot && s <= LastComputerPot;
}
constexpr bool isBank(int s)
{
    return s == HumanBank || s == ComputerBank;
}

// 0 faces 12, 1 faces 11 ... 5 faces 7. Gives 6 for the human bank and -1 for the
// computer's: callers rule out the banks first.
constexpr int opposite(int s)
{
    return LastComputerPot - s;
}

// A pot's letter: A to F from the left on both rows, so opposite pots share one. On
// the turned board the halves have changed places, and each pot is named by the
// letter it stands under on the screen.
constexpr char potLetter(int s, bool mirrored)
{
    int code = s < HumanBank ? 'A' + s : 'M' - s;
    if (mirrored)
        code = 'A' + 'F' - code;
    return static_cast<char>(code);
}

// Counts are 16-bit; the sums we form saturate rather than wrap, so a board that
// could never arise in play still cannot turn a count negative.
constexpr int16_t clampCount(int v)
{
    if (v > std::numeric_limits<int16_t>::max())
        return std::numeric_limits<int16_t>::max();
    if (v < std::numeric_limits<int16_t>::min())
        return std::numeric_limits<int16_t>::min();
    return static_cast<int16_t>(v);
}

// Colours of the log, 0x00BBGGRR.
constexpr int32_t rgb(int r, int g, int b)
{
    return r | (g << 8) | (b << 16);
}
constexpr int32_t HumanGreen = rgb(0, 128, 0);
constexpr int32_t ComputerRed = rgb(128, 0, 0);
constexpr int32_t HintBlack = rgb(0, 0, 0);
