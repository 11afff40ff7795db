#include "list_probe.h"

#include "moveslist/listerror.h"

#include <gtest/gtest.h>

namespace {

void addOnTop(UserControl1& list, const QString& text)
{
    QString s = text;
    list.Additem(s, -1);
}

// The row measures the first line gives, worked out from the font on this desktop.
struct RowMeasures {
    int rowTwips;
    int rows;
    int viewHeight;
};

RowMeasures expectedMeasures(const UserControl1& list, int dropDownHeight)
{
    const int rowTwips = static_cast<int>(halfEven(halfEven(measuredTextHeight(list)) * 1.2));
    const int rows = dropDownHeight / rowTwips;
    // Without a border the fit leaves two pixels short of the rows.
    const double height = rows * rowTwips - twipsPerPixelX() * 2;
    return {rowTwips, rows, static_cast<int>(halfEven(height))};
}

class MovesListLayout : public ::testing::Test {
protected:
    std::unique_ptr<UserControl1> list = movesListAsSetUp();
    ListProbe probe{*list};
};

TEST_F(MovesListLayout, TheFirstLineMeasuresTheRowsFromTheFont)
{
    // The block's 10028 hundredths of a millimetre across and its font.
    EXPECT_EQ(list->width(), static_cast<int>(halfEven(10028 * 1440.0 / 2540 / twipsPerPixelX())));
    EXPECT_EQ(list->Fontname(), "MS Sans Serif");
    // BorderStyle 0 came after Mode, so the height still has the bordered allowance.
    EXPECT_FALSE(probe.canvasHidden() || probe.scrollBarHidden());
    EXPECT_EQ(list->height(), pixelsDown(3750 + 48));
    EXPECT_EQ(probe.canvasHeight(), pixelsDown(3750));

    const RowMeasures expected = expectedMeasures(*list, 3750);
    addOnTop(*list, "first line");
    const ListState& st = list->state();
    EXPECT_EQ(st.RowTwips, expected.rowTwips);
    EXPECT_EQ(st.TextTwips, expected.rowTwips);
    EXPECT_EQ(st.RowsInView, expected.rows);
    EXPECT_EQ(st.ViewHeight, expected.viewHeight);
    EXPECT_EQ(st.PixelTwipsY, halfEven(twipsPerPixelY()));
    EXPECT_EQ(probe.canvasHeight(), pixelsDown(expected.viewHeight));
    EXPECT_EQ(list->height(), pixelsDown(double(expected.rowTwips) * expected.rows));
    // The new height ran the layout inside the write, which left TopRow at -1.
    EXPECT_EQ(st.TopRow, -1);
    EXPECT_EQ(st.BottomRow, 1);
    if (measuredTextHeight(*list) == 195 && twipsPerPixelY() == 15) {
        EXPECT_EQ(st.RowTwips, 234);
        EXPECT_EQ(st.RowsInView, 16);
        EXPECT_EQ(st.ViewHeight, 3714);
    }
    // A second first item leaves the measures alone.
    const ListState before = st;
    list->Clear();
    addOnTop(*list, "first again");
    EXPECT_EQ(std::make_tuple(st.RowTwips, st.RowsInView, st.ViewHeight),
              std::make_tuple(before.RowTwips, before.RowsInView, before.ViewHeight));
}

TEST_F(MovesListLayout, AFontFromTheHostIsTheOneRowsAreMeasuredWith)
{
    QFont larger(QStringLiteral("Serif"));
    larger.setPointSizeF(14);
    list->setFont(larger);
    EXPECT_FLOAT_EQ(list->FontSize(), 14);
    const RowMeasures expected = expectedMeasures(*list, 3750);
    addOnTop(*list, "first line");
    EXPECT_EQ(list->state().RowTwips, expected.rowTwips);
    EXPECT_EQ(list->state().ItemFontName, "Serif");
}

TEST_F(MovesListLayout, EachLineOnTopRepaintsFromItemOneAndLeavesTheThumb)
{
    for (int i = 1; i <= 3; ++i)
        addOnTop(*list, QStringLiteral("line %1").arg(i));
    EXPECT_EQ(list->List(0), AnyValue("line 3"));
    EXPECT_EQ(std::make_pair(list->state().TopRow, list->state().BottomRow),
              std::make_pair(int16_t(1), int16_t(3)));
    EXPECT_EQ(probe.scrollMaximum(), 2);
    probe.setScrollValue(1);
    addOnTop(*list, "line 4");
    EXPECT_EQ(list->state().TopRow, 1);
    EXPECT_EQ(probe.scrollValue(), 1);
}

TEST(RowHeight, SetBeforeTheFirstItemIsHonouredAndZeroIsRefused)
{
    auto list = loadedList();
    list->DropDownHeight(3000);
    list->Mode(0);
    list->RowHeight(300);
    const ListState& st = list->state();
    EXPECT_EQ(st.RowsInView, 10);
    EXPECT_EQ(st.ViewHeight, halfEven(3000 + twipsPerPixelX() * 2));
    appendItems(*list, 1);
    EXPECT_EQ(st.RowTwips, 300);
    EXPECT_EQ(list->RowHeight(), AnyValue(300));
    EXPECT_EQ(errorCode([&] { list->RowHeight(0); }), ListErrorCode::InvalidPropertyValue);
    EXPECT_EQ(st.RowTwips, 300);
    // Measured by the first item, it reads 0.
    EXPECT_EQ(unpaintedList(1)->RowHeight(), AnyValue(0));
}

TEST(RowHeight, FittingTwiceWithoutBorderLosesARow)
{
    auto list = loadedList();
    list->BorderStyle(0);
    list->DropDownHeight(3000);
    list->RowHeight(250);
    EXPECT_EQ(list->state().RowsInView, 3000 / 250);
    list->RowHeight(250);
    EXPECT_EQ(list->state().RowsInView, 3000 / 250 - 1);
}

TEST(RowHeight, SetAfterTheFirstItemKeepsTheCanvasHeight)
{
    auto list = movesListAsSetUp();
    ListProbe probe(*list);
    appendItems(*list, 3);
    const int canvasHeight = probe.canvasHeight();
    const int16_t rows = list->state().RowsInView;
    list->RowHeight(list->state().RowTwips * 2);
    EXPECT_EQ(probe.canvasHeight(), canvasHeight);
    EXPECT_LT(list->state().RowsInView, rows);
}

class Scrolling : public ::testing::Test {
protected:
    void SetUp() override { appendItems(*list, 40); }

