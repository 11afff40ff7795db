#pragma once

#include <Qt>

#include <cstdint>

// The game's numbers for mouse buttons (1 left, 2 right, 4 middle) and for the shift
// keys held with them (1 shift, 2 ctrl, 4 alt).
int16_t buttonNumber(Qt::MouseButtons buttons);
int16_t shiftNumber(Qt::KeyboardModifiers modifiers);
