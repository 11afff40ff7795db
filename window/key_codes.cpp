#include "window/key_codes.h"

#include <Qt>

#include <array>
#include <utility>

namespace {

constexpr std::array<std::pair<int, int16_t>, 22> Named{{
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},      {Qt::Key_Return, 13}, {Qt::Key_Enter, 13},
    {Qt::Key_Shift, 16},    {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},    {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20}, {Qt::Key_Escape, 27},  {Qt::Key_Space, 32},  {Qt::Key_PageUp, 33},
    {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},     {Qt::Key_Home, 36},   {Qt::Key_Left, 37},
    {Qt::Key_Up, 38},       {Qt::Key_Right, 39},   {Qt::Key_Down, 40},   {Qt::Key_Insert, 45},
    {Qt::Key_Delete, 46},   {Qt::Key_Help, 47},
}};

} // namespace

int16_t GameKeyCode(int qtKey)
{
    if (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z)
        return static_cast<int16_t>(65 + (qtKey - Qt::Key_A));
    if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9)
        return static_cast<int16_t>(48 + (qtKey - Qt::Key_0));
    if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F16)
        return static_cast<int16_t>(112 + (qtKey - Qt::Key_F1));
    for (const auto& [key, code] : Named)
        if (key == qtKey)
            return code;
    return 0;
}

int QtKeyFor(int16_t code)
{
    if (code >= 65 && code <= 90)
        return Qt::Key_A + (code - 65);
    if (code >= 48 && code <= 57)
        return Qt::Key_0 + (code - 48);
    if (code >= 112 && code <= 127)
        return Qt::Key_F1 + (code - 112);
    for (const auto& [key, c] : Named)
        if (c == code)
            return key;
    return 0;
}
