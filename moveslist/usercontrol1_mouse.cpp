#include "moveslist/usercontrol1.h"

#include "moveslist/itemrecord.h"
#include "moveslist/listnumbers.h"
#include "moveslist/picturebox.h"

#include <QLineEdit>

#include <cmath>

using moveslist::To16;

namespace col = itemrecord;

// The row under Y; X is never read, so the whole width counts, and beyond it too.
double UserControl1::RowUnder(float Y) const
{
    return std::floor(double(Y) / st.RowTwips);
}

// A pick is kept on Text1 in both modes. The host hears of it last, when the new
// choice is in place and a drop-down has closed.
void UserControl1::Picture1_MouseUp(int16_t& Button, int16_t& Shift, float& X, float& Y)
{
    // Rows never measured have nothing to hit.
    if (st.RowTwips == 0)
        return;
    const double row = RowUnder(Y);
    const double item = row + st.TopRow;
    if (item < 1 || item > st.ItemCount)
        return;
    st.ItemColumns = col::Split(st.Items[static_cast<size_t>(item)]);
    Text1->setText(col::Column(st.ItemColumns, col::Text));
    ChosenIndex(moveslist::numberText(item - 1));
    // Off and on again: a click on the marked row leaves it marked.
    if (st.ComboMode == 0) {
        if (st.SelectedRow != -1)
            InvertRowStrip(To16(st.SelectedRow));
        InvertRowStrip(To16(row));
        st.SelectedRow = To16(row);
    }
    if (st.ComboMode == 1)
        CloseDropDown();
    raiseMouseUp(Button, Shift, X, Y);
}

void UserControl1::Picture1_MouseMove(int16_t&, int16_t&, float&, float& Y)
{
    if (st.ToolTipOn)
        HoverTip(Y);
}

void UserControl1::command1_MouseMove(int16_t& Button, int16_t& Shift, float& X, float& Y)
{
    raiseMouseMove(Button, Shift, X, Y);
}

void UserControl1::UserControl_MouseMove(int16_t& Button, int16_t& Shift, float& X, float& Y)
{
    raiseMouseMove(Button, Shift, X, Y);
}

void UserControl1::Picture1_LostFocus()
{
    if (st.ComboMode == 1 && !Picture1->isHidden())
        CloseDropDown();
}

// The tip shows a row's text in full when its last drawn width is more than the
// canvas holds. It never disturbs the user: a step that fails is passed over.
void UserControl1::HoverTip(float Y)
{
    double row = 0;
    if (st.RowTwips != 0)
        row = RowUnder(Y);
    const double item = row + st.TopRow;
    // Below the last item the columns split last stand, and so does their tip.
    if (item >= 1 && item <= st.ItemCount)
        st.ItemColumns = col::Split(st.Items[static_cast<size_t>(item)]);
    if (st.ItemColumns.size() <= col::DrawnWidth)
        return;
    const bool tooWide =
        moveslist::numericRead(st.ItemColumns[col::DrawnWidth]) > childWidth(Picture1);
    Picture1->setToolTip(tooWide ? st.ItemColumns[col::Text] : QString());
}

// The host gets copies: what it does to them is no concern of the list.
void UserControl1::raiseMouseMove(int16_t Button, int16_t Shift, float X, float Y)
{
    emit MouseMove(Button, Shift, X, Y);
}

void UserControl1::raiseMouseUp(int16_t Button, int16_t Shift, float X, float Y)
{
    emit MouseUp(Button, Shift, X, Y);
}
