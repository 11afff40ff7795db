#include "common/mouse_numbers.h"

int16_t buttonNumber(Qt::MouseButtons buttons)
{
    int16_t number = 0;
    if (buttons & Qt::LeftButton)
        number |= 1;
    if (buttons & Qt::RightButton)
        number |= 2;
    if (buttons & Qt::MiddleButton)
        number |= 4;
    return number;
}

int16_t shiftNumber(Qt::KeyboardModifiers modifiers)
{
    int16_t number = 0;
    if (modifiers & Qt::ShiftModifier)
        number |= 1;
    if (modifiers & Qt::ControlModifier)
        number |= 2;
    if (modifiers & Qt::AltModifier)
        number |= 4;
    return number;
}
