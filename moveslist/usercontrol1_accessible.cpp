#include "moveslist/itemrecord.h"
#include "moveslist/listnumbers.h"
#include "moveslist/picturebox.h"
#include "moveslist/usercontrol1.h"

#include <QAccessible>

#include <cmath>

namespace col = itemrecord;

QString UserControl1::rowAccessibleName(int32_t item) const
{
    if (item < 1 || item > st.ItemCount)
        return {};
    const QStringList columns = col::Split(st.Items[static_cast<size_t>(item)]);
    const QString text = columns.value(col::Text);
    if (!rowVoice)
        return text;
    const auto colour = static_cast<int32_t>(moveslist::numericRead(columns.value(col::Colour)));
    return rowVoice(text, colour);
}

QRect UserControl1::itemRect(int32_t item) const
{
    if (st.RowTwips <= 0 || st.PixelTwipsY <= 0 || st.TopRow < 1 || Picture1->isHidden())
        return {};
    if (item < st.TopRow || item >= st.TopRow + st.RowsInView || item > st.ItemCount)
        return {};
    // Each row's top is rounded on its own, as the rows are drawn, so that a fraction
    // of a pixel per row does not add up down the list.
    const auto top = [&](int32_t row) {
        return static_cast<int>(R(double(row - st.TopRow) * st.RowTwips / st.PixelTwipsY));
    };
    const QPoint at = Picture1->mapToGlobal(QPoint(0, top(item)));
    return QRect(mapFromGlobal(at), QSize(Picture1->width(), top(item + 1) - top(item)));
}

// A screen reader may ask about the list while its children are going: its interface
// goes first.
UserControl1::~UserControl1()
{
    if (QAccessible::isActive())
        QAccessible::deleteAccessibleInterface(
            QAccessible::uniqueId(QAccessible::queryAccessibleInterface(this)));
}

int32_t UserControl1::itemAt(QPoint at) const
{
    const int32_t last = std::min<int32_t>(st.TopRow + st.RowsInView - 1, st.ItemCount);
    for (int32_t item = std::max<int32_t>(st.TopRow, 1); item <= last; ++item)
        if (itemRect(item).contains(at))
            return item;
    return 0;
}
