#include "moveslist/listnumbers.h"

#include "moveslist/listerror.h"

#include <cmath>
#include <limits>

namespace moveslist {

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

QString NumberText(double n)
{
    const QString digits = QString::number(n, 'g', 15);
    return n < 0 ? digits : QLatin1Char(' ') + digits;
}

namespace {

bool IsDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

// Length of the longest start of text that reads as a number, or 0 without digits.
qsizetype NumberPrefix(const QString& text, qsizetype i)
{
    const qsizetype start = i;
    if (i < text.size() && (text[i] == QLatin1Char('+') || text[i] == QLatin1Char('-')))
        ++i;
    qsizetype digits = 0;
    for (; i < text.size() && IsDigit(text[i]); ++i)
        ++digits;
    if (i < text.size() && text[i] == QLatin1Char('.'))
        for (++i; i < text.size() && IsDigit(text[i]); ++i)
            ++digits;
    if (digits == 0)
        return 0;
    // An exponent only counts when digits follow it: "5e" reads as 5.
    if (i < text.size() && (text[i] == QLatin1Char('e') || text[i] == QLatin1Char('E'))) {
        qsizetype j = i + 1;
        if (j < text.size() && (text[j] == QLatin1Char('+') || text[j] == QLatin1Char('-')))
            ++j;
        if (j < text.size() && IsDigit(text[j])) {
            while (j < text.size() && IsDigit(text[j]))
                ++j;
            i = j;
        }
    }
    return i - start;
}

template <typename Int> Int ToWhole(double v)
{
    const double whole = R(v);
    if (!(whole >= std::numeric_limits<Int>::min() && whole <= std::numeric_limits<Int>::max()))
        throw ListError(
            ListErrorCode::Overflow,
            QStringLiteral("Overflow: %1 does not fit %2 bits").arg(v).arg(sizeof(Int) * 8));
    return static_cast<Int>(whole);
}

} // namespace

double NumericRead(const QString& text)
{
    qsizetype start = 0;
    while (start < text.size() && (text[start] == QLatin1Char(' ') || text[start] == '\t'))
        ++start;
    const qsizetype length = NumberPrefix(text, start);
    if (length == 0)
        return 0;
    const double value = QStringView(text).mid(start, length).toDouble();
    return std::isfinite(value) ? value : std::copysign(HUGE_VAL, value);
}

int16_t To16(double v)
{
    return ToWhole<int16_t>(v);
}

int32_t To32(double v)
{
    return ToWhole<int32_t>(v);
}

} // namespace moveslist
