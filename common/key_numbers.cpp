#include "common/key_numbers.h"

#include <array>
#include <utility>

namespace {

// Backtab comes after Tab so that code 9 presses Tab.
constexpr std::array<std::pair<int, int16_t>, 35> NamedKeys{{
    {Qt::Key_Backspace, 8},      {Qt::Key_Tab, 9},           {Qt::Key_Backtab, 9},
    {Qt::Key_Return, 13},        {Qt::Key_Enter, 13},        {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},       {Qt::Key_Alt, 18},          {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20},      {Qt::Key_Escape, 27},       {Qt::Key_Space, 32},
    {Qt::Key_PageUp, 33},        {Qt::Key_PageDown, 34},     {Qt::Key_End, 35},
    {Qt::Key_Home, 36},          {Qt::Key_Left, 37},         {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},         {Qt::Key_Down, 40},         {Qt::Key_Insert, 45},
    {Qt::Key_Delete, 46},        {Qt::Key_Help, 47},         {Qt::Key_Menu, 93},
    {Qt::Key_Semicolon, 186},    {Qt::Key_Equal, 187},       {Qt::Key_Comma, 188},
    {Qt::Key_Minus, 189},        {Qt::Key_Period, 190},      {Qt::Key_Slash, 191},
    {Qt::Key_QuoteLeft, 192},    {Qt::Key_BracketLeft, 219}, {Qt::Key_Backslash, 220},
    {Qt::Key_BracketRight, 221}, {Qt::Key_Apostrophe, 222},
}};

} // namespace

int16_t keyNumber(const QKeyEvent& event)
{
    const int key = event.key();
    // Keys of the number pad type their digits from their own codes, 96 to 105.
    if (key >= Qt::Key_0 && key <= Qt::Key_9)
        return int16_t((event.modifiers() & Qt::KeypadModifier ? 96 : 48) + (key - Qt::Key_0));
    if (key >= Qt::Key_A && key <= Qt::Key_Z)
        return int16_t(65 + (key - Qt::Key_A));
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return int16_t(112 + (key - Qt::Key_F1));
    for (const auto& [qtKey, code] : NamedKeys)
        if (qtKey == key)
            return code;
    return 0;
}

std::optional<int16_t> keyAscii(const QKeyEvent& event)
{
    const QString text = event.text();
    if (text.isEmpty() || text[0].unicode() > 0x7FFF)
        return std::nullopt;
    return int16_t(text[0].unicode());
}

int QtKeyFor(int16_t code)
{
    if (code >= 65 && code <= 90)
        return Qt::Key_A + (code - 65);
    if (code >= 48 && code <= 57)
        return Qt::Key_0 + (code - 48);
    if (code >= 112 && code <= 135)
        return Qt::Key_F1 + (code - 112);
    for (const auto& [key, c] : NamedKeys)
        if (c == code)
            return key;
    return 0;
}