    std::unique_ptr<UserControl1> list = movesListAsSetUp();
    ListProbe probe{*list};
};

TEST_F(Scrolling, TheValueNamesTheTopItemAndOneRowMoreIsDrawn)
{
    EXPECT_EQ(probe.scrollMaximum(), 39);
    probe.setScrollValue(3);
    EXPECT_EQ(list->state().TopRow, 4);
    EXPECT_EQ(list->state().BottomRow, 4 + list->state().RowsInView);
    EXPECT_EQ(list->state().SelectedRow, -1);
    // The last item alone can stand at the top.
    probe.setScrollValue(39);
    EXPECT_EQ(std::make_pair(list->state().TopRow, list->state().BottomRow),
              std::make_pair(int16_t(40), int16_t(40)));
}

TEST_F(Scrolling, AdditemAfterClearPullsTheBarDownAndRepaintsInsideTheCall)
{
    probe.setScrollValue(10);
    list->Clear();
    EXPECT_EQ(list->state().TopRow, 11);
    addOnTop(*list, "fresh");
    EXPECT_EQ(probe.scrollValue(), 0);
    EXPECT_EQ(std::make_pair(list->state().TopRow, list->state().BottomRow),
              std::make_pair(int16_t(1), int16_t(1)));
}

TEST_F(Scrolling, AResizeMovesAListOfItemsToValueOne)
{
    list->show();
    list->resize(list->width() + 10, list->height());
    EXPECT_EQ(probe.scrollValue(), 1);
    EXPECT_EQ(list->state().TopRow, 2);
    // Already there: no repaint, and TopRow stays unpainted.
    list->resize(list->width() + 10, list->height());
    EXPECT_EQ(probe.scrollValue(), 1);
    EXPECT_EQ(list->state().TopRow, -1);
}

TEST(Resizing, WidthRefitsTheCanvasHeightMovesNothingAndOneItemStaysOnTop)
{
    auto list = movesListAsSetUp();
    ListProbe probe(*list);
    appendItems(*list, 1);
    const QImage before = list->canvas().copy();
    const ListState measures = list->state();
    const int scrollBar = list->width() - probe.canvasWidth();
    list->show();
    list->resize(list->width() + 40, list->height() + 50);
    EXPECT_EQ(probe.canvasWidth(), before.width() + 40);
    EXPECT_EQ(list->width() - probe.canvasWidth(), scrollBar);
    EXPECT_EQ(probe.canvasHeight(), before.height());
    EXPECT_EQ(list->state().RowsInView, measures.RowsInView);
    // The rows stay as drawn, and a lone item cannot be scrolled to value 1.
    EXPECT_EQ(list->canvas().copy(before.rect()), before);
    EXPECT_EQ(probe.scrollValue(), 0);
    EXPECT_EQ(list->state().TopRow, -1);
}

} // namespace
