#pragma once

#include "common/numbers.h"

#include <QString>

#include <cstdint>

// The list's numbers: the game's number text and numeric read over the QString texts of
// an item record, and the whole numbers its properties hold.
namespace moveslist {

QString numberText(double n);
double numericRead(const QString& text);

// A number brought to a 16- or 32-bit whole number by R; too big is ListError 6.
int16_t to16(double v);
int32_t to32(double v);

} // namespace moveslist
