#include "moveslist/anyvalue.h"

#include "moveslist/listerror.h"
#include "moveslist/listnumbers.h"

double AnyValue::toNumber() const
{
    if (const double* number = std::get_if<double>(&m_value))
        return *number;
    if (const QString* text = std::get_if<QString>(&m_value))
        return moveslist::numericRead(*text);
    return 0;
}

double AnyValue::toNumberStrict() const
{
    const QString* text = std::get_if<QString>(&m_value);
    if (!text)
        return toNumber();
    bool ok = false;
    const double number = text->trimmed().toDouble(&ok);
    if (!ok)
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
