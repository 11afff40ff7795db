#include "moveslist/usercontrol1.h"

#include "moveslist/itemrecord.h"
#include "moveslist/listerror.h"
#include "moveslist/listnumbers.h"
#include "moveslist/picturebox.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

#include <QScopeGuard>

#include <algorithm>

using moveslist::to16;
using moveslist::to32;

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
    settleSize();
    if (!ItemFont.isEmpty())
        m_state.ItemFontName = ItemFont;
    if (m_state.ItemFontName.isEmpty() && m_state.ItemCount == 0)
        m_state.ItemFontName = font().family();
    // The surface's fore colour, not forecolor, which belongs to Picture1.
    if (ItemColor == -1 && m_state.ItemCount == 0)
        ItemColor = m_surfaceForeColor;
    m_state.Items.resize(static_cast<size_t>(m_state.ItemCount) + 2);
    // Picture and colour come from the list's last item, not from the insertion's
    // neighbour: on a log written top down that is the oldest line.
    m_state.ItemColumns = col::Split(m_state.Items[static_cast<size_t>(m_state.ItemCount)]);
    if (ipic <= 0 && m_state.ItemCount > 0)
        ipic = to16(moveslist::numericRead(col::column(m_state.ItemColumns, col::PictureIndex)));
    // Only -1 means no colour; 0 is an explicit black.
    if (ItemColor == -1 && m_state.ItemCount > 0)
        ItemColor = to32(moveslist::numericRead(col::column(m_state.ItemColumns, col::Colour)));

    if (itemx > 0)
        itemx = to16(itemx + 1.0);
    bool topInsert = false;
    if (itemx == -1) {
        itemx = 1;
        topInsert = true;
    }
    // The first line of a log, put on top, takes the append path and its measuring.
    if (itemx == 1 && m_state.ItemCount == 0)
        itemx = 0;
    // A screen reader hears of every item stored, also of one whose overflow fails the
    // call after storing it.
    const int32_t before = m_state.ItemCount;
    const auto announce = qScopeGuard([&] {
        if (m_state.ItemCount > before)
            announceItem(itemx > 0 ? itemx : m_state.ItemCount);
    });
    if (itemx > 0)
        additemInsert(s, itemx, ipic, ItemColor, topInsert);
    else
        additemAppend(s, ipic, ItemColor);
}

void UserControl1::additemInsert(QString& s, int16_t itemx, int16_t ipic, int32_t ItemColor,
                                 bool topInsert)
{
    if (itemx > m_state.ItemCount)
        return;
    // The spare entry Additem grew goes to the record's place: the entries behind it
    // move down one.
    m_state.Items.pop_back();
    m_state.Items.insert(m_state.Items.begin() + itemx,
                         newRecord(s, ipic, ItemColor, QStringLiteral(" ")));
    ++m_state.ItemCount;
    setScrollMaximum(m_state.ItemCount - 1);
    if (itemx >= m_state.TopRow && itemx <= m_state.BottomRow && !topInsert)
        DrawRows(m_state.TopRow, to16(m_state.TopRow + m_state.RowsInView - 1.0));
    if (m_state.ComboMode == 1)
        m_state.TopRow = -1;
    LastAddedIndex(moveslist::numberText(itemx - 1));
    // A new top line repaints from item 1 whatever the scroll bar shows.
    if (topInsert && m_state.ComboMode == 0)
        DrawRows(1, m_state.RowsInView);
}

void UserControl1::additemAppend(QString& s, int16_t ipic, int32_t ItemColor)
{
    // A picture that cannot be had stops the call before anything is stored.
    if (m_state.DrawStyleValue == 1)
        loadRowPicture(ipic);
    ++m_state.ItemCount;
    m_state.Items[static_cast<size_t>(m_state.ItemCount)] =
        newRecord(s, ipic, ItemColor, QString());
    setScrollMaximum(m_state.ItemCount - 1);
    LastAddedIndex(moveslist::numberText(m_state.ItemCount - 1));
    if (m_state.ComboMode == 1)
        m_state.TopRow = -1;
    if (m_state.ItemCount == 1)
        FirstItemSetup();
    if (m_state.ComboMode == 0) {
        setControlHeight(double(m_state.RowTwips) * m_state.RowsInView);
        if (m_state.ItemCount <= m_state.RowsInView)
            DrawOneRow(to16(m_state.ItemCount));
    }
    if (m_state.ComboMode == 1)
        m_state.TopRow = -1;
}

QString UserControl1::newRecord(const QString& s, int16_t ipic, int32_t ItemColor,
                                const QString& width) const
{
    return col::join({s, QStringLiteral("0"), moveslist::numberText(ipic), m_state.ItemFontName,
                      moveslist::numberText(ItemColor), width});
}

