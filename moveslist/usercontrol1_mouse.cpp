#include "moveslist/usercontrol1.h"

#include "moveslist/itemrecord.h"
#include "moveslist/listnumbers.h"
#include "moveslist/picturebox.h"

#include <QLineEdit>

#include <cmath>

using moveslist::to16;

namespace col = itemrecord;

// The row under Y; X is never read, so the whole width counts, and beyond it too.
double UserControl1::rowUnder(float Y) const
{
    return std::floor(double(Y) / m_state.RowTwips);
}

// A pick is kept on Text1 in both modes. The host hears of it last, when the new
// choice is in place and a drop-down has closed.
void UserControl1::Picture1_MouseUp(int16_t& Button, int16_t& Shift, float& X, float& Y)
{
    // Rows never measured have nothing to hit.
    if (m_state.RowTwips == 0)
        return;
    const double row = rowUnder(Y);
    const double item = row + m_state.TopRow;
    if (item < 1 || item > m_state.ItemCount)
        return;
    m_state.ItemColumns = col::Split(m_state.Items[static_cast<size_t>(item)]);
    Text1->setText(col::column(m_state.ItemColumns, col::Text));
    ChosenIndex(moveslist::numberText(item - 1));
    // Off and on again: a click on the marked row leaves it marked.
    if (m_state.ComboMode == 0) {
        if (m_state.SelectedRow != -1)
            InvertRowStrip(to16(m_state.SelectedRow));
        InvertRowStrip(to16(row));
        m_state.SelectedRow = to16(row);
    }
    if (m_state.ComboMode == 1)
        CloseDropDown();
    raiseMouseUp(Button, Shift, X, Y);
}

void UserControl1::Picture1_MouseMove(int16_t&, int16_t&, float&, float& Y)
{
    if (m_state.ToolTipOn)
        hoverTip(Y);
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
    if (m_state.ComboMode == 1 && !Picture1->isHidden())
        CloseDropDown();
}

// The tip shows a row's text in full when its last drawn width is more than the
// canvas holds. It never disturbs the user: a step that fails is passed over.
void UserControl1::hoverTip(float Y)
{
    double row = 0;
    if (m_state.RowTwips != 0)
        row = rowUnder(Y);
    const double item = row + m_state.TopRow;
    // Below the last item the columns split last stand, and so does their tip.
    if (item >= 1 && item <= m_state.ItemCount)
        m_state.ItemColumns = col::Split(m_state.Items[static_cast<size_t>(item)]);
    if (m_state.ItemColumns.size() <= col::DrawnWidth)
        return;
    const bool tooWide =
        moveslist::numericRead(m_state.ItemColumns[col::DrawnWidth]) > childWidth(Picture1);
    Picture1->setToolTip(tooWide ? m_state.ItemColumns[col::Text] : QString());
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
