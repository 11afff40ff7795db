#include "moveslist/usercontrol1.h"

#include "moveslist/listerror.h"
#include "moveslist/listnumbers.h"
#include "moveslist/picturebox.h"

#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

using moveslist::To16;
using moveslist::To32;

namespace {

// Height allowance of a bordered control, in twips.
constexpr int BorderAllowance = 48;
// The drop button covers the last 20 twips of Text1.
constexpr int ButtonOverlap = 20;

// The layout and scroll handlers go on with their next step when one fails: the
// platform calls them, and nobody would be there to hear of it.
template <typename Step> void IgnoringFailure(Step&& step)
{
    try {
        step();
    } catch (const std::exception&) {
    }
}

} // namespace

// Lays out the widths only: the rows, their heights and the canvas stay as they are,
// except that a list with items is moved to value 1, which repaints from item 2.
void UserControl1::UserControl_Resize()
{
    laidOutSize = size();
    IgnoringFailure([&] { st.ControlWidth = To16(R(ControlWidthTwips())); });
    st.TopRow = -1;
    setChildWidth(command1, ButtonWidth());
    float gap = SideGap();
    if (surfaceBorderStyle == 0) {
        Text1->setFrame(false);
        gap = 0;
    }
    setChildWidth(Picture1, st.ControlWidth - childWidth(VScroll1) - gap);
    setChildWidth(Picture3, childWidth(Picture1));
    setChildWidth(VScroll1, childWidth(command1) - 4);
    setChildWidth(Text1, st.ControlWidth - childWidth(command1) - gap);
    setChildLeft(command1, childWidth(Text1) - ButtonOverlap);
    setChildLeft(VScroll1, childWidth(Text1));
    if (st.ComboMode == 1 && st.ItemCount == 0)
        IgnoringFailure([&] { setControlHeight(childHeight(Text1)); });
    setChildHeight(command1, childHeight(Text1));
    if (st.ItemCount >= 1 && st.ComboMode == 0)
        IgnoringFailure([&] { setScrollValue(1); });
}

// Value v puts item v + 1 on top; one row more than fits is drawn, below the canvas.
void UserControl1::VScroll1_Change()
{
    int value = 0;
    IgnoringFailure([&] { value = VScroll1->value(); });
    IgnoringFailure([&] { DrawRows(To16(value + 1.0), To16(value + 1.0 + st.RowsInView)); });
    // The mark went with the repaint.
    st.SelectedRow = -1;
    IgnoringFailure([&] { Picture1->setFocus(); });
}

void UserControl1::FirstItemSetup()
{
    const double lineTwips = R(R(Picture1->TextHeight(QStringLiteral("M"))) * 1.2);
    st.TextTwips = To16(lineTwips);
    Picture3->BackColor(Picture1->BackColor());
    setChildWidth(Picture3, childWidth(Picture1));
    Picture3->FontSize(Picture1->FontSize());
    st.PixelTwipsX = To16(R(ScreenTwipsX()));
    st.PixelTwipsY = To16(R(ScreenTwipsY()));
    // A RowHeight of 24 or more, set before the first item, is honoured.
    if (st.RowTwips < 24) {
        st.RowTwips = To32(lineTwips);
        FitRows();
        setChildHeight(Picture1, st.ViewHeight);
        setChildHeight(VScroll1, st.ViewHeight);
        if (st.ComboMode == 0)
            st.TopRow = 1;
    }
}

// Cuts ViewHeight to whole rows. Without a border it leaves 2 pixels short of them,
// so a second run loses a row.
void UserControl1::FitRows()
{
    if (st.RowTwips == 0)
        throw ListError(ListErrorCode::DivisionByZero,
                        QStringLiteral("Division by zero: RowHeight is 0"));
    const int32_t rows = st.ViewHeight / st.RowTwips;
    const auto twips = static_cast<float>(ScreenTwipsX());
    float h = float(rows) * float(st.RowTwips) + twips * 24 / 12;
    if (surfaceBorderStyle == 0)
        h -= twips * BorderAllowance / 12;
    st.RowsInView = To16(rows);
    st.ViewHeight = To16(R(h));
}

int16_t UserControl1::Mode() const
{
    return st.ModeValue;
}

// Assigning Mode is what makes the list visible, even to the value it has.
void UserControl1::Mode(int16_t New_Mode)
{
    st.ModeValue = New_Mode;
    emit PropertyChanged(QStringLiteral("Mode"));
    st.ComboMode = st.ModeValue;
    ModeCommonSteps();
    if (st.ComboMode == 0)
        ModeListBranch();
    else if (st.ComboMode == 1)
        ModeDropDownBranch();
}

