#include "moveslist/usercontrol1.h"

#include "moveslist/itemrecord.h"
#include "moveslist/listerror.h"
#include "moveslist/listnumbers.h"
#include "moveslist/picturebox.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

#include <algorithm>

using moveslist::To16;
using moveslist::To32;

namespace col = itemrecord;

void UserControl1::Additem(QString& s, int16_t itemx)
{
    int16_t ipic = -1;
    QString ItemFont;
    int32_t ItemColor = -1;
    Additem(s, itemx, ipic, ItemFont, ItemColor);
}

void UserControl1::Additem(QString& s, int16_t itemx, int16_t& ipic, QString& ItemFont,
                           int32_t& ItemColor)
{
    if (!ItemFont.isEmpty())
        st.ItemFontName = ItemFont;
    if (st.ItemFontName.isEmpty() && st.ItemCount == 0)
        st.ItemFontName = font().family();
    // The surface's fore colour, not forecolor, which belongs to Picture1.
    if (ItemColor == -1 && st.ItemCount == 0)
        ItemColor = surfaceForeColor;
    st.Items.resize(static_cast<size_t>(st.ItemCount) + 2);
    // Picture and colour come from the list's last item, not from the insertion's
    // neighbour: on a log written top down that is the oldest line.
    st.ItemColumns = col::Split(st.Items[static_cast<size_t>(st.ItemCount)]);
    if (ipic <= 0 && st.ItemCount > 0)
        ipic = To16(moveslist::numericRead(col::Column(st.ItemColumns, col::PictureIndex)));
    // Only -1 means no colour; 0 is an explicit black.
    if (ItemColor == -1 && st.ItemCount > 0)
        ItemColor = To32(moveslist::numericRead(col::Column(st.ItemColumns, col::Colour)));

    if (itemx > 0)
        itemx = To16(itemx + 1.0);
    bool topInsert = false;
    if (itemx == -1) {
        itemx = 1;
        topInsert = true;
    }
    // The first line of a log, put on top, takes the append path and its measuring.
    if (itemx == 1 && st.ItemCount == 0)
        itemx = 0;
    if (itemx > 0)
        AdditemInsert(s, itemx, ipic, ItemColor, topInsert);
    else
        AdditemAppend(s, ipic, ItemColor);
}

void UserControl1::AdditemInsert(QString& s, int16_t itemx, int16_t ipic, int32_t ItemColor,
                                 bool topInsert)
{
    if (itemx > st.ItemCount)
        return;
    const auto at = st.Items.begin() + itemx;
    std::move_backward(at, st.Items.begin() + st.ItemCount + 1,
                       st.Items.begin() + st.ItemCount + 2);
    *at = NewRecord(s, ipic, ItemColor, QStringLiteral(" "));
    ++st.ItemCount;
    setScrollMaximum(st.ItemCount - 1);
    if (itemx >= st.TopRow && itemx <= st.BottomRow && !topInsert)
        DrawRows(st.TopRow, To16(st.TopRow + st.RowsInView - 1.0));
    if (st.ComboMode == 1)
        st.TopRow = -1;
    LastAddedIndex(moveslist::numberText(itemx - 1));
    // A new top line repaints from item 1 whatever the scroll bar shows.
    if (topInsert && st.ComboMode == 0)
        DrawRows(1, st.RowsInView);
}

void UserControl1::AdditemAppend(QString& s, int16_t ipic, int32_t ItemColor)
{
    // A picture that cannot be had stops the call before anything is stored.
    if (st.DrawStyleValue == 1)
        LoadRowPicture(ipic);
    ++st.ItemCount;
    st.Items[static_cast<size_t>(st.ItemCount)] = NewRecord(s, ipic, ItemColor, QString());
    setScrollMaximum(st.ItemCount - 1);
    LastAddedIndex(moveslist::numberText(st.ItemCount - 1));
    if (st.ComboMode == 1)
        st.TopRow = -1;
    if (st.ItemCount == 1)
        FirstItemSetup();
    if (st.ComboMode == 0) {
        setControlHeight(double(st.RowTwips) * st.RowsInView);
        if (st.ItemCount <= st.RowsInView)
            DrawOneRow(To16(st.ItemCount));
    }
    if (st.ComboMode == 1)
        st.TopRow = -1;
}

QString UserControl1::NewRecord(const QString& s, int16_t ipic, int32_t ItemColor,
                                const QString& width) const
{
    return col::Join({s, QStringLiteral("0"), moveslist::numberText(ipic), st.ItemFontName,
                      moveslist::numberText(ItemColor), width});
}

// The maximum is 16 bits: past 32,768 items this is the overflow the caller gets.
void UserControl1::setScrollMaximum(int32_t maximum)
{
    VScroll1->setMaximum(To16(maximum));
}