// The maximum is 16 bits: past 32,768 items this is the overflow the caller gets.
void UserControl1::setScrollMaximum(int32_t maximum)
{
    VScroll1->setMaximum(to16(maximum));
}

void UserControl1::RemoveItem(const AnyValue& it)
{
    settleSize();
    const int32_t n = entryOf(it);
    if (n == 0)
        return;
    forgetItem(n);
    if (m_state.ItemCount == 1) {
        Picture1->Cls();
        m_state.ItemCount = 0;
        m_state.NextRowTop = 0;
        m_state.TopRow = -1;
        setScrollMaximum(0);
        m_state.SelectedRow = -1;
        Picture1->hide();
        VScroll1->hide();
        Text1->clear();
        ChosenIndex(QString());
        m_state.Items.resize(1);
        return;
    }
    m_state.Items.erase(m_state.Items.begin() + n);
    --m_state.ItemCount;
    Text1->clear();
    m_state.Items.resize(static_cast<size_t>(m_state.ItemCount) + 1);
    setScrollMaximum(m_state.ItemCount - 1);
    m_state.SelectedRow = -1;
    if (n >= m_state.TopRow - 1 && n <= m_state.BottomRow)
        DrawRows(m_state.TopRow, to16(m_state.TopRow + m_state.RowsInView - 1.0));
    if (m_state.ComboMode == 1)
        m_state.TopRow = -1;
}

// The entry of the 0-based index `it`, or 0 when it names no item: an index out of
// range is ignored by every member that takes one.
// The range is tested on the index as given, plus one, and only then brought to a whole
// entry: 1.4 on a list of two items names no item.
int32_t UserControl1::entryOf(const AnyValue& it) const
{
    const double n = it.toNumberStrict() + 1;
    return n >= 1 && n <= m_state.ItemCount ? static_cast<int32_t>(R(n)) : 0;
}

// Keeps what is drawn on the rows' way out: the row measures, the font name, the
// selection and the scroll bar all stay.
void UserControl1::Clear()
{
    settleSize();
    forgetItems();
    Picture1->Cls();
    Picture3->Cls();
    m_state.ItemCount = 0;
    m_state.Items.resize(1);
}

AnyValue UserControl1::GetItemData(const AnyValue& i) const
{
    const int32_t n = entryOf(i);
    if (n == 0)
        return {};
    m_state.ItemColumns = col::Split(m_state.Items[static_cast<size_t>(n)]);
    return moveslist::numericRead(col::column(m_state.ItemColumns, col::ItemData));
}

void UserControl1::SetItemData(AnyValue it, const AnyValue& valuex)
{
    settleSize();
    if (it.toNumberStrict() == -1)
        it = moveslist::numericRead(LastAddedIndex());
    const int32_t n = entryOf(it);
    if (n == 0)
        return;
    const QString data = moveslist::numberText(valuex.toNumberStrict());
    QString& record = m_state.Items[static_cast<size_t>(n)];
    m_state.ItemColumns = col::Split(record);
    QStringList columns = m_state.ItemColumns;
    columns[col::ItemData] = data;
    record = col::join(columns);
}

AnyValue UserControl1::List(const AnyValue& it) const
{
    const int32_t n = entryOf(it);
    if (n == 0)
        return QString();
    m_state.ItemColumns = col::Split(m_state.Items[static_cast<size_t>(n)]);
    return col::column(m_state.ItemColumns, col::Text);
}

// Stores only, whatever `it` says: no item is touched.
void UserControl1::List(const AnyValue&, const AnyValue& New_List)
{
    settleSize();
    m_state.ListStore = New_List;
    emit propertyChanged(QStringLiteral("List"));
}

AnyValue UserControl1::ListCount() const
{
    return m_state.ItemCount;
}

void UserControl1::ListCount(const AnyValue&)
{
    if (m_inDesign)
        throw ListError(ListErrorCode::NotAtDesignTime);
    throw ListError(ListErrorCode::NotAtRunTime);
}

AnyValue UserControl1::text() const
{
    return Text1->text();
}

void UserControl1::text(const AnyValue& New_text)
{
    settleSize();
    m_state.TextStore = New_text;
    emit propertyChanged(QStringLiteral("Text"));
}

// 0 both when nothing is chosen and when the first item is.
AnyValue UserControl1::ListIndex() const
{
    return moveslist::numericRead(ChosenIndex());
}

void UserControl1::ListIndex(const AnyValue& New_ListIndex)
{
    settleSize();
    if (m_inDesign)
        throw ListError(ListErrorCode::NotAtDesignTime);
    m_state.ListIndexStore = New_ListIndex;
    emit propertyChanged(QStringLiteral("ListIndex"));
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
