#include "moveslist/anyvalue.h"

#include "moveslist/listerror.h"
#include "moveslist/listnumbers.h"

#include <cmath>

double AnyValue::toNumber() const
{
    if (const double* number = std::get_if<double>(&m_value))
        return *number;
    if (const QString* text = std::get_if<QString>(&m_value))
        return moveslist::numericRead(*text);
    return 0;
}

// NaN and the infinities are no numbers the list can take, as a text or as a number.
double AnyValue::toNumberStrict() const
{
    const QString* text = std::get_if<QString>(&m_value);
    bool ok = true;
    const double number = text ? text->trimmed().toDouble(&ok) : toNumber();
    if (!ok || !std::isfinite(number))
        throw ListError(ListErrorCode::TypeMismatch);
    return number;
}

QString AnyValue::toText() const
{
    if (const QString* text = std::get_if<QString>(&m_value))
        return *text;
    if (const double* number = std::get_if<double>(&m_value))
        return moveslist::numberText(*number).trimmed();
    return {};
}
