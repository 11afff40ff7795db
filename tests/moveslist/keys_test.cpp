#include "list_events.h"
#include "list_probe.h"

#include <QTest>

#include <gtest/gtest.h>

namespace {

std::vector<int> Codes(const std::vector<ListEvents::Key>& keys)
{
    std::vector<int> codes;
    for (const ListEvents::Key& key : keys)
        codes.push_back(key.KeyCode);
    return codes;
}

class KeyWalk : public ::testing::Test {
protected:
    void press(Qt::Key key) { QTest::keyClick(probe.canvasWidget(), key); }

    std::vector<int> keyDowns() const { return Codes(events.KeyDown); }

    std::unique_ptr<UserControl1> list = WhiteList(20);
    ListProbe probe{*list};
    ListEvents events{*list};
};

TEST_F(KeyWalk, TheFirstPressOnlyShowsTheMarkOnTheTopRow)
{
    press(Qt::Key_Down);
    EXPECT_EQ(list->state().SelectedRow, 0);
    EXPECT_TRUE(RowMarked(*list, 0));
    EXPECT_EQ(probe.scrollValue(), 0);
    EXPECT_TRUE(events.KeyDown.empty());
    EXPECT_EQ(Codes(events.KeyUp), std::vector<int>({40}));
}

TEST_F(KeyWalk, EachFurtherStepScrollsOneItemUnderTheMark)
{
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(probe.scrollValue(), 2);
    EXPECT_EQ(list->state().TopRow, 3);
    press(Qt::Key_Up);
    EXPECT_EQ(probe.scrollValue(), 1);
    EXPECT_EQ(list->state().SelectedRow, 0);
    EXPECT_TRUE(RowMarked(*list, 0));
    EXPECT_FALSE(RowMarked(*list, 1));
    EXPECT_EQ(keyDowns(), std::vector<int>({40, 40, 38}));
}

TEST_F(KeyWalk, UpAtTheTopAndDownAtTheBottomDoNothing)
{
    // Not even the mark appears.
    press(Qt::Key_Up);
    EXPECT_EQ(list->state().SelectedRow, -1);
    EXPECT_FALSE(RowMarked(*list, 0));
    press(Qt::Key_End);
    ASSERT_EQ(probe.scrollValue(), 19);
    press(Qt::Key_Down);
    EXPECT_EQ(probe.scrollValue(), 19);
    EXPECT_TRUE(RowMarked(*list, 0));
    EXPECT_TRUE(events.KeyDown.empty());
}

TEST_F(KeyWalk, EndPutsTheLastItemAloneOnTheFirstRow)
{
    press(Qt::Key_Down);
    press(Qt::Key_End);
    EXPECT_EQ(probe.scrollValue(), 19);
    EXPECT_EQ(list->state().TopRow, 20);
    EXPECT_EQ(list->state().BottomRow, 20);
    EXPECT_FALSE(RowMarked(*list, 1));
    // The scroll wiped the mark, so the tail only shows it again and tells nobody.
    EXPECT_TRUE(RowMarked(*list, 0));
    EXPECT_TRUE(events.KeyDown.empty());
}

TEST_F(KeyWalk, HomeAndEndWhereTheListAlreadyIsToggleTheMark)
{
    press(Qt::Key_End);
    press(Qt::Key_End);
    EXPECT_FALSE(RowMarked(*list, 0));
    EXPECT_EQ(list->state().SelectedRow, 0);
    press(Qt::Key_End);
    EXPECT_TRUE(RowMarked(*list, 0));
    press(Qt::Key_Home);
    EXPECT_EQ(probe.scrollValue(), 0);
    EXPECT_TRUE(RowMarked(*list, 0));
    press(Qt::Key_Home);
    EXPECT_FALSE(RowMarked(*list, 0));
    EXPECT_EQ(keyDowns(), std::vector<int>({35, 35, 36}));
}

TEST_F(KeyWalk, ReturnCommitsTheTopItemWhereverTheMarkIs)
{
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    QTest::mouseClick(probe.canvasWidget(), Qt::LeftButton, {}, RowPoint(*list, 3));
    ASSERT_EQ(list->text(), AnyValue("item 5"));
    press(Qt::Key_Return);
    EXPECT_EQ(list->text(), AnyValue("item 2"));
    EXPECT_EQ(probe.ChosenIndex(), " 1");
    EXPECT_EQ(list->state().SelectedRow, 3);
    EXPECT_TRUE(RowMarked(*list, 3));
    // Escape takes the mark off and the choice back not at all.
    press(Qt::Key_Escape);
    EXPECT_EQ(list->state().SelectedRow, -1);
    EXPECT_FALSE(RowMarked(*list, 3));
    EXPECT_EQ(list->text(), AnyValue("item 2"));
    QTest::keyClick(probe.canvasWidget(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(list->ListIndex(), AnyValue(1));
    EXPECT_EQ(keyDowns(), std::vector<int>({40, 13, 13}));
}

TEST_F(KeyWalk, ReturnWithNoItemOnTheFirstRowDoesNothing)
{
    auto unpainted = LoadedList();
    unpainted->DropDownHeight(2000);
    unpainted->Mode(0);
    AppendItems(*unpainted, 3);
    ASSERT_EQ(unpainted->state().TopRow, -1);
    ListEvents heard(*unpainted);
    QTest::keyClick(ListProbe(*unpainted).canvasWidget(), Qt::Key_Return);
    EXPECT_EQ(unpainted->text(), AnyValue(""));
    EXPECT_TRUE(heard.KeyDown.empty());
}

TEST_F(KeyWalk, PagingKeysNeverPageAndToggleTheTopMark)
{
    press(Qt::Key_Down);
    press(Qt::Key_PageDown);
    EXPECT_FALSE(RowMarked(*list, 0));
    press(Qt::Key_PageUp);
    EXPECT_TRUE(RowMarked(*list, 0));
    EXPECT_EQ(probe.scrollValue(), 0);
    EXPECT_EQ(keyDowns(), std::vector<int>({34, 33}));
}

TEST_F(KeyWalk, AfterAMousePickLowerDownTheMarkJumpsToTheTop)
{
    QTest::mouseClick(probe.canvasWidget(), Qt::LeftButton, {}, RowPoint(*list, 4));
    press(Qt::Key_Down);
    EXPECT_EQ(probe.scrollValue(), 1);
    EXPECT_EQ(list->state().SelectedRow, 0);
    EXPECT_TRUE(RowMarked(*list, 0));
    EXPECT_FALSE(RowMarked(*list, 4));
}

TEST_F(KeyWalk, KeyPressAndKeyUpReachTheHostForEveryKey)
{
    QTest::keyClick(probe.canvasWidget(), Qt::Key_A);
    press(Qt::Key_Up);
    EXPECT_TRUE(events.KeyDown.empty());
    EXPECT_EQ(events.KeyPress, std::vector<int>({'a'}));
    EXPECT_EQ(Codes(events.KeyUp), std::vector<int>({65, 38}));
    // The Shift key goes down first, and is a key like any other.
    QTest::keyClick(probe.canvasWidget(), 'A', Qt::ShiftModifier);
    ASSERT_EQ(keyDowns(), std::vector<int>({16, 65}));
    EXPECT_EQ(events.KeyDown[1].Shift, 1);
    EXPECT_EQ(events.KeyPress.back(), 'A');
}

TEST(KeysOnShortLists, OneItemStopsUpAndDownAtOnceAndReturnCommitsIt)
{
    auto list = WhiteList(1);
    ListEvents events(*list);
    QWidget* canvas = ListProbe(*list).canvasWidget();
    QTest::keyClick(canvas, Qt::Key_Down);
    QTest::keyClick(canvas, Qt::Key_Up);
    EXPECT_EQ(list->state().SelectedRow, -1);
    QTest::keyClick(canvas, Qt::Key_Return);
    EXPECT_EQ(list->text(), AnyValue("item 1"));
    EXPECT_EQ(Codes(events.KeyDown), std::vector<int>({13}));
}

TEST(KeysOnShortLists, AnEmptyListShowsTheMarkAndNeverMoves)
{
    auto list = LoadedList();
    list->DropDownHeight(2000);
    list->Mode(0);
    ListProbe probe(*list);
    ListEvents events(*list);
    QTest::keyClick(probe.canvasWidget(), Qt::Key_Down);
    EXPECT_EQ(list->state().SelectedRow, 0);
    QTest::keyClick(probe.canvasWidget(), Qt::Key_End);
    QTest::keyClick(probe.canvasWidget(), Qt::Key_Down);
    EXPECT_EQ(probe.scrollValue(), 0);
    EXPECT_TRUE(events.KeyDown.empty());
}

TEST(KeysInTheHead, TypingStaysInTheTextBoxAndOnlyKeyDownReachesTheHost)
{
    auto list = LoadedList();
    list->DropDownHeight(2000);
    list->Mode(1);
    AppendItems(*list, 3);
    ListProbe probe(*list);
    ListEvents events(*list);
    QTest::keyClicks(probe.textBox(), "ab");
    QTest::keyClick(probe.textBox(), Qt::Key_Down);
    EXPECT_EQ(list->text(), AnyValue("ab"));
    EXPECT_EQ(probe.ChosenIndex(), "");
    EXPECT_TRUE(probe.canvasHidden());
    EXPECT_EQ(Codes(events.KeyDown), std::vector<int>({65, 66, 40}));
    EXPECT_TRUE(events.KeyPress.empty());
    EXPECT_TRUE(events.KeyUp.empty());
}

} // namespace
