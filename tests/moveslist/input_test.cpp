#include "list_events.h"
#include "list_probe.h"

#include <QTest>

#include <gtest/gtest.h>

namespace {

std::vector<int> codes(const std::vector<ListEvents::Key>& keys)
{
    std::vector<int> codes;
    for (const ListEvents::Key& key : keys)
        codes.push_back(key.KeyCode);
    return codes;
}

class ListInput : public ::testing::Test {
protected:
    void press(Qt::Key key) { QTest::keyClick(probe.canvasWidget(), key); }
    void click(int row, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseClick(probe.canvasWidget(), button, keys, rowPoint(*list, row));
    }
    std::vector<int> keyDowns() const { return codes(events.KeyDown); }

    std::unique_ptr<UserControl1> list = whiteList(20);
    ListProbe probe{*list};
    ListEvents events{*list};
};

class KeyWalk : public ListInput {};
class MousePick : public ListInput {};

TEST_F(KeyWalk, TheFirstPressShowsTheMarkAndEachFurtherStepScrollsOneItemUnderIt)
{
    press(Qt::Key_Down);
    EXPECT_EQ(list->state().SelectedRow, 0);
    EXPECT_TRUE(rowMarked(*list, 0));
    EXPECT_EQ(probe.scrollValue(), 0);
    EXPECT_TRUE(events.KeyDown.empty());
    EXPECT_EQ(codes(events.KeyUp), std::vector<int>({40}));
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(probe.scrollValue(), 2);
    EXPECT_EQ(list->state().TopRow, 3);
    press(Qt::Key_Up);
    EXPECT_EQ(probe.scrollValue(), 1);
    EXPECT_EQ(list->state().SelectedRow, 0);
    EXPECT_TRUE(rowMarked(*list, 0));
    EXPECT_FALSE(rowMarked(*list, 1));
    EXPECT_EQ(keyDowns(), std::vector<int>({40, 40, 38}));
}

TEST_F(KeyWalk, TheEndsStopTheWalkAndEndPutsTheLastItemAloneOnTop)
{
    // Not even the mark appears.
    press(Qt::Key_Up);
    EXPECT_EQ(list->state().SelectedRow, -1);
    EXPECT_FALSE(rowMarked(*list, 0));
    press(Qt::Key_Down);
    press(Qt::Key_End);
    EXPECT_EQ(probe.scrollValue(), 19);
    EXPECT_EQ(std::make_pair(list->state().TopRow, list->state().BottomRow),
              std::make_pair(int16_t(20), int16_t(20)));
    // The scroll wiped the mark, so the tail only shows it again.
    EXPECT_TRUE(rowMarked(*list, 0));
    EXPECT_FALSE(rowMarked(*list, 1));
    press(Qt::Key_Down);
    EXPECT_EQ(probe.scrollValue(), 19);
    EXPECT_TRUE(rowMarked(*list, 0));
    EXPECT_TRUE(events.KeyDown.empty());
}

TEST_F(KeyWalk, HomeEndAndPagingWhereTheListAlreadyIsToggleTheMark)
{
    press(Qt::Key_End);
    press(Qt::Key_End);
    EXPECT_FALSE(rowMarked(*list, 0));
    EXPECT_EQ(list->state().SelectedRow, 0);
    press(Qt::Key_Home);
    EXPECT_EQ(probe.scrollValue(), 0);
    EXPECT_TRUE(rowMarked(*list, 0));
    press(Qt::Key_Home);
    EXPECT_FALSE(rowMarked(*list, 0));
    // No key pages.
    press(Qt::Key_PageDown);
    EXPECT_TRUE(rowMarked(*list, 0));
    press(Qt::Key_PageUp);
    EXPECT_FALSE(rowMarked(*list, 0));
    EXPECT_EQ(probe.scrollValue(), 0);
    EXPECT_EQ(keyDowns(), std::vector<int>({35, 36, 34, 33}));
}

TEST_F(KeyWalk, ReturnCommitsTheTopItemWhereverTheMarkIs)
{
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    click(3);
    ASSERT_EQ(list->text(), AnyValue("item 5"));
    press(Qt::Key_Return);
    EXPECT_EQ(list->text(), AnyValue("item 2"));
    EXPECT_EQ(probe.ChosenIndex(), " 1");
    EXPECT_EQ(list->state().SelectedRow, 3);
    EXPECT_TRUE(rowMarked(*list, 3));
    // Escape takes the mark off and the choice back not at all.
    press(Qt::Key_Escape);
    EXPECT_EQ(list->state().SelectedRow, -1);
    EXPECT_FALSE(rowMarked(*list, 3));
    EXPECT_EQ(list->text(), AnyValue("item 2"));
    QTest::keyClick(probe.canvasWidget(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(list->ListIndex(), AnyValue(1));
    EXPECT_EQ(keyDowns(), std::vector<int>({40, 13, 13}));
}

TEST_F(KeyWalk, AfterAMousePickLowerDownTheMarkJumpsToTheTop)
{
    click(4);
    press(Qt::Key_Down);
    EXPECT_EQ(probe.scrollValue(), 1);
    EXPECT_EQ(list->state().SelectedRow, 0);
    EXPECT_TRUE(rowMarked(*list, 0));
    EXPECT_FALSE(rowMarked(*list, 4));
}

TEST_F(KeyWalk, KeyPressAndKeyUpReachTheHostForEveryKey)
{
    QTest::keyClick(probe.canvasWidget(), Qt::Key_A);
    press(Qt::Key_Up);
    EXPECT_TRUE(events.KeyDown.empty());
    EXPECT_EQ(events.KeyPress, std::vector<int>({'a'}));
    EXPECT_EQ(codes(events.KeyUp), std::vector<int>({65, 38}));
    // The Shift key goes down first, and is a key like any other.
    QTest::keyClick(probe.canvasWidget(), 'A', Qt::ShiftModifier);
    ASSERT_EQ(keyDowns(), std::vector<int>({16, 65}));
    EXPECT_EQ(events.KeyDown[1].Shift, 1);
    EXPECT_EQ(events.KeyPress.back(), 'A');
}

TEST(KeysOnShortLists, NoItemOnTopCommitsNothingAndOneItemStopsAtOnce)
{
    // End on an empty list asks the bar for value -1: the key ends there.
    auto empty = unpaintedList();
    ListEvents emptyEvents(*empty);
    QTest::keyClick(ListProbe(*empty).canvasWidget(), Qt::Key_Down);
    QTest::keyClick(ListProbe(*empty).canvasWidget(), Qt::Key_End);
    EXPECT_EQ(empty->state().SelectedRow, 0);
    EXPECT_TRUE(emptyEvents.KeyDown.empty());
    auto unpainted = unpaintedList(3);
    ASSERT_EQ(unpainted->state().TopRow, -1);
    ListEvents unpaintedEvents(*unpainted);
    QTest::keyClick(ListProbe(*unpainted).canvasWidget(), Qt::Key_Return);
    EXPECT_EQ(unpainted->text(), AnyValue(""));
    EXPECT_TRUE(unpaintedEvents.KeyDown.empty());

    auto list = whiteList(1);
    ListEvents events(*list);
    QWidget* canvas = ListProbe(*list).canvasWidget();
    QTest::keyClick(canvas, Qt::Key_Down);
    QTest::keyClick(canvas, Qt::Key_Down);
    QTest::keyClick(canvas, Qt::Key_Up);
    EXPECT_EQ(list->state().SelectedRow, -1);
    QTest::keyClick(canvas, Qt::Key_Return);
    EXPECT_EQ(list->text(), AnyValue("item 1"));
    EXPECT_EQ(codes(events.KeyDown), std::vector<int>({13}));
}

TEST(KeysInTheHead, TypingStaysInTheTextBoxAndOnlyKeyDownReachesTheHost)
{
    auto list = loadedList();
    list->DropDownHeight(2000);
    list->Mode(1);
    appendItems(*list, 3);
    ListProbe probe(*list);
    ListEvents events(*list);
    QTest::keyClicks(probe.textBox(), "ab");
    QTest::keyClick(probe.textBox(), Qt::Key_Down);
    EXPECT_EQ(list->text(), AnyValue("ab"));
    EXPECT_EQ(probe.ChosenIndex(), "");
    EXPECT_TRUE(probe.canvasHidden());
    EXPECT_EQ(codes(events.KeyDown), std::vector<int>({65, 66, 40}));
    EXPECT_TRUE(events.KeyPress.empty());
    EXPECT_TRUE(events.KeyUp.empty());
}

// The right button picks as the left does, and Enabled gates nothing.
TEST_F(MousePick, AReleaseOnARowChoosesItsItemMarksItAndTellsTheHostLast)
{
    QString seen;
    QObject::connect(list.get(), &UserControl1::MouseUp,
                     [&](int16_t&, int16_t&, float&, float&) { seen = list->text().toText(); });
    list->Enabled(false);
    click(1, Qt::RightButton, Qt::ControlModifier | Qt::AltModifier);
    click(2, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(list->text(), AnyValue("item 3"));
    EXPECT_EQ(seen, "item 3");
    EXPECT_EQ(probe.ChosenIndex(), " 2");
    EXPECT_EQ(list->state().SelectedRow, 2);
    EXPECT_TRUE(rowMarked(*list, 2));
    EXPECT_FALSE(rowMarked(*list, 1));
    ASSERT_EQ(events.MouseUp.size(), 2u);
    const ListEvents::Mouse& right = events.MouseUp[0];
    const ListEvents::Mouse& left = events.MouseUp[1];
    EXPECT_EQ(std::make_tuple(right.Button, right.Shift, left.Button, left.Shift),
              std::make_tuple(2, 6, 1, 1));
    // In twips, on the canvas.
    EXPECT_FLOAT_EQ(left.X, float(30 * twipsPerPixelX()));
    EXPECT_FLOAT_EQ(left.Y, float(rowPoint(*list, 2).y() * twipsPerPixelY()));
    EXPECT_EQ(events.Click + events.MouseDown, 0);
}

TEST_F(MousePick, TheMarkedRowStaysMarkedAlsoThroughADoubleClickAndAnotherTakesItOver)
{
    QWidget* canvas = probe.canvasWidget();
    const QPoint at = rowPoint(*list, 2);
    QTest::mouseClick(canvas, Qt::LeftButton, {}, at);
    QTest::mouseDClick(canvas, Qt::LeftButton, {}, at);
    QTest::mouseRelease(canvas, Qt::LeftButton, {}, at);
    EXPECT_TRUE(rowMarked(*list, 2));
    click(4);
    EXPECT_FALSE(rowMarked(*list, 2));
    EXPECT_TRUE(rowMarked(*list, 4));
    EXPECT_EQ(events.MouseUp.size(), 3u);
}

TEST_F(MousePick, RowsBelowTheLastItemAndAnEmptyListAreDead)
{
    std::unique_ptr<UserControl1> others[] = {whiteList(3), unpaintedList()};
    for (auto& other : others) {
        ListEvents heard(*other);
        QTest::mouseClick(ListProbe(*other).canvasWidget(), Qt::LeftButton, {}, rowPoint(*list, 4));
        EXPECT_EQ(other->text(), AnyValue(""));
        EXPECT_EQ(other->state().SelectedRow, -1);
        EXPECT_TRUE(heard.MouseUp.empty());
    }

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
    const QPoint above(30, -pixelsDown(list->state().RowTwips * 1.5));
    // Nothing lies above item 1.
    QTest::mousePress(canvas, Qt::LeftButton, {}, rowPoint(*list, 0));
    QTest::mouseRelease(canvas, Qt::LeftButton, {}, above);
    EXPECT_TRUE(events.MouseUp.empty());

    probe.setScrollValue(5);
    QTest::mousePress(canvas, Qt::LeftButton, {}, rowPoint(*list, 0));
    QTest::mouseRelease(canvas, Qt::LeftButton, {}, above);
    EXPECT_EQ(list->text(), AnyValue("item 4"));
    EXPECT_EQ(events.MouseUp.size(), 1u);
}

// Moves with a button held go to the widget pressed, wherever the pointer is.
TEST(MouseMoves, OnlyTheButtonAndTheBareSurfaceTellTheHost)
{
    auto list = loadedList();
    list->resize(300, 40);
    list->DropDownHeight(2000);
    list->Mode(1);
    appendItems(*list, 5);
    ListProbe probe(*list);
    ListEvents events(*list);
    const auto drag = [](QWidget* widget, Qt::MouseButton button, QPoint to) {
        QTest::mousePress(widget, button, {}, QPoint(2, 2));
        QTest::mouseMove(widget, to);
        QTest::mouseRelease(widget, button, {}, to);
    };
    drag(probe.canvasWidget(), Qt::LeftButton, QPoint(9, 600));
    drag(probe.textBox(), Qt::LeftButton, QPoint(9, 9));
    EXPECT_TRUE(events.MouseMove.empty());
    drag(probe.button(), Qt::RightButton, QPoint(4, 6));
    drag(list.get(), Qt::LeftButton, QPoint(20, 30));
    ASSERT_EQ(events.MouseMove.size(), 2u);
    // Each in the coordinates of its own widget; the surface's start inside its border.
    const ListEvents::Mouse& button = events.MouseMove[0];
    const ListEvents::Mouse& surface = events.MouseMove[1];
    EXPECT_EQ(std::make_pair(button.Button, surface.Button), std::make_pair(2, 1));
    EXPECT_FLOAT_EQ(button.X, float(4 * twipsPerPixelX()));
    EXPECT_FLOAT_EQ(button.Y, float(6 * twipsPerPixelY()));
    EXPECT_FLOAT_EQ(surface.X, float((20 - 2) * twipsPerPixelX()));
    EXPECT_FLOAT_EQ(surface.Y, float((30 - 2) * twipsPerPixelY()));
}

} // namespace
