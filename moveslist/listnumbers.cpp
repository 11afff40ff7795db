#include "moveslist/listnumbers.h"

#include "moveslist/listerror.h"

#include <limits>

namespace moveslist {

QString numberText(double n)
{
    return QString::fromStdString(::numberText(n));
}

double numericRead(const QString& text)
{
    return ::numericRead(text.toStdString());
}

namespace {

template <typename Int> Int toWhole(double v)
{
    const double whole = R(v);
    if (!(whole >= std::numeric_limits<Int>::min() && whole <= std::numeric_limits<Int>::max()))
        throw ListError(ListErrorCode::Overflow);
    return static_cast<Int>(whole);
}

} // namespace

int16_t to16(double v)
{
    return toWhole<int16_t>(v);
}

int32_t to32(double v)
{
    return toWhole<int32_t>(v);
}

} // namespace moveslist
