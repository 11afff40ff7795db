#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Numbers as the game and its controls write and read them. Standard C++ only: the
// engine, the list and the controls all share these.

// " 5" for 5, "-1" for -1: a number joined to a text, one blank before it when it is
// not negative; up to 15 significant digits.
std::string numberText(double n);

// Plain digits, no blank: what the faces and the totals show.
std::string digits(long long n);

// Reads the number a text begins with: leading blanks skipped, stops at the first
// character that cannot continue a number, 0 when there are no digits at all. Too big
// a number reads as an infinity, too small a one as 0.
double numericRead(std::string_view text);

// The same, brought to a whole number by R; false when that does not fit 16 bits.
bool numericRead16(std::string_view text, int16_t& out);

// R(v): the nearest whole number, a half going to the even neighbour, so that 15.5
// and 16.5 both give 16.
double R(double v);

// Lengths on the screen are twips, 1440 to the inch.
constexpr double TwipsPerInch = 1440.0;

// Twips brought to whole pixels by R.
int twipsToPixels(double twips, double twipsPerPixel);
