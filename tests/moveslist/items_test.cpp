#include "list_probe.h"

#include "moveslist/listerror.h"
#include "moveslist/listnumbers.h"
#include "moveslist/olecolor.h"

#include <QTest>

#include <gtest/gtest.h>

namespace {

using namespace itemrecord;

constexpr int32_t Red = 0x000000FF;

void add(UserControl1& list, const char* text, int16_t itemx)
{
    QString s = QString::fromLatin1(text);
    list.Additem(s, itemx);
}

class Store : public ::testing::Test {
protected:
    std::unique_ptr<UserControl1> list = loadedList();
    ListProbe probe{*list};
};

TEST_F(Store, WhereANewItemLands)
{
    // On an empty list an insert adds nothing, and a first line on top takes the append
    // path: its drawn width stays empty, where an insert writes one blank.
    add(*list, "at 1", 1);
    EXPECT_EQ(list->ListCount(), AnyValue(0));
    add(*list, "first", -1);
    add(*list, "second", -1);
    EXPECT_EQ(QStringList({probe.column(1, DrawnWidth), probe.column(2, DrawnWidth)}),
              QStringList({" ", ""}));
    list->Clear();
    appendItems(*list, 3);
    add(*list, "at 1", 1);
    add(*list, "on top", -1);
    add(*list, "zero", 0);
    add(*list, "minus five", -5);
    // The last position that inserts lands before the last item; the count and beyond
    // add nothing, and leave one spare entry.
    add(*list, "before last", 6);
    add(*list, "at count", 8);
    add(*list, "beyond", 9);
    EXPECT_EQ(texts(*list), QStringList({"on top", "item 1", "at 1", "item 2", "item 3", "zero",
                                         "before last", "minus five"}));
    EXPECT_EQ(probe.LastAddedIndex(), " 6");
    EXPECT_EQ(probe.itemsUpperBound(), 9);
}

TEST_F(Store, ColumnsOfANewItem)
{
    // The first item without a colour takes the surface's, not forecolor.
    list->forecolor(0x00123456);
    EXPECT_EQ(addFull(*list, "plain", 0, -1, -1),
              std::make_pair(int16_t(-1), olecolor::ButtonText));
    EXPECT_EQ(probe.column(1, FontName), list->font().family());
    addFull(*list, "full", 0, 7, 0x00FF8040, "Courier");
    EXPECT_EQ(probe.record(2), QString("full\t0\t 7\tCourier\t %1\t").arg(0x00FF8040));
    addFull(*list, "green", 0, 5, 0x00FF00);
    // An insert next to item 1 still takes the last item's picture and colour.
    EXPECT_EQ(addFull(*list, "inserted", 1, 0, -1), std::make_pair(int16_t(5), int32_t(0x00FF00)));
    // 0 is an explicit black, and a picture index above 0 is kept.
    EXPECT_EQ(addFull(*list, "black", -1, 2, 0), std::make_pair(int16_t(2), int32_t(0)));
    // A font name stays in force, also across Clear.
    list->Clear();
    add(*list, "after clear", 0);
    EXPECT_EQ(probe.column(1, FontName), "Courier");
}

TEST_F(Store, ClearEmptiesTheItemsAndKeepsEverythingElse)
{
    list->DropDownHeight(3000);
    list->Mode(0);
    appendItems(*list, 30);
    probe.setScrollValue(5);
    probe.ChosenIndex(" 7");
    probe.Text1("item 8");
    const ListState before = list->state();
    list->Clear();
    const ListState& after = list->state();
    EXPECT_EQ(after.ItemCount, 0);
    EXPECT_EQ(probe.itemsUpperBound(), 0);
    EXPECT_EQ(std::make_tuple(after.TopRow, after.BottomRow, after.SelectedRow),
              std::make_tuple(before.TopRow, before.BottomRow, before.SelectedRow));
    EXPECT_EQ(QStringList({probe.LastAddedIndex(), probe.ChosenIndex(), probe.Text1()}),
              QStringList({" 29", " 7", "item 8"}));
    EXPECT_EQ(std::make_pair(probe.scrollValue(), probe.scrollMaximum()), std::make_pair(5, 29));
    EXPECT_FALSE(probe.canvasHidden());
    EXPECT_TRUE(blank(list->canvas(), olecolor::toQColor(olecolor::WindowBackground).rgb()));
}

TEST_F(Store, RemovingTheOnlyItemHidesTheListUntilModeIsAssigned)
{
    list->DropDownHeight(3000);
    list->Mode(0);
    add(*list, "only", 0);
    probe.Text1("only");
    probe.ChosenIndex(" 0");
    list->RemoveItem(0);
    EXPECT_EQ(list->ListCount(), AnyValue(0));
    EXPECT_TRUE(probe.canvasHidden() && probe.scrollBarHidden());
    EXPECT_EQ(list->state().TopRow, -1);
    EXPECT_EQ(probe.Text1() + probe.ChosenIndex(), "");
    EXPECT_EQ(probe.itemsUpperBound(), 0);
    add(*list, "again", 0);
    EXPECT_TRUE(probe.canvasHidden());
    list->Mode(0);
    EXPECT_FALSE(probe.canvasHidden());
}

TEST(RemoveItem, PacksTheRestRepaintsAndIgnoresWhatIsOutOfRange)
{
    auto list = whiteList(20);
    ListProbe probe(*list);
    list->ShowItem(2);
    list->RemoveItem(1);
    list->RemoveItem(19);
    list->RemoveItem(-1);
    EXPECT_EQ(texts(*list).mid(0, 3), QStringList({"item 1", "item 3", "item 4"}));
    EXPECT_EQ(list->ListCount(), AnyValue(19));
    EXPECT_EQ(probe.itemsUpperBound(), 19);
    EXPECT_EQ(probe.scrollMaximum(), 18);
    // The pick's text goes, its index stays; the repaint takes the mark with it.
    EXPECT_EQ(probe.Text1(), "");
    EXPECT_EQ(probe.ChosenIndex(), " 1");
    EXPECT_EQ(list->state().SelectedRow, -1);
    auto same = whiteList(0);
    appendTexts(*same, texts(*list));
    ListProbe(*same).DrawRows(2, list->state().BottomRow);
    EXPECT_EQ(list->canvas(), same->canvas());
}

TEST_F(Store, ItemDataListAndListIndex)
{
    appendItems(*list, 3);
    EXPECT_EQ(list->GetItemData(1), AnyValue(0));
    list->SetItemData(1, 42.5);
    EXPECT_EQ(probe.record(2).section('\t', 0, 1), "item 2\t 42.5");
    // -1 names the item added last, which for a top insert is item 0.
    add(*list, "newest", -1);
    list->SetItemData(-1, -7);
    EXPECT_EQ(list->GetItemData(0), AnyValue(-7));
    // Out of range: the empty value, neither 0 nor "", and writes go nowhere.
    EXPECT_TRUE(list->GetItemData(4).isEmpty());
    EXPECT_TRUE(list->GetItemData(-1).isEmpty());
    EXPECT_EQ(list->List(4), AnyValue(""));
    const std::vector<QString> before = records(*list);
    list->SetItemData(9, 1);
    list->SetItemData(-2, 1);
    list->List(0, "changed");
    EXPECT_EQ(records(*list), before);
    EXPECT_EQ(list->state().ListStore, AnyValue("changed"));
    EXPECT_EQ(errorCode([&] { list->SetItemData(0, "many"); }), ListErrorCode::TypeMismatch);
    // ListIndex reads the choice and stores what it is given.
    probe.ChosenIndex(" 3");
    list->ListIndex(2);
    EXPECT_EQ(list->ListIndex(), AnyValue(3));
    EXPECT_EQ(errorCode([&] { list->ListCount(3); }), ListErrorCode::NotAtRunTime);
    list->setDesignTime(true);
    EXPECT_EQ(errorCode([&] { list->ListIndex(3); }), ListErrorCode::NotAtDesignTime);
    EXPECT_EQ(list->state().ListIndexStore, AnyValue(2));
}

// The largest list: its scroll bar maximum fills 16 bits, so a sort's bounds and the
// next item's maximum overflow, each after the items are where they were.
TEST_F(Store, PastTheLargestListTheScrollBarAndTheSortOverflow)
{
    QStringList falling;
    for (int i = 32768; i > 0; --i)
        falling << QString::number(i);
    appendTexts(*list, falling);
    EXPECT_EQ(probe.scrollMaximum(), 32767);
    EXPECT_EQ(errorCode([&] { list->SortAscending(); }), ListErrorCode::Overflow);
    EXPECT_EQ(list->List(0), AnyValue("32768"));
    EXPECT_EQ(errorCode([&] { add(*list, "one too many", 0); }), ListErrorCode::Overflow);
    EXPECT_EQ(list->List(32768), AnyValue("one too many"));
}

TEST_F(Store, PicturesNeedAnImageListThatHasThem)
{
    list->DrawStyle(1);
    EXPECT_EQ(errorCode([&] { addFull(*list, "x", 0, 1, 0); }), ListErrorCode::ObjectNotSet);
    list->PictureList(std::make_shared<ImageList>());
    list->PictureList()->add(QImage(16, 16, QImage::Format_RGB32));
    EXPECT_EQ(errorCode([&] { addFull(*list, "x", 0, 2, 0); }),
              ListErrorCode::ImageIndexOutOfBounds);
    EXPECT_EQ(list->ListCount(), AnyValue(0));
    EXPECT_EQ(errorCode([&] { addFull(*list, "x", 0, 1, 0); }), 0);
}

// Not on the screen, so that no repaint rewrites the drawn widths.
TEST(Updating, EachOperationReplacesItsOwnColumnOnlyAndBadArgumentsNone)
{
    auto list = loadedList();
    appendItems(*list, 5);
    std::vector<QString> expected = records(*list);
    const auto set = [&](int it, int column, const QString& text) {
        QStringList columns = Split(expected[it]);
        columns[column] = text;
        expected[it] = join(columns);
    };
    list->UpdateText(0, "new");
    set(0, Text, "new");
    list->UpdateItemData(1, " 7");
    set(1, ItemData, " 7");
    // No image list is asked: any number goes.
    list->UpdateIcon(2, 999);
    set(2, PictureIndex, " 999");
    list->UpdateFont(3, "Serif");
    set(3, FontName, "Serif");
    list->UpdateForeColor(4, Red);
    set(4, Colour, " 255");
    list->UpdateText(-1, "x");
    list->UpdateForeColor(5, Red);
    // Beyond 16 bits the index itself overflows.
    EXPECT_EQ(errorCode([&] { list->UpdateText(40000.0, "x"); }), ListErrorCode::Overflow);
    EXPECT_EQ(errorCode([&] { list->UpdateItemData(0, "twelve"); }), ListErrorCode::TypeMismatch);
    EXPECT_EQ(errorCode([&] { list->UpdateIcon(0, "3 pictures"); }), ListErrorCode::TypeMismatch);
    EXPECT_EQ(records(*list), expected);
    // The chosen text stays as it was chosen.
    list->ShowItem(3);
    list->UpdateText(2, "renamed");
    EXPECT_EQ(list->text(), AnyValue("item 3"));
}

TEST(Updating, OnlyAnItemOnAPaintedCanvasRepaintsThePage)
{
    auto list = whiteList(20);
    list->ShowItem(3);
    const QImage before = list->canvas();
    list->UpdateForeColor(0, Red);
    list->UpdateText(19, "far below");
    EXPECT_EQ(list->canvas(), before);
    // Item 4 is the second row: its text turns red, and the mark goes.
    list->UpdateForeColor(3, Red);
    EXPECT_FALSE(rowMarked(*list, 0));
    EXPECT_EQ(list->state().SelectedRow, 0);
    const int row = pixelsDown(list->state().RowTwips);
    int red = 0;
    for (int y = row; y < 2 * row; ++y)
        for (int x = 0; x < list->canvas().width(); ++x)
            red +=
                qRed(list->canvas().pixel(x, y)) > 200 && qGreen(list->canvas().pixel(x, y)) < 100;
    EXPECT_GT(red, 10);

    auto unpainted = unpaintedList(3);
    const QImage blank = unpainted->canvas();
    unpainted->UpdateForeColor(0, Red);
    EXPECT_EQ(unpainted->canvas(), blank);
}

// The tip, with the pointer moved over the real canvas of a list on the screen.
class HoverTip : public ::testing::Test {
protected:
    void SetUp() override
    {
        list->ToolTip(true);
        list->UpdateText(1, wide);
        ListProbe(*list).DrawRows(1, list->state().RowsInView);
        list->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(list.get()));
        // The pointer starts off the list, wherever the last test left it.
        QCursor::setPos(list->mapToGlobal(QPoint(-50, -50)));
    }