void UserControl1::ModeCommonSteps()
{
    st.ControlWidth = To16(R(ControlWidthTwips()));
    st.TopRow = -1;
    setChildWidth(command1, ButtonWidth());
    setChildWidth(VScroll1, childWidth(command1));
}

void UserControl1::ModeListBranch()
{
    const float gap = surfaceBorderStyle == 0 ? 0 : SideGap();
    command1->hide();
    Text1->hide();
    setChildTop(Picture1, 0);
    setChildTop(VScroll1, 0);
    setChildWidth(Picture1, st.ControlWidth - childWidth(VScroll1) - gap);
    setChildWidth(Picture3, childWidth(Picture1));
    Picture1->show();
    VScroll1->show();
    setControlHeight(st.ViewHeight + surfaceBorderStyle * BorderAllowance);
    setChildHeight(Picture1, st.ViewHeight);
    setChildHeight(VScroll1, st.ViewHeight);
    setChildLeft(VScroll1, childWidth(Picture1));
    setScrollMaximum(0);
}

AnyValue UserControl1::RowHeight() const
{
    return st.RowHeightValue;
}

// Only the row measures move: the canvas keeps its height and nothing is repainted.
void UserControl1::RowHeight(const AnyValue& New_RowHeight)
{
    const int32_t rowTwips = To32(New_RowHeight.toNumberStrict());
    if (rowTwips < 1)
        throw ListError(ListErrorCode::InvalidPropertyValue,
                        QStringLiteral("Invalid property value: RowHeight must be 1 or more"));
    st.RowHeightValue = New_RowHeight;
    st.RowTwips = rowTwips;
    FitRows();
    emit PropertyChanged(QStringLiteral("RowHeight"));
}

int16_t UserControl1::DropDownHeight() const
{
    return st.DropDownHeightValue;
}

// Nothing moves until Mode is assigned, so this comes first.
void UserControl1::DropDownHeight(int16_t New_DropDownHeight)
{
    st.DropDownHeightValue = New_DropDownHeight;
    st.ViewHeight = st.DropDownHeightValue;
    emit PropertyChanged(QStringLiteral("DropDownHeight"));
}

// A value outside the bar's range is refused rather than clamped; setting the value
// it has already runs nothing.
void UserControl1::setScrollValue(int value)
{
    if (value < VScroll1->minimum() || value > VScroll1->maximum())
        throw ListError(
            ListErrorCode::InvalidPropertyValue,
            QStringLiteral("Invalid property value: %1 is outside the scroll bar").arg(value));
    VScroll1->setValue(value);
}

double UserControl1::ScreenTwipsX() const
{
    return TwipsPerInch / screen()->logicalDotsPerInchX();
}

double UserControl1::ScreenTwipsY() const
{
    return TwipsPerInch / screen()->logicalDotsPerInchY();
}

// P x 200 / 12, in single precision: 250 twips at 15 twips per pixel.
float UserControl1::ButtonWidth() const
{
    return static_cast<float>(ScreenTwipsX()) * 200 / 12;
}

// P x 48 / 12: four pixels.
float UserControl1::SideGap() const
{
    return static_cast<float>(ScreenTwipsX()) * 48 / 12;
}

double UserControl1::ControlWidthTwips() const
{
    return width() * ScreenTwipsX();
}

// The layout handler runs inside this write whenever the height really changes,
// whether or not the platform delivers its resize at once.
void UserControl1::setControlHeight(double twips)
{
    const int pixels = std::max(0, static_cast<int>(R(twips / ScreenTwipsY())));
    if (pixels == height())
        return;
    resize(width(), pixels);
    if (size() != laidOutSize)
        UserControl_Resize();
}

namespace {

int Pixels(double twips, double twipsPerPixel)
{
    return std::max(0, static_cast<int>(R(twips / twipsPerPixel)));
}

} // namespace

void UserControl1::setChildLeft(QWidget* child, double twips)
{
    child->move(borderPixels() + Pixels(twips, ScreenTwipsX()), child->y());
}

void UserControl1::setChildTop(QWidget* child, double twips)
{
    child->move(child->x(), borderPixels() + Pixels(twips, ScreenTwipsY()));
}

void UserControl1::setChildWidth(QWidget* child, double twips)
{
    child->resize(Pixels(twips, ScreenTwipsX()), child->height());
}

void UserControl1::setChildHeight(QWidget* child, double twips)
{
    child->resize(child->width(), Pixels(twips, ScreenTwipsY()));
}

double UserControl1::childWidth(const QWidget* child) const
{
    return child->width() * ScreenTwipsX();
}

double UserControl1::childHeight(const QWidget* child) const
{
    return child->height() * ScreenTwipsY();
}
