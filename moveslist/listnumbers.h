#pragma once

#include <QString>

#include <cstdint>

namespace moveslist {

// R(v): the nearest whole number, a half going to the even neighbour, so that 15.5
// and 16.5 both give 16. Every twips-to-pixels step of the list goes through it.
double R(double v);

// " 5" for 5, "-1" for -1: the form numbers take inside an item record.
QString NumberText(double n);

// The numeric read of a column: leading blanks skipped, stops at the first character
// that cannot continue a number, 0 for a text without digits.
double NumericRead(const QString& text);

// A number brought to a 16- or 32-bit whole number by R; too big is ListError 6.
int16_t To16(double v);
int32_t To32(double v);

} // namespace moveslist
