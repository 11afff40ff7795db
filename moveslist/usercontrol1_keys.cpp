#include "moveslist/usercontrol1.h"

#include "common/key_numbers.h"
#include "moveslist/itemrecord.h"
#include "moveslist/listnumbers.h"
#include "moveslist/picturebox.h"

#include <QLineEdit>
#include <QScrollBar>

#include <algorithm>

using moveslist::to16;

namespace col = itemrecord;

// The mark stays on the first canvas row and the list scrolls under it: the item the
// keys act on is always the one at TopRow. No key pages.
void UserControl1::Picture1_KeyDown(int16_t& KeyCode, int16_t& Shift)
{
    int step = 0;
    switch (KeyCode) {
    case key::Return:
        commitTopItem(KeyCode, Shift);
        return;
    case key::Escape:
        dropHighlight();
        return;
    case key::Up:
        step = -1;
        if (VScroll1->value() == 0)
            return;
        break;
    case key::Down:
        step = 1;
        if (VScroll1->value() == m_state.ItemCount - 1)
            return;
        break;
    case key::Home:
        keyScrollTo(0);
        break;
    case key::End:
        // The last item alone on the first row.
        keyScrollTo(m_state.ItemCount - 1);
        break;
    default:
        break;
    }
    keyTail(step, KeyCode, Shift);
}

void UserControl1::Picture1_KeyPress(int16_t& KeyAscii)
{
    int16_t ascii = KeyAscii;
    emit KeyPress(ascii);
}

void UserControl1::Picture1_KeyUp(int16_t& KeyCode, int16_t& Shift)
{
    raiseKeyUp(KeyCode, Shift);
}

// What is typed into the head stays there: it neither searches nor chooses.
void UserControl1::Text1_KeyDown(int16_t& KeyCode, int16_t& Shift)
{
    raiseKeyDown(KeyCode, Shift);
}

// The item on the first canvas row is committed, wherever the mark is and whether
// there is one at all; the mark stays as it was.
void UserControl1::commitTopItem(int16_t KeyCode, int16_t Shift)
{
    if (m_state.TopRow < 1 || m_state.TopRow > m_state.ItemCount)
        return;
    m_state.ItemColumns = col::Split(m_state.Items[static_cast<size_t>(m_state.TopRow)]);
    Text1->setText(col::column(m_state.ItemColumns, col::Text));
    ChosenIndex(moveslist::numberText(m_state.TopRow - 1));
    if (m_state.ComboMode == 1)
        CloseDropDown();
    raiseKeyDown(KeyCode, Shift);
}

// Takes back nothing a commit has done, and commits nothing.
void UserControl1::dropHighlight()
{
    if (m_state.SelectedRow > -1)
        InvertRowStrip(to16(m_state.SelectedRow));
    m_state.SelectedRow = -1;
    if (m_state.ComboMode == 1)
        CloseDropDown();
}

// The first press only shows the mark on the top row. After that a step scrolls one
// item, whose repaint wipes the mark inside the write of the value; a step of 0 just
// toggles the mark on row 0.
void UserControl1::keyTail(int step, int16_t KeyCode, int16_t Shift)
{
    if (m_state.SelectedRow == -1) {
        InvertRowStrip(0);
        m_state.SelectedRow = 0;
        return;
    }
    const int v = VScroll1->value();
    keyScrollTo(v + step);
    m_state.SelectedRow = 0;
    InvertRowStrip(0);
    raiseKeyDown(KeyCode, Shift);
}

// No key takes the position outside the bar's range, which is 0 to 0 on an empty list
// and after Mode 0 until the next item: the key's other steps go on as they are.
void UserControl1::keyScrollTo(int value)
{
    setScrollValue(std::clamp(value, VScroll1->minimum(), VScroll1->maximum()));
}

void UserControl1::raiseKeyDown(int16_t KeyCode, int16_t Shift)
{
    emit KeyDown(KeyCode, Shift);
}

void UserControl1::raiseKeyUp(int16_t KeyCode, int16_t Shift)
{
    emit KeyUp(KeyCode, Shift);
}