    // The pointer steps across as well, so that each call is a move of its own.
    QString tipOver(int row)
    {
        const int y = pixelsDown((row + 0.5) * list->state().RowTwips);
        QTest::mouseMove(probe.canvasWidget(), QPoint(20 + (++moves % 2), y));
        return probe.canvasWidget()->toolTip();
    }

    const QString wide = QString("W").repeated(80);
    std::unique_ptr<UserControl1> list = whiteList(3);
    ListProbe probe{*list};
    int moves = 0;
};

TEST_F(HoverTip, OnlyARowWiderThanTheCanvasShowsItsText)
{
    EXPECT_EQ(tipOver(1), wide);
    EXPECT_EQ(tipOver(0), "");
    // The test is strictly greater; a row never painted has an empty width, read as 0.
    const QString canvasWidth =
        moveslist::numberText(halfEven(probe.canvasWidth() * twipsPerPixelX()));
    probe.column(3, DrawnWidth, canvasWidth);
    EXPECT_EQ(tipOver(2), "");
    probe.column(3, DrawnWidth, moveslist::numberText(canvasWidth.toInt() + 1));
    EXPECT_EQ(tipOver(2), "item 3");
    probe.column(3, DrawnWidth, "");
    EXPECT_EQ(tipOver(2), "");
}

TEST_F(HoverTip, BelowTheLastItemOrSwitchedOffTheLastTipStands)
{
    tipOver(1);
    EXPECT_EQ(tipOver(5), wide);
    list->ToolTip(false);
    EXPECT_EQ(tipOver(0), wide);
}

} // namespace
