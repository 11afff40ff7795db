#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// " 5" for 5, "-1" for -1: the way the game joins a number to a text.
std::string NumberText(long long n);

// Plain digits, no blank: what the faces and the totals show.
std::string Digits(long long n);

// Reads a number the way the game reads a Tag or Text1: leading blanks skipped,
// stops at the first character that cannot continue a number, 0 when there are no
// digits at all.
double NumericRead(std::string_view text);

// The same, as a whole number that fits 16 bits; false when it does not.
bool NumericRead16(std::string_view text, int16_t& out);
