#include "moveslist/itemrecord.h"
#include "moveslist/listnumbers.h"
#include "moveslist/picturebox.h"
#include "moveslist/usercontrol1.h"

#include <cmath>

namespace col = itemrecord;
using moveslist::NumericRead;

QString UserControl1::rowAccessibleName(int32_t item) const
{
    if (item < 1 || item > st.ItemCount)
        return {};
    const QStringList columns = col::Split(st.Items[static_cast<size_t>(item)]);
    const QString text = columns.value(col::Text);
    if (!rowVoice)
        return text;
    const auto colour = static_cast<int32_t>(NumericRead(columns.value(col::Colour)));
    return rowVoice(text, colour);
}

QRect UserControl1::itemRect(int32_t item) const
{
    if (st.RowTwips <= 0 || st.PixelTwipsY <= 0 || st.TopRow < 1 || Picture1->isHidden())
        return {};
    if (item < st.TopRow || item >= st.TopRow + st.RowsInView || item > st.ItemCount)
        return {};
    const int rowPixels = static_cast<int>(std::lround(double(st.RowTwips) / st.PixelTwipsY));
    const QPoint top = Picture1->mapToGlobal(QPoint(0, (item - st.TopRow) * rowPixels));
    return QRect(mapFromGlobal(top), QSize(Picture1->width(), rowPixels));
}

int32_t UserControl1::itemAt(QPoint at) const
{
    const int32_t last = std::min<int32_t>(st.TopRow + st.RowsInView - 1, st.ItemCount);
    for (int32_t item = std::max<int32_t>(st.TopRow, 1); item <= last; ++item)
        if (itemRect(item).contains(at))
            return item;
    return 0;
}
