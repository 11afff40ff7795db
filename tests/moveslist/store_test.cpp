#include "list_probe.h"

#include "moveslist/listerror.h"
#include "moveslist/olecolor.h"

#include <gtest/gtest.h>

namespace {

using namespace itemrecord;

void Add(UserControl1& list, const char* text, int16_t itemx)
{
    QString s = QString::fromLatin1(text);
    list.Additem(s, itemx);
}

// Additem with all five arguments; gives ipic and ItemColor as the list settled them.
std::pair<int16_t, int32_t> AddFull(UserControl1& list, int16_t itemx, int16_t ipic, int32_t colour,
                                    QString font = {})
{
    QString s = QStringLiteral("full");
    list.Additem(s, itemx, ipic, font, colour);
    return {ipic, colour};
}

class Store : public ::testing::Test {
protected:
    std::unique_ptr<UserControl1> list = LoadedList();
    ListProbe probe{*list};
};

TEST_F(Store, PositionsOfANewItem)
{
    AppendItems(*list, 3);
    Add(*list, "at 1", 1);
    Add(*list, "on top", -1);
    Add(*list, "zero", 0);
    Add(*list, "minus five", -5);
    // The last position that inserts lands before the last item.
    Add(*list, "before last", 6);
    EXPECT_EQ(Texts(*list), QStringList({"on top", "item 1", "at 1", "item 2", "item 3", "zero",
                                         "before last", "minus five"}));
}

TEST_F(Store, AtTheEndOrBeyondAddsNothingAndLeavesOneSpareEntry)
{
    AppendItems(*list, 3);
    Add(*list, "at count", 3);
    Add(*list, "beyond", 9);
    EXPECT_EQ(Texts(*list), QStringList({"item 1", "item 2", "item 3"}));
    EXPECT_EQ(probe.itemsUpperBound(), 4);
    EXPECT_EQ(probe.LastAddedIndex(), " 2");
}

TEST_F(Store, EmptyListPositions)
{
    EXPECT_EQ(probe.itemsUpperBound(), -1);
    Add(*list, "at 1", 1);
    EXPECT_EQ(list->ListCount(), AnyValue(0));
    // A first line on top takes the append path: its drawn width stays empty, where
    // an insert writes one blank.
    Add(*list, "first", -1);
    Add(*list, "second", -1);
    EXPECT_EQ(Texts(*list), QStringList({"second", "first"}));
    EXPECT_EQ(probe.column(2, DrawnWidth), "");
    EXPECT_EQ(probe.column(1, DrawnWidth), " ");
}

TEST_F(Store, RecordColumnsAtCreation)
{
    AddFull(*list, 0, 7, 0x00FF8040, "Serif");
    EXPECT_EQ(QStringList({probe.column(1, Text), probe.column(1, ItemData),
                           probe.column(1, PictureIndex), probe.column(1, FontName),
                           probe.column(1, Colour)}),
              QStringList({"full", "0", " 7", "Serif", QString(" %1").arg(0x00FF8040)}));
}

TEST_F(Store, ColourAndPictureComeFromTheLastItem)
{
    AddFull(*list, 0, 3, 0x0000FF);
    AddFull(*list, 0, 5, 0x00FF00);
    // An insert next to item 1 still takes the last item's columns.
    EXPECT_EQ(AddFull(*list, 1, 0, -1), std::make_pair(int16_t(5), int32_t(0x00FF00)));
    EXPECT_EQ(probe.column(2, Colour), QString(" %1").arg(0x00FF00));
    // 0 is an explicit black, and a picture index above 0 is kept.
    EXPECT_EQ(AddFull(*list, -1, 2, 0), std::make_pair(int16_t(2), int32_t(0)));
}

TEST_F(Store, FirstItemWithoutColourTakesTheSurfaceColourNotForecolor)
{
    list->forecolor(0x00123456);
    EXPECT_EQ(AddFull(*list, 0, -1, -1), std::make_pair(int16_t(-1), olecolor::ButtonText));
}

TEST_F(Store, FontNameIsStickyAlsoAcrossClear)
{
    Add(*list, "default", 0);
    EXPECT_EQ(probe.column(1, FontName), list->font().family());
    AddFull(*list, 0, -1, -1, "Courier");
    Add(*list, "plain", 0);
    EXPECT_EQ(probe.column(3, FontName), "Courier");
    list->Clear();
    Add(*list, "after clear", 0);
    EXPECT_EQ(probe.column(1, FontName), "Courier");
}

TEST_F(Store, ClearEmptiesTheItemsAndKeepsEverythingElse)
{
    list->DropDownHeight(3000);
    list->Mode(0);
    AppendItems(*list, 30);
    probe.setScrollValue(5);
    probe.ChosenIndex(" 7");
    probe.Text1("item 8");
    const ListState before = list->state();
    list->Clear();

    const ListState& after = list->state();
    EXPECT_EQ(after.ItemCount, 0);
    EXPECT_EQ(probe.itemsUpperBound(), 0);
    EXPECT_EQ(std::make_pair(after.TopRow, after.BottomRow),
              std::make_pair(before.TopRow, before.BottomRow));
    EXPECT_EQ(after.SelectedRow, before.SelectedRow);
    EXPECT_EQ(QStringList({probe.LastAddedIndex(), probe.ChosenIndex(), probe.Text1()}),
              QStringList({" 29", " 7", "item 8"}));
    EXPECT_EQ(std::make_pair(probe.scrollValue(), probe.scrollMaximum()), std::make_pair(5, 29));
    EXPECT_FALSE(probe.canvasHidden());
    const QImage& canvas = list->canvas();
    const QRgb background = olecolor::ToQColor(olecolor::WindowBackground).rgb();
    for (int y = 0; y < canvas.height(); ++y)
        for (int x = 0; x < canvas.width(); ++x)
            ASSERT_EQ(canvas.pixel(x, y), background) << x << ", " << y;
}

TEST_F(Store, RemovingTheOnlyItemHidesTheListUntilModeIsAssigned)
{
    list->DropDownHeight(3000);
    list->Mode(0);
    Add(*list, "only", 0);
    probe.Text1("only");
    probe.ChosenIndex(" 0");
    list->RemoveItem(0);
    EXPECT_EQ(list->ListCount(), AnyValue(0));
    EXPECT_TRUE(probe.canvasHidden());
    EXPECT_TRUE(probe.scrollBarHidden());
    EXPECT_EQ(list->state().TopRow, -1);
    EXPECT_EQ(probe.Text1() + probe.ChosenIndex(), "");
    EXPECT_EQ(probe.itemsUpperBound(), 0);

    Add(*list, "again", 0);
    EXPECT_TRUE(probe.canvasHidden());
    list->Mode(0);
    EXPECT_FALSE(probe.canvasHidden());
}

TEST_F(Store, RemoveItemPacksTheRestAndIgnoresWhatIsOutOfRange)
{
    list->RemoveItem(0);
    AppendItems(*list, 4);
    probe.Text1("item 2");
    probe.ChosenIndex(" 1");
    list->RemoveItem(1);
    list->RemoveItem(3);
    list->RemoveItem(-1);
    EXPECT_EQ(Texts(*list), QStringList({"item 1", "item 3", "item 4"}));
    EXPECT_EQ(probe.itemsUpperBound(), 3);
    EXPECT_EQ(probe.scrollMaximum(), 2);
    // The pick's text goes, its index stays.
    EXPECT_EQ(probe.Text1(), "");
    EXPECT_EQ(probe.ChosenIndex(), " 1");
}

TEST_F(Store, ItemData)
{
    AppendItems(*list, 3);
    EXPECT_EQ(list->GetItemData(1), AnyValue(0));
    list->SetItemData(1, 42.5);
    EXPECT_EQ(list->GetItemData(1), AnyValue(42.5));
    EXPECT_EQ(probe.column(2, ItemData), " 42.5");
    EXPECT_EQ(probe.column(2, Text), "item 2");
    // -1 names the item added last, which for a top insert is item 0.
    Add(*list, "newest", -1);
    list->SetItemData(-1, -7);
    EXPECT_EQ(list->GetItemData(0), AnyValue(-7));
    Add(*list, "appended", 0);
    list->SetItemData(-1, 9);
    EXPECT_EQ(list->GetItemData(4), AnyValue(9));
}

TEST_F(Store, ItemDataOutOfRangeIsEmptyNotZero)
{
    AppendItems(*list, 2);
    EXPECT_TRUE(list->GetItemData(2).isEmpty());
    EXPECT_TRUE(list->GetItemData(-1).isEmpty());
    EXPECT_NE(list->GetItemData(2), AnyValue(0));
    EXPECT_NE(list->GetItemData(2), AnyValue(""));
    list->SetItemData(5, 1);
    list->SetItemData(-2, 1);
    EXPECT_EQ(list->GetItemData(0), list->GetItemData(1));
    EXPECT_EQ(list->GetItemData(0), AnyValue(0));
    EXPECT_EQ(ErrorCode([&] { list->SetItemData(0, "many"); }), ListErrorCode::TypeMismatch);
}

TEST_F(Store, SetItemDataDoesNotRepaint)
{
    list->DropDownHeight(3000);
    list->Mode(0);
    AppendItems(*list, 3);
    const QImage before = list->canvas().copy();
    list->SetItemData(0, 5);
    EXPECT_EQ(list->canvas(), before);
}

TEST_F(Store, ListReadGivesTextAndWriteTouchesNoItem)
{
    EXPECT_EQ(list->List(0), AnyValue(""));
    AppendItems(*list, 2);
    EXPECT_EQ(list->List(1), AnyValue("item 2"));
    EXPECT_EQ(list->List(2), AnyValue(""));
    EXPECT_EQ(list->List(-1), AnyValue(""));
    list->List(0, "changed");
    list->List(7, "changed");
    EXPECT_EQ(Texts(*list), QStringList({"item 1", "item 2"}));
    EXPECT_EQ(list->state().ListStore, AnyValue("changed"));
}

TEST_F(Store, ListIndexReadsTheChosenIndex)
{
    AppendItems(*list, 5);
    EXPECT_EQ(list->ListIndex(), AnyValue(0));
    probe.ChosenIndex(" 0");
    EXPECT_EQ(list->ListIndex(), AnyValue(0));
    probe.ChosenIndex(" 4");
    list->ListIndex(2);
    EXPECT_EQ(list->ListIndex(), AnyValue(4));
    EXPECT_EQ(list->state().ListIndexStore, AnyValue(2));
}

TEST_F(Store, RefusedSetters)
{
    EXPECT_EQ(ErrorCode([&] { list->ListCount(3); }), ListErrorCode::NotAtRunTime);
    list->setDesignTime(true);
    EXPECT_EQ(ErrorCode([&] { list->ListCount(3); }), ListErrorCode::NotAtDesignTime);
    EXPECT_EQ(ErrorCode([&] { list->ListIndex(3); }), ListErrorCode::NotAtDesignTime);
    EXPECT_EQ(list->state().ListIndexStore, AnyValue(0));
}

TEST_F(Store, TheScrollBarOverflowsPast32768Items)
{
    AppendItems(*list, 32768);
    EXPECT_EQ(probe.scrollMaximum(), 32767);
    // The record is stored by the time the overflow reaches the caller.
    EXPECT_EQ(ErrorCode([&] { Add(*list, "one too many", 0); }), ListErrorCode::Overflow);
    EXPECT_EQ(list->ListCount(), AnyValue(32769));
    EXPECT_EQ(list->List(32768), AnyValue("one too many"));
}

TEST_F(Store, PicturesNeedAnImageListThatHasThem)
{
    list->DrawStyle(1);
    EXPECT_EQ(ErrorCode([&] { AddFull(*list, 0, 1, 0); }), ListErrorCode::ObjectNotSet);
    list->PictureList(std::make_shared<ImageList>());
    list->PictureList()->Add(QImage(16, 16, QImage::Format_RGB32));
    EXPECT_EQ(ErrorCode([&] { AddFull(*list, 0, 2, 0); }), ListErrorCode::ImageIndexOutOfBounds);
    EXPECT_EQ(list->ListCount(), AnyValue(0));
    EXPECT_EQ(ErrorCode([&] { AddFull(*list, 0, 1, 0); }), 0);
    EXPECT_EQ(list->ListCount(), AnyValue(1));
}

} // namespace
