#include "moveslist/usercontrol1.h"

#include "moveslist/listerror.h"
#include "moveslist/listnumbers.h"
#include "moveslist/picturebox.h"

#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

using moveslist::to16;
using moveslist::to32;

namespace {

// Height allowance of a bordered control, in twips.
constexpr int BorderAllowance = 48;
// The drop button covers the last 20 twips of Text1.
constexpr int ButtonOverlap = 20;

// The layout and scroll handlers go on with their next step when one fails: the
// platform calls them, and nobody would be there to hear of it.
template <typename Step> void ignoringFailure(Step&& step)
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
    m_laidOutSize = size();
    ignoringFailure([&] { m_state.ControlWidth = to16(R(controlWidthTwips())); });
    m_state.TopRow = -1;
    setChildWidth(command1, buttonWidth());
    float gap = sideGap();
    if (m_surfaceBorderStyle == 0) {
        Text1->setFrame(false);
        gap = 0;
    }
    setChildWidth(Picture1, m_state.ControlWidth - childWidth(VScroll1) - gap);
    setChildWidth(Picture3, childWidth(Picture1));
    setChildWidth(VScroll1, childWidth(command1) - 4);
    setChildWidth(Text1, m_state.ControlWidth - childWidth(command1) - gap);
    setChildLeft(command1, childWidth(Text1) - ButtonOverlap);
    setChildLeft(VScroll1, childWidth(Text1));
    if (m_state.ComboMode == 1 && m_state.ItemCount == 0)
        ignoringFailure([&] { setControlHeight(childHeight(Text1)); });
    setChildHeight(command1, childHeight(Text1));
    if (m_state.ItemCount >= 1 && m_state.ComboMode == 0)
        ignoringFailure([&] { setScrollValue(1); });
}

void UserControl1::resize(int w, int h)
{
    resize(QSize(w, h));
}

void UserControl1::resize(const QSize& size)
{
    QWidget::resize(size);
    layOutNewSize();
}

void UserControl1::setGeometry(int x, int y, int w, int h)
{
    setGeometry(QRect(x, y, w, h));
}

void UserControl1::setGeometry(const QRect& rect)
{
    QWidget::setGeometry(rect);
    layOutNewSize();
}

void UserControl1::layOutNewSize()
{
    if (size() != m_laidOutSize)
        UserControl_Resize();
}

// A size set on the plain widget while the control was hidden (by a layout, say) is
// laid out before anything else reaches the control, as if inside that write.
void UserControl1::settleSize()
{
    if (m_laidOutSize.isValid() && size() != m_laidOutSize)
        UserControl_Resize();
}

// Value v puts item v + 1 on top; one row more than fits is drawn, below the canvas.
void UserControl1::VScroll1_Change()
{
    int value = 0;
    ignoringFailure([&] { value = VScroll1->value(); });
    ignoringFailure([&] { DrawRows(to16(value + 1.0), to16(value + 1.0 + m_state.RowsInView)); });
    // The mark went with the repaint.
    m_state.SelectedRow = -1;
    ignoringFailure([&] { Picture1->setFocus(); });
}

void UserControl1::FirstItemSetup()
{
    const double lineTwips = R(R(Picture1->TextHeight(QStringLiteral("M"))) * 1.2);
    m_state.TextTwips = to16(lineTwips);
    Picture3->BackColor(Picture1->BackColor());
    setChildWidth(Picture3, childWidth(Picture1));
    Picture3->FontSize(Picture1->FontSize());
    m_state.PixelTwipsX = to16(R(screenTwipsX()));
    m_state.PixelTwipsY = to16(R(screenTwipsY()));
    // A RowHeight of 24 or more, set before the first item, is honoured.
    if (m_state.RowTwips < 24) {
        m_state.RowTwips = to32(lineTwips);
        FitRows();
        setChildHeight(Picture1, m_state.ViewHeight);
        setChildHeight(VScroll1, m_state.ViewHeight);
        if (m_state.ComboMode == 0)
            m_state.TopRow = 1;
    }
}

// Cuts ViewHeight to whole rows. Without a border it leaves 2 pixels short of them,
// so a second run loses a row.
void UserControl1::FitRows()
{
    if (m_state.RowTwips == 0)
        throw ListError(ListErrorCode::DivisionByZero);
    const int32_t rows = m_state.ViewHeight / m_state.RowTwips;
    const auto twips = static_cast<float>(screenTwipsX());
    float h = float(rows) * float(m_state.RowTwips) + twips * 24 / 12;
    if (m_surfaceBorderStyle == 0)
        h -= twips * BorderAllowance / 12;
    m_state.RowsInView = to16(rows);
    m_state.ViewHeight = to16(R(h));
}

int16_t UserControl1::Mode() const
{
    return m_state.ModeValue;
}

