#include "engine/number_text.h"

#include <charconv>
#include <cmath>
#include <string>

std::string NumberText(long long n)
{
    return n < 0 ? std::to_string(n) : " " + std::to_string(n);
}

std::string Digits(long long n)
{
    return std::to_string(n);
}

namespace {

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

// Length of the longest prefix of text that reads as a number.
size_t NumberPrefix(std::string_view text)
{
    size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-'))
        ++i;
    size_t digits = 0;
    while (i < text.size() && IsDigit(text[i])) {
        ++i;
        ++digits;
    }
    if (i < text.size() && text[i] == '.') {
        ++i;
        while (i < text.size() && IsDigit(text[i])) {
            ++i;
            ++digits;
        }
    }
    if (digits == 0)
        return 0;
    // An exponent only counts when digits follow it: "5e" reads as 5.
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        size_t j = i + 1;
        if (j < text.size() && (text[j] == '+' || text[j] == '-'))
            ++j;
        if (j < text.size() && IsDigit(text[j])) {
            while (j < text.size() && IsDigit(text[j]))
                ++j;
            i = j;
        }
    }
    return i;
}

} // namespace

double NumericRead(std::string_view text)
{
    size_t start = text.find_first_not_of(" \t");
    if (start == std::string_view::npos)
        return 0;
    text.remove_prefix(start);
    const size_t length = NumberPrefix(text);
    if (length == 0)
        return 0;
    // from_chars takes no leading '+' and ignores the locale, which is what we want.
    std::string_view number = text.substr(0, length);
    bool negative = false;
    if (number.front() == '+' || number.front() == '-') {
        negative = number.front() == '-';
        number.remove_prefix(1);
    }
    double value = 0;
    auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc::result_out_of_range)
        value = HUGE_VAL;
    else if (error != std::errc())
        return 0;
    (void)end;
    return negative ? -value : value;
}

bool NumericRead16(std::string_view text, int16_t& out)
{
    const double value = std::nearbyint(NumericRead(text));
    if (!(value >= -32768.0 && value <= 32767.0))
        return false;
    out = static_cast<int16_t>(value);
    return true;
}
