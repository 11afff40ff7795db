#include "list_events.h"
#include "list_probe.h"

#include "moveslist/lbblock.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// A host window with a drop-down at its top and widgets placed below the head, where
// the open list part has to lie over them.
class DropDown : public ::testing::Test {
protected:
    void SetUp() override
    {
        host.resize(400, 400);
        list = UserControl1::fromBlock(lbblock::write(PropertyBag()), &host);
        list->setGeometry(10, 10, 300, 19);
        below = new QPushButton(QStringLiteral("below"), &host);
        below->setGeometry(10, 40, 300, 30);
        elsewhere = new QPushButton(QStringLiteral("elsewhere"), &host);
        elsewhere->setGeometry(10, 360, 100, 30);
        list->BackColor(0x00FFFFFF);
        list->DropDownHeight(2000);
        list->Mode(1);
        appendItems(*list, 20);
        host.show();
        host.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&host));
    }

    void clickButton() { QTest::mouseClick(probe().button(), Qt::LeftButton); }
    void press(Qt::Key key) { QTest::keyClick(probe().canvasWidget(), key); }
    bool open() const { return !ListProbe(*list).canvasHidden(); }
    ListProbe probe() const { return ListProbe(*list); }

    int headHeight() const { return probe().textBox()->height(); }

    QWidget host;
    UserControl1* list = nullptr;
    QPushButton* below = nullptr;
    QPushButton* elsewhere = nullptr;
};

TEST_F(DropDown, TheHeadIsATextBoxWithTheButtonOverItsRightEnd)
{
    ListProbe p = probe();
    EXPECT_FALSE(open());
    EXPECT_TRUE(p.textBox()->isVisible());
    EXPECT_TRUE(p.button()->isVisible());
    EXPECT_EQ(headHeight(), pixelsDown(252));
    const QRect box = p.textBox()->geometry();
    const QRect button = p.button()->geometry();
    EXPECT_EQ(std::make_pair(button.top(), button.height()),
              std::make_pair(box.top(), box.height()));
    // The button covers the last 20 twips of the box and ends where the bar ends.
    EXPECT_EQ(button.left(), box.right() + 1 - pixelsDown(20));
    EXPECT_NEAR(button.right(), p.scrollBar()->geometry().right(), 1);
    EXPECT_EQ(p.canvasWidget()->geometry().top(), box.bottom() + 1);
    EXPECT_EQ(p.scrollBar()->geometry().top(), box.bottom() + 1);
}

TEST_F(DropDown, TheButtonOpensTheListOverTheWidgetsBelowFromItemOne)
{
    probe().setScrollValue(4);
    clickButton();
    ASSERT_TRUE(open());
    const ListState& st = list->state();
    EXPECT_EQ(list->height(), pixelsDown(st.ViewHeight + 252 + 48));
    EXPECT_EQ(probe().canvasHeight(), pixelsDown(st.ViewHeight));
    // Under the head, not over it.
    EXPECT_EQ(probe().canvasWidget()->y(), probe().textBox()->geometry().bottom() + 1);
    // Painted from item 1; the bar stays where it was.
    EXPECT_EQ(st.TopRow, 1);
    EXPECT_EQ(probe().scrollValue(), 4);
    EXPECT_TRUE(probe().canvasWidget()->hasFocus());
    QWidget* atBelow = host.childAt(QPoint(100, 55));
    EXPECT_TRUE(atBelow == probe().canvasWidget() || list->isAncestorOf(atBelow));
}

TEST_F(DropDown, APickClosesTheListBeforeTheHostHearsOfIt)
{
    ListEvents events(*list);
    bool closedWhenHeard = false;
    QObject::connect(list, &UserControl1::MouseUp,
                     [&](int16_t&, int16_t&, float&, float&) { closedWhenHeard = !open(); });
    clickButton();
    press(Qt::Key_Down);
    QTest::mouseClick(probe().canvasWidget(), Qt::LeftButton, {}, rowPoint(*list, 2));
    EXPECT_EQ(list->text(), AnyValue("item 3"));
    EXPECT_EQ(list->ListIndex(), AnyValue(2));
    EXPECT_TRUE(closedWhenHeard);
    EXPECT_EQ(list->height(), headHeight());
    // The mark is not moved by a pick in this mode.
    EXPECT_EQ(list->state().SelectedRow, 0);
    EXPECT_EQ(events.MouseUp.size(), 1u);
}

TEST_F(DropDown, ReturnCommitsAndClosesEscapeAndTheSecondReleaseOnlyClose)
{
    clickButton();
    press(Qt::Key_Return);
    EXPECT_FALSE(open());
    EXPECT_EQ(list->text(), AnyValue("item 1"));
    clickButton();
    press(Qt::Key_Down);
    press(Qt::Key_Escape);
    EXPECT_FALSE(open());
    // The second release takes the mark off before it closes.
    clickButton();
    press(Qt::Key_Down);
    ASSERT_TRUE(rowMarked(*list, 0));
    clickButton();
    EXPECT_FALSE(open());
    EXPECT_EQ(list->height(), headHeight());
    EXPECT_EQ(list->state().SelectedRow, -1);
    clickButton();
    EXPECT_FALSE(rowMarked(*list, 0));
    EXPECT_EQ(list->text(), AnyValue("item 1"));
}

TEST_F(DropDown, WorkingItsOwnScrollBarKeepsItOpenAndLosingTheFocusCloses)
{
    clickButton();
    QScrollBar* bar = probe().scrollBar();
    // The arrow at the bar's foot.
    QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(bar->width() / 2, bar->height() - 3));
    EXPECT_EQ(probe().scrollValue(), 1);
    EXPECT_TRUE(open());
    EXPECT_EQ(list->state().TopRow, 2);
    EXPECT_TRUE(probe().canvasWidget()->hasFocus());
    QTest::mouseClick(elsewhere, Qt::LeftButton);
    EXPECT_FALSE(open());
    EXPECT_EQ(list->height(), headHeight());
}

TEST_F(DropDown, ShowItemOpensAClosedListOnTheItemButAnEmptyListNeitherOpensNorGrows)
{
    list->ShowItem(7);
    EXPECT_TRUE(open());
    EXPECT_EQ(list->state().TopRow, 7);
    EXPECT_TRUE(rowMarked(*list, 0));
    EXPECT_EQ(list->text(), AnyValue("item 7"));
    EXPECT_TRUE(probe().canvasWidget()->hasFocus());
    clickButton();
    list->Clear();
    clickButton();
    list->ShowItem(1);
    EXPECT_FALSE(open());
    while (list->ListCount().toNumber() > 0)
        list->RemoveItem(0);
    list->resize(300, 200);
    EXPECT_EQ(list->height(), headHeight());
}

TEST(DropDownLayout, WithoutABorderTheOpenListIsExactlyHeadAndRows)
{
    auto list = loadedList();
    list->resize(300, 19);
    list->BorderStyle(0);
    list->DropDownHeight(2000);
    list->Mode(1);
    appendItems(*list, 5);
    QTest::mouseClick(ListProbe(*list).button(), Qt::LeftButton);
    EXPECT_EQ(list->height(), pixelsDown(list->state().ViewHeight + 252.0));
}

TEST(DropDownLayout, ModeZeroWithItemsPullsTheBarBackToTheTop)
{
    auto list = whiteList(20);
    ListProbe probe(*list);
    probe.setScrollValue(5);
    list->Mode(0);
    EXPECT_EQ(probe.scrollMaximum(), 0);
    EXPECT_EQ(probe.scrollValue(), 0);
    EXPECT_EQ(list->state().TopRow, 1);
}

} // namespace