// Assigning Mode is what makes the list visible, even to the value it has.
void UserControl1::Mode(int16_t New_Mode)
{
    settleSize();
    m_state.ModeValue = New_Mode;
    emit propertyChanged(QStringLiteral("Mode"));
    m_state.ComboMode = m_state.ModeValue;
    modeCommonSteps();
    if (m_state.ComboMode == 0)
        modeListBranch();
    else if (m_state.ComboMode == 1)
        modeDropDownBranch();
}

void UserControl1::modeCommonSteps()
{
    m_state.ControlWidth = to16(R(controlWidthTwips()));
    m_state.TopRow = -1;
    setChildWidth(command1, buttonWidth());
    setChildWidth(VScroll1, childWidth(command1));
}

void UserControl1::modeListBranch()
{
    const float gap = m_surfaceBorderStyle == 0 ? 0 : sideGap();
    command1->hide();
    Text1->hide();
    setChildTop(Picture1, 0);
    setChildTop(VScroll1, 0);
    setChildWidth(Picture1, m_state.ControlWidth - childWidth(VScroll1) - gap);
    setChildWidth(Picture3, childWidth(Picture1));
    Picture1->show();
    VScroll1->show();
    setControlHeight(m_state.ViewHeight + m_surfaceBorderStyle * BorderAllowance);
    setChildHeight(Picture1, m_state.ViewHeight);
    setChildHeight(VScroll1, m_state.ViewHeight);
    setChildLeft(VScroll1, childWidth(Picture1));
    setScrollMaximum(0);
}

AnyValue UserControl1::RowHeight() const
{
    return m_state.RowHeightValue;
}

// Only the row measures move: the canvas keeps its height and nothing is repainted.
// The value is kept first, as given; a value that makes no row height fails after that.
void UserControl1::RowHeight(const AnyValue& New_RowHeight)
{
    settleSize();
    m_state.RowHeightValue = New_RowHeight;
    const int32_t rowTwips = to32(New_RowHeight.toNumberStrict());
    if (rowTwips < 1)
        throw ListError(ListErrorCode::InvalidPropertyValue);
    m_state.RowTwips = rowTwips;
    FitRows();
    emit propertyChanged(QStringLiteral("RowHeight"));
}

int16_t UserControl1::DropDownHeight() const
{
    return m_state.DropDownHeightValue;
}

// Nothing moves until Mode is assigned, so this comes first.
void UserControl1::DropDownHeight(int16_t New_DropDownHeight)
{
    settleSize();
    m_state.DropDownHeightValue = New_DropDownHeight;
    m_state.ViewHeight = m_state.DropDownHeightValue;
    emit propertyChanged(QStringLiteral("DropDownHeight"));
}

// A value outside the bar's range is refused rather than clamped; setting the value
// it has already runs nothing.
void UserControl1::setScrollValue(int value)
{
    if (value < VScroll1->minimum() || value > VScroll1->maximum())
        throw ListError(ListErrorCode::InvalidPropertyValue);
    VScroll1->setValue(value);
}

double UserControl1::screenTwipsX() const
{
    return TwipsPerInch / screen()->logicalDotsPerInchX();
}

double UserControl1::screenTwipsY() const
{
    return TwipsPerInch / screen()->logicalDotsPerInchY();
}

// P x 200 / 12, in single precision: 250 twips at 15 twips per pixel.
float UserControl1::buttonWidth() const
{
    return static_cast<float>(screenTwipsX()) * 200 / 12;
}

// P x 48 / 12: four pixels.
float UserControl1::sideGap() const
{
    return static_cast<float>(screenTwipsX()) * 48 / 12;
}

double UserControl1::controlWidthTwips() const
{
    return width() * screenTwipsX();
}

// The layout handler runs inside this write whenever the height really changes,
// whether or not the platform delivers its resize at once.
void UserControl1::setControlHeight(double twips)
{
    const int pixels = std::max(0, static_cast<int>(R(twips / screenTwipsY())));
    if (pixels == height())
        return;
    resize(width(), pixels);
}

namespace {

int pixels(double twips, double twipsPerPixel)
{
    return std::max(0, static_cast<int>(R(twips / twipsPerPixel)));
}

} // namespace

void UserControl1::setChildLeft(QWidget* child, double twips)
{
    child->move(borderPixels() + pixels(twips, screenTwipsX()), child->y());
}

void UserControl1::setChildTop(QWidget* child, double twips)
{
    child->move(child->x(), borderPixels() + pixels(twips, screenTwipsY()));
}

void UserControl1::setChildWidth(QWidget* child, double twips)
{
    child->resize(pixels(twips, screenTwipsX()), child->height());
}

void UserControl1::setChildHeight(QWidget* child, double twips)
{
    child->resize(child->width(), pixels(twips, screenTwipsY()));
}

double UserControl1::childWidth(const QWidget* child) const
{
    return child->width() * screenTwipsX();
}

double UserControl1::childHeight(const QWidget* child) const
{
    return child->height() * screenTwipsY();
}
