#include "moveslist/usercontrol1.h"

#include "moveslist/itemrecord.h"
#include "moveslist/listnumbers.h"

using moveslist::to16;

namespace col = itemrecord;

void UserControl1::UpdateText(const AnyValue& it, const QString& s)
{
    updateColumn(it, col::Text, [&] { return s; });
}

// A value with no numeric reading is a type mismatch, and the record stays as it was.
void UserControl1::UpdateItemData(const AnyValue& it, const AnyValue& itd)
{
    updateColumn(it, col::ItemData, [&] { return moveslist::numberText(itd.toNumberStrict()); });
}

// Any number is stored: the image list is only asked when the row is drawn.
void UserControl1::UpdateIcon(const AnyValue& it, const AnyValue& ipic)
{
    updateColumn(it, col::PictureIndex,
                 [&] { return moveslist::numberText(ipic.toNumberStrict()); });
}

void UserControl1::UpdateFont(const AnyValue& it, const QString& font)
{
    updateColumn(it, col::FontName, [&] { return font; });
}

void UserControl1::UpdateForeColor(const AnyValue& it, int32_t fc)
{
    updateColumn(it, col::Colour, [&] { return moveslist::numberText(fc); });
}

// One column replaced, the others passed on as they were; the drawn width keeps its
// old value until the row is drawn again. An item on the canvas repaints the whole
// page, which is how a new font, colour or picture shows.
void UserControl1::updateColumn(const AnyValue& it, int column,
                                const std::function<QString()>& newColumn)
{
    settleSize();
    const int16_t item = to16(it.toNumberStrict() + 1);
    if (item > m_state.ItemCount || item < 1)
        return;
    QString& record = m_state.Items[static_cast<size_t>(item)];
    m_state.ItemColumns = col::Split(record);
    QStringList columns = m_state.ItemColumns;
    col::column(columns, column);
    columns[column] = newColumn();
    record = col::join(columns);
    if (item >= m_state.TopRow && item <= m_state.BottomRow)
        DrawRows(m_state.TopRow, to16(m_state.TopRow + m_state.RowsInView - 1.0));
}
