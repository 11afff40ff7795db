#pragma once

#include <QString>
#include <QStringList>

// An item is one text record of six TAB-separated columns. The list splits it each
// time it needs a field and joins it again when one changes; nothing else is kept.
namespace itemrecord {

constexpr int Text = 0;
constexpr int ItemData = 1;
constexpr int PictureIndex = 2;
constexpr int FontName = 3;
constexpr int Colour = 4;
constexpr int DrawnWidth = 5;

QStringList Split(const QString& record);
QString join(const QStringList& columns);

// Column c of split columns; a record short of it is ListError 9, as entry 0 is.
const QString& column(const QStringList& columns, int c);

} // namespace itemrecord
