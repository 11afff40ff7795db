#include "moveslist/itemrecord.h"

#include "moveslist/listerror.h"

namespace itemrecord {

QStringList Split(const QString& record)
{
    return record.split(QLatin1Char('\t'));
}

QString join(const QStringList& columns)
{
    return columns.join(QLatin1Char('\t'));
}

const QString& column(const QStringList& columns, int c)
{
    if (c < 0 || c >= columns.size())
        throw ListError(ListErrorCode::SubscriptOutOfRange);
    return columns[c];
}

} // namespace itemrecord
