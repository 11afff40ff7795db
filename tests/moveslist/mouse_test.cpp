#include "list_events.h"
#include "list_probe.h"

#include <QTest>

#include <gtest/gtest.h>

namespace {

class MousePick : public ::testing::Test {
protected:
    void click(int row, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseClick(probe.canvasWidget(), button, keys, RowPoint(*list, row));
    }

    std::unique_ptr<UserControl1> list = WhiteList(20);
    ListProbe probe{*list};
    ListEvents events{*list};
};

TEST_F(MousePick, AReleaseOnARowChoosesItsItemMarksItAndTellsTheHostLast)
{
    QString seen;
    QObject::connect(list.get(), &UserControl1::MouseUp,
                     [&](int16_t&, int16_t&, float&, float&) { seen = list->text().toText(); });
    click(2, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(list->text(), AnyValue("item 3"));
    EXPECT_EQ(seen, "item 3");
    EXPECT_EQ(probe.ChosenIndex(), " 2");
    EXPECT_EQ(list->state().SelectedRow, 2);
    EXPECT_TRUE(RowMarked(*list, 2));
    ASSERT_EQ(events.MouseUp.size(), 1u);
    const ListEvents::Mouse& up = events.MouseUp[0];
    EXPECT_EQ(up.Button, 1);
    EXPECT_EQ(up.Shift, 1);
    // In twips, on the canvas.
    EXPECT_FLOAT_EQ(up.X, float(30 * TwipsPerPixelX()));
    EXPECT_FLOAT_EQ(up.Y, float(RowPoint(*list, 2).y() * TwipsPerPixelY()));
    EXPECT_EQ(events.Click + events.MouseDown, 0);
}

TEST_F(MousePick, TheRightButtonPicksAsTheLeftDoesAndEnabledGatesNothing)
{
    list->Enabled(false);
    click(1, Qt::RightButton, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(list->text(), AnyValue("item 2"));
    EXPECT_EQ(list->state().SelectedRow, 1);
    ASSERT_EQ(events.MouseUp.size(), 1u);
    EXPECT_EQ(events.MouseUp[0].Button, 2);
    EXPECT_EQ(events.MouseUp[0].Shift, 6);
}

TEST_F(MousePick, TheMarkedRowStaysMarkedAndAnotherRowTakesTheMarkOver)
{
    click(2);
    click(2);
    EXPECT_TRUE(RowMarked(*list, 2));
    click(4);
    EXPECT_FALSE(RowMarked(*list, 2));
    EXPECT_TRUE(RowMarked(*list, 4));
    EXPECT_EQ(events.MouseUp.size(), 3u);
}

TEST_F(MousePick, TheSecondReleaseOfADoubleClickPicksTheSameRowAgain)
{
    QWidget* canvas = probe.canvasWidget();
    const QPoint at = RowPoint(*list, 3);
    QTest::mouseClick(canvas, Qt::LeftButton, {}, at);
    QTest::mouseDClick(canvas, Qt::LeftButton, {}, at);
    QTest::mouseRelease(canvas, Qt::LeftButton, {}, at);
    EXPECT_TRUE(RowMarked(*list, 3));
    EXPECT_EQ(list->state().SelectedRow, 3);
    EXPECT_EQ(events.MouseUp.size(), 2u);
}

TEST_F(MousePick, RowsBelowTheLastItemAreDead)
{
    auto shortList = WhiteList(3);
    ListEvents heard(*shortList);
    QTest::mouseClick(ListProbe(*shortList).canvasWidget(), Qt::LeftButton, {},
                      RowPoint(*shortList, 4));
    EXPECT_EQ(shortList->text(), AnyValue(""));
    EXPECT_EQ(shortList->state().SelectedRow, -1);
    EXPECT_TRUE(heard.MouseUp.empty());

    // The last item alone on the first row: every row beneath it is dead.
    list->ShowItem(20);
    click(1);
    click(5);
    EXPECT_TRUE(events.MouseUp.empty());
    EXPECT_EQ(list->state().SelectedRow, 0);
    click(0);
    EXPECT_EQ(events.MouseUp.size(), 1u);
}

TEST_F(MousePick, AReleaseAboveTheCanvasPicksTheRowsAboveTheTop)
{
    QWidget* canvas = probe.canvasWidget();
    const QPoint above(30, -PixelsDown(list->state().RowTwips * 1.5));
    // Nothing lies above item 1.
    QTest::mousePress(canvas, Qt::LeftButton, {}, RowPoint(*list, 0));
    QTest::mouseRelease(canvas, Qt::LeftButton, {}, above);
    EXPECT_TRUE(events.MouseUp.empty());

    probe.setScrollValue(5);
    QTest::mousePress(canvas, Qt::LeftButton, {}, RowPoint(*list, 0));
    QTest::mouseRelease(canvas, Qt::LeftButton, {}, above);
    EXPECT_EQ(list->text(), AnyValue("item 4"));
    EXPECT_EQ(events.MouseUp.size(), 1u);
}

TEST(MouseOnAnEmptyList, ClicksAreIgnored)
{
    auto list = LoadedList();
    list->DropDownHeight(2000);
    list->Mode(0);
    ListEvents events(*list);
    QTest::mouseClick(ListProbe(*list).canvasWidget(), Qt::LeftButton, {}, QPoint(10, 10));
    AppendItems(*list, 1);
    list->RemoveItem(0);
    QTest::mouseClick(ListProbe(*list).canvasWidget(), Qt::LeftButton, {}, QPoint(10, 10));
    EXPECT_TRUE(events.MouseUp.empty());
    EXPECT_EQ(list->text(), AnyValue(""));
}

// Moves with a button held go to the widget pressed, wherever the pointer is.
TEST(MouseMoves, OnlyTheButtonAndTheBareSurfaceTellTheHost)
{
    auto list = LoadedList();
    list->resize(300, 40);
    list->DropDownHeight(2000);
    list->Mode(1);
    AppendItems(*list, 5);
    ListProbe probe(*list);
    ListEvents events(*list);

    QTest::mousePress(probe.canvasWidget(), Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseMove(probe.canvasWidget(), QPoint(9, 9));
    QTest::mouseRelease(probe.canvasWidget(), Qt::LeftButton, {}, QPoint(9, 600));
    QTest::mousePress(probe.textBox(), Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseMove(probe.textBox(), QPoint(9, 9));
    QTest::mouseRelease(probe.textBox(), Qt::LeftButton, {}, QPoint(9, 9));
    EXPECT_TRUE(events.MouseMove.empty());

    QTest::mousePress(probe.button(), Qt::RightButton, {}, QPoint(2, 2));
    QTest::mouseMove(probe.button(), QPoint(4, 6));
    QTest::mouseRelease(probe.button(), Qt::RightButton, {}, QPoint(4, 6));
    QTest::mousePress(list.get(), Qt::LeftButton, {}, QPoint(2, 2));
    QTest::mouseMove(list.get(), QPoint(20, 30));
    QTest::mouseRelease(list.get(), Qt::LeftButton, {}, QPoint(20, 30));
    ASSERT_EQ(events.MouseMove.size(), 2u);
    // Each in the coordinates of its own widget; the surface's start inside its border.
    EXPECT_EQ(events.MouseMove[0].Button, 2);
    EXPECT_FLOAT_EQ(events.MouseMove[0].X, float(4 * TwipsPerPixelX()));
    EXPECT_FLOAT_EQ(events.MouseMove[0].Y, float(6 * TwipsPerPixelY()));
    EXPECT_EQ(events.MouseMove[1].Button, 1);
    EXPECT_FLOAT_EQ(events.MouseMove[1].X, float((20 - 2) * TwipsPerPixelX()));
    EXPECT_FLOAT_EQ(events.MouseMove[1].Y, float((30 - 2) * TwipsPerPixelY()));
}

} // namespace