void UserControl1::RemoveItem(const AnyValue& it)
{
    const int32_t n = EntryOf(it);
    if (n == 0)
        return;
    if (st.ItemCount == 1) {
        Picture1->Cls();
        st.ItemCount = 0;
        st.NextRowTop = 0;
        st.TopRow = -1;
        setScrollMaximum(0);
        st.SelectedRow = -1;
        Picture1->hide();
        VScroll1->hide();
        Text1->clear();
        ChosenIndex(QString());
        st.Items.resize(1);
        return;
    }
    st.Items.erase(st.Items.begin() + n);
    --st.ItemCount;
    Text1->clear();
    st.Items.resize(static_cast<size_t>(st.ItemCount) + 1);
    setScrollMaximum(st.ItemCount - 1);
    st.SelectedRow = -1;
    if (n >= st.TopRow - 1 && n <= st.BottomRow)
        DrawRows(st.TopRow, To16(st.TopRow + st.RowsInView - 1.0));
    if (st.ComboMode == 1)
        st.TopRow = -1;
}

// The entry of the 0-based index `it`, or 0 when it names no item: an index out of
// range is ignored by every member that takes one.
int32_t UserControl1::EntryOf(const AnyValue& it) const
{
    const double n = R(it.toNumberStrict()) + 1;
    return n >= 1 && n <= st.ItemCount ? static_cast<int32_t>(n) : 0;
}

// Keeps what is drawn on the rows' way out: the row measures, the font name, the
// selection and the scroll bar all stay.
void UserControl1::Clear()
{
    Picture1->Cls();
    Picture3->Cls();
    st.ItemCount = 0;
    st.Items.resize(1);
}

AnyValue UserControl1::GetItemData(const AnyValue& i) const
{
    const int32_t n = EntryOf(i);
    if (n == 0)
        return {};
    st.ItemColumns = col::Split(st.Items[static_cast<size_t>(n)]);
    return moveslist::numericRead(col::Column(st.ItemColumns, col::ItemData));
}

void UserControl1::SetItemData(AnyValue it, const AnyValue& valuex)
{
    if (it.toNumberStrict() == -1)
        it = moveslist::numericRead(LastAddedIndex());
    const int32_t n = EntryOf(it);
    if (n == 0)
        return;
    const QString data = moveslist::numberText(valuex.toNumberStrict());
    QString& record = st.Items[static_cast<size_t>(n)];
    st.ItemColumns = col::Split(record);
    QStringList columns = st.ItemColumns;
    columns[col::ItemData] = data;
    record = col::Join(columns);
}

AnyValue UserControl1::List(const AnyValue& it) const
{
    const int32_t n = EntryOf(it);
    if (n == 0)
        return QString();
    st.ItemColumns = col::Split(st.Items[static_cast<size_t>(n)]);
    return col::Column(st.ItemColumns, col::Text);
}

// Stores only, whatever `it` says: no item is touched.
void UserControl1::List(const AnyValue&, const AnyValue& New_List)
{
    st.ListStore = New_List;
    emit PropertyChanged(QStringLiteral("List"));
}

AnyValue UserControl1::ListCount() const
{
    return st.ItemCount;
}

void UserControl1::ListCount(const AnyValue&)
{
    if (inDesign)
        throw ListError(ListErrorCode::NotAtDesignTime,
                        QStringLiteral("'Set' not permitted: ListCount is read-only"));
    throw ListError(ListErrorCode::NotAtRunTime,
                    QStringLiteral("'Set' not supported at run time: ListCount is read-only"));
}

AnyValue UserControl1::text() const
{
    return Text1->text();
}

void UserControl1::text(const AnyValue& New_text)
{
    st.TextStore = New_text;
    emit PropertyChanged(QStringLiteral("Text"));
}

// 0 both when nothing is chosen and when the first item is.
AnyValue UserControl1::ListIndex() const
{
    return moveslist::numericRead(ChosenIndex());
}

void UserControl1::ListIndex(const AnyValue& New_ListIndex)
{
    if (inDesign)
        throw ListError(ListErrorCode::NotAtDesignTime,
                        QStringLiteral("'Set' not permitted: ListIndex at design time"));
    st.ListIndexStore = New_ListIndex;
    emit PropertyChanged(QStringLiteral("ListIndex"));
}

// The item added last lives as the drop button's tag, the chosen item as the text
// box's: number texts of 0-based indices.
QString UserControl1::LastAddedIndex() const
{
    return command1->property("Tag").toString();
}

void UserControl1::LastAddedIndex(const QString& index)
{
    command1->setProperty("Tag", index);
}

QString UserControl1::ChosenIndex() const
{
    return Text1->property("Tag").toString();
}

void UserControl1::ChosenIndex(const QString& index)
{
    Text1->setProperty("Tag", index);
}
