#include "moveslist/usercontrol1.h"

#include "moveslist/listnumbers.h"
#include "moveslist/picturebox.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

using moveslist::to16;

namespace {

// The drop button covers the last 20 twips of Text1.
constexpr int ButtonOverlap = 20;
// Height allowance of a bordered control, in twips.
constexpr int BorderAllowance = 48;

} // namespace

// The head at the top, the list part placed under it; which of them shows, and the
// control's height, are left as they were.
void UserControl1::modeDropDownBranch()
{
    const float gap = m_surfaceBorderStyle == 0 ? 0 : sideGap();
    setChildTop(command1, 0);
    setChildTop(Text1, 0);
    setChildTop(Picture1, childHeight(Text1));
    setChildWidth(command1, childWidth(VScroll1));
    setChildWidth(Text1, m_state.ControlWidth - childWidth(command1) - gap);
    setChildWidth(Picture1, childWidth(Text1));
    setChildWidth(Picture3, childWidth(Text1));
    setChildLeft(command1, childWidth(Text1) - ButtonOverlap);
    setChildLeft(VScroll1, childWidth(Text1));
    setChildWidth(command1, childWidth(VScroll1) + ButtonOverlap);
    setChildHeight(command1, childHeight(Text1));
    setChildTop(VScroll1, childHeight(Text1));
    Text1->show();
    command1->show();
}

void UserControl1::CloseDropDown()
{
    Picture1->hide();
    VScroll1->hide();
    setControlHeight(childHeight(Text1));
}

// The control grows down over what its host placed below the head. Its place among the
// host's widgets is the host's matter: a host stacks it above what the list part must
// cover.
void UserControl1::OpenDropDown()
{
    const float height = float(m_state.ViewHeight) + float(childHeight(Text1)) +
                         float(m_surfaceBorderStyle * BorderAllowance);
    setControlHeight(height);
    setChildHeight(Picture1, m_state.ViewHeight);
    setChildHeight(VScroll1, childHeight(Picture1));
    Picture1->show();
    VScroll1->show();
}

// Every opening paints from item 1 and leaves the scroll bar where it was: after an
// earlier scroll the rows and the bar differ until the next scroll.
void UserControl1::command1_MouseUp(int16_t&, int16_t&, float&, float&)
{
    if (m_state.ItemCount == 0)
        return;
    if (m_state.SelectedRow != -1)
        InvertRowStrip(to16(m_state.SelectedRow));
    m_state.SelectedRow = -1;
    if (!Picture1->isHidden()) {
        CloseDropDown();
        return;
    }
    OpenDropDown();
    Picture1->raise();
    VScroll1->raise();
    Picture1->setFocus();
    if (m_state.ComboMode != 0 || m_state.TopRow == -1) {
        setChildTop(Picture1, childHeight(Text1));
        VScroll1->show();
        DrawRows(1, m_state.RowsInView);
        Picture1->raise();
        Picture1->setFocus();
    }
}
