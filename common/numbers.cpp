#include "common/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>

std::string numberText(double n)
{
    char text[32];
    // Whole numbers, the widths and colours of every drawn row among them, print as
    // "%.15g" prints them, without its cost; negative zero keeps its sign that way.
    if (n == std::trunc(n) && std::abs(n) < 1e15 && !(n == 0 && std::signbit(n))) {
        const auto end = std::to_chars(text, text + sizeof text, static_cast<long long>(n)).ptr;
        std::string result(n < 0 ? 0 : 1, ' ');
        result.append(text, end);
        return result;
    }
    std::snprintf(text, sizeof text, "%.15g", n);
    // Built in one string: a blank added to a temporary makes g++ -O3 see an overlap
    // that is not there.
    std::string result(n < 0 ? 0 : 1, ' ');
    result += text;
    return result;
}

std::string digits(long long n)
{
    return std::to_string(n);
}

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

struct NumberPrefix {
    size_t length = 0;
    // Where the first digit that is not 0 stands against the decimal point, plus the
    // exponent: above 0 the number is large, otherwise small.
    long long magnitude = 0;
};

NumberPrefix scanNumber(std::string_view text)
{
    NumberPrefix found;
    size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-'))
        ++i;
    size_t digitCount = 0;
    long long beforePoint = 0;
    bool seenNonZero = false;
    for (; i < text.size() && isDigit(text[i]); ++i, ++digitCount) {
        if (seenNonZero || text[i] != '0')
            ++beforePoint;
        seenNonZero = seenNonZero || text[i] != '0';
    }
    found.magnitude = beforePoint;
    if (i < text.size() && text[i] == '.') {
        long long zeros = 0;
        for (++i; i < text.size() && isDigit(text[i]); ++i, ++digitCount) {
            if (!seenNonZero && text[i] == '0')
                ++zeros;
            seenNonZero = seenNonZero || text[i] != '0';
        }
        if (beforePoint == 0)
            found.magnitude = -zeros;
    }
    if (digitCount == 0)
        return {};
    // An exponent only counts when digits follow it: "5e" reads as 5.
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        size_t j = i + 1;
        if (j < text.size() && (text[j] == '+' || text[j] == '-'))
            ++j;
        if (j < text.size() && isDigit(text[j])) {
            const bool negative = text[j - 1] == '-';
            long long exponent = 0;
            for (; j < text.size() && isDigit(text[j]); ++j)
                exponent = std::min(exponent * 10 + (text[j] - '0'), 1000000LL);
            found.magnitude += negative ? -exponent : exponent;
            i = j;
        }
    }
    found.length = i;
    return found;
}

} // namespace

double numericRead(std::string_view text)
{
    const size_t start = text.find_first_not_of(" \t");
    if (start == std::string_view::npos)
        return 0;
    text.remove_prefix(start);
    const NumberPrefix prefix = scanNumber(text);
    if (prefix.length == 0)
        return 0;
    // from_chars takes no leading '+' and ignores the locale, which is what we want.
    std::string_view number = text.substr(0, prefix.length);
    bool negative = false;
    if (number.front() == '+' || number.front() == '-') {
        negative = number.front() == '-';
        number.remove_prefix(1);
    }
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec == std::errc::result_out_of_range)
        value = prefix.magnitude > 0 ? HUGE_VAL : 0.0;
    else if (result.ec != std::errc())
        return 0;
    return negative ? -value : value;
}

bool numericRead16(std::string_view text, int16_t& out)
{
    const double value = R(numericRead(text));
    if (!(value >= -32768.0 && value <= 32767.0))
        return false;
    out = static_cast<int16_t>(value);
    return true;
}

double R(double v)
{
    const double below = std::floor(v);
    const double fraction = v - below;
    if (fraction > 0.5)
        return below + 1;
    if (fraction < 0.5)
        return below;
    return std::fmod(below, 2.0) == 0 ? below : below + 1;
}

int twipsToPixels(double twips, double twipsPerPixel)
{
    return static_cast<int>(R(twips / twipsPerPixel));
}
