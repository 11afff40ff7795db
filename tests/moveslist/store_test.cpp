#include "list_probe.h"

#include "moveslist/itemrecord.h"
#include "moveslist/listerror.h"
#include "moveslist/olecolor.h"

#include <gtest/gtest.h>

namespace {

QStringList Texts(const UserControl1& list)
{
    QStringList texts;
    for (int it = 0; it < list.ListCount().toNumber(); ++it)
        texts << list.List(it).toText();
    return texts;
}

void Add(UserControl1& list, const char* text, int16_t itemx)
{
    QString s = QString::fromLatin1(text);
    list.Additem(s, itemx);
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
    EXPECT_EQ(Texts(*list), QStringList({"item 1", "at 1", "item 2", "item 3"}));
    Add(*list, "on top", -1);
    EXPECT_EQ(Texts(*list).first(), "on top");
    Add(*list, "zero", 0);
    Add(*list, "minus five", -5);
    EXPECT_EQ(Texts(*list).mid(5), QStringList({"zero", "minus five"}));
    // The last position that inserts lands before the last item.
    Add(*list, "before last", 6);
    EXPECT_EQ(Texts(*list).mid(5), QStringList({"zero", "before last", "minus five"}));
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
    EXPECT_EQ(list->ListCount().toNumber(), 0);
    // A first line put on top takes the append path: its drawn width is still empty,
    // where an insert writes one blank.
    Add(*list, "first", -1);
    Add(*list, "second", -1);
    EXPECT_EQ(Texts(*list), QStringList({"second", "first"}));
    EXPECT_EQ(probe.column(2, itemrecord::DrawnWidth), "");
    EXPECT_EQ(probe.column(1, itemrecord::DrawnWidth), " ");
    EXPECT_EQ(probe.itemsUpperBound(), 2);
}

TEST_F(Store, RecordColumnsAtCreation)
{
    QString s = QStringLiteral("move");
    int16_t ipic = 7;
    QString font = QStringLiteral("Serif");
    int32_t colour = 0x00FF8040;
    list->Additem(s, 0, ipic, font, colour);
    EXPECT_EQ(probe.column(1, itemrecord::Text), "move");
    EXPECT_EQ(probe.column(1, itemrecord::ItemData), "0");
    EXPECT_EQ(probe.column(1, itemrecord::PictureIndex), " 7");
    EXPECT_EQ(probe.column(1, itemrecord::FontName), "Serif");
    EXPECT_EQ(probe.column(1, itemrecord::Colour), QString(" %1").arg(0x00FF8040));
}

TEST_F(Store, ColourAndPictureComeFromTheLastItem)
{
    QString s = QStringLiteral("oldest");
    int16_t ipic = 3;
    QString font;
    int32_t colour = 0x0000FF;
    list->Additem(s, 0, ipic, font, colour);
    ipic = 5;
    colour = 0x00FF00;
    list->Additem(s, 0, ipic, font, colour);

    // An insert next to item 1 still takes the last item's columns, and the caller's
    // variables receive them.
    ipic = 0;
    colour = -1;
    list->Additem(s, 1, ipic, font, colour);
    EXPECT_EQ(ipic, 5);
    EXPECT_EQ(colour, 0x00FF00);
    EXPECT_EQ(probe.column(2, itemrecord::Colour), QString(" %1").arg(0x00FF00));

    // 0 is an explicit black, and a picture index above 0 is kept.
    ipic = 2;
    colour = 0;
    list->Additem(s, -1, ipic, font, colour);
    EXPECT_EQ(ipic, 2);
    EXPECT_EQ(colour, 0);
}

TEST_F(Store, FirstItemWithoutColourTakesTheSurfaceColourNotForecolor)
{
    list->forecolor(0x00123456);
    QString s = QStringLiteral("first");
    int16_t ipic = -1;
    QString font;
    int32_t colour = -1;
    list->Additem(s, 0, ipic, font, colour);
    EXPECT_EQ(colour, olecolor::ButtonText);
    EXPECT_EQ(ipic, -1);
}

TEST_F(Store, FontNameIsStickyAlsoAcrossClear)
{
    Add(*list, "default", 0);
    EXPECT_EQ(probe.column(1, itemrecord::FontName), list->font().family());
    QString s = QStringLiteral("courier");
    int16_t ipic = -1;
    QString font = QStringLiteral("Courier");
    int32_t colour = -1;
    list->Additem(s, 0, ipic, font, colour);
    Add(*list, "plain", 0);
    EXPECT_EQ(probe.column(3, itemrecord::FontName), "Courier");
    list->Clear();
    Add(*list, "after clear", 0);
    EXPECT_EQ(probe.column(1, itemrecord::FontName), "Courier");
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
    EXPECT_EQ(after.TopRow, before.TopRow);
    EXPECT_EQ(after.BottomRow, before.BottomRow);
    EXPECT_EQ(after.SelectedRow, before.SelectedRow);
    EXPECT_EQ(after.ItemFontName, before.ItemFontName);
    EXPECT_EQ(probe.LastAddedIndex(), " 29");
    EXPECT_EQ(probe.ChosenIndex(), " 7");
    EXPECT_EQ(probe.Text1(), "item 8");
    EXPECT_EQ(probe.scrollValue(), 5);
    EXPECT_EQ(probe.scrollMaximum(), 29);
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
    EXPECT_EQ(list->ListCount().toNumber(), 0);
    EXPECT_TRUE(probe.canvasHidden());
    EXPECT_TRUE(probe.scrollBarHidden());
    EXPECT_EQ(list->state().TopRow, -1);
    EXPECT_EQ(probe.Text1(), "");
    EXPECT_EQ(probe.ChosenIndex(), "");
    EXPECT_EQ(probe.itemsUpperBound(), 0);

    Add(*list, "again", 0);
    EXPECT_TRUE(probe.canvasHidden());
    list->Mode(0);
    EXPECT_FALSE(probe.canvasHidden());
}

TEST_F(Store, RemoveItemPacksTheRest)
{
    AppendItems(*list, 4);
    probe.Text1("item 2");
    probe.ChosenIndex(" 1");
    list->RemoveItem(1);
    EXPECT_EQ(Texts(*list), QStringList({"item 1", "item 3", "item 4"}));
    EXPECT_EQ(probe.itemsUpperBound(), 3);
    EXPECT_EQ(probe.scrollMaximum(), 2);
    EXPECT_EQ(probe.Text1(), "");
    EXPECT_EQ(probe.ChosenIndex(), " 1");
}

TEST_F(Store, RemoveItemOutOfRangeIsIgnored)
{
    list->RemoveItem(0);
    AppendItems(*list, 2);
    list->RemoveItem(2);
    list->RemoveItem(-1);
    list->RemoveItem(99);
    EXPECT_EQ(Texts(*list), QStringList({"item 1", "item 2"}));
}

TEST_F(Store, ItemData)
{
    AppendItems(*list, 3);
    EXPECT_EQ(list->GetItemData(1), AnyValue(0));
    list->SetItemData(1, 42.5);
    EXPECT_EQ(list->GetItemData(1), AnyValue(42.5));
    EXPECT_EQ(probe.column(2, itemrecord::ItemData), " 42.5");
    EXPECT_EQ(probe.column(2, itemrecord::Text), "item 2");

    // -1 names the item added last, which for a top insert is item 0.
    Add(*list, "newest", -1);
    list->SetItemData(-1, -7);
    EXPECT_EQ(list->GetItemData(0), AnyValue(-7));
    Add(*list, "appended", 0);
    list->SetItemData(-1, 9);
    EXPECT_EQ(list->GetItemData(4), AnyValue(9));
}

TEST_F(Store, ItemDataOutOfRange)
{
    AppendItems(*list, 2);
    EXPECT_TRUE(list->GetItemData(2).isEmpty());
    EXPECT_TRUE(list->GetItemData(-1).isEmpty());
    EXPECT_NE(list->GetItemData(2), AnyValue(0));
    list->SetItemData(5, 1);
    list->SetItemData(-2, 1);
    EXPECT_EQ(list->GetItemData(0), AnyValue(0));
    EXPECT_EQ(list->GetItemData(1), AnyValue(0));
    EXPECT_EQ(ErrorCode([&] { list->SetItemData(0, "many"); }), ListErrorCode::TypeMismatch);
    EXPECT_EQ(list->GetItemData(0), AnyValue(0));
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

TEST_F(Store, ListRead)
{
    EXPECT_EQ(list->List(0), AnyValue(""));
    AppendItems(*list, 2);
    EXPECT_EQ(list->List(1), AnyValue("item 2"));
    EXPECT_EQ(list->List(2), AnyValue(""));
    EXPECT_EQ(list->List(-1), AnyValue(""));
    EXPECT_FALSE(list->List(2).isEmpty());
}

TEST_F(Store, ListWriteTouchesNoItem)
{
    AppendItems(*list, 2);
    QStringList reported;
    QObject::connect(list.get(), &UserControl1::PropertyChanged,
                     [&](const QString& key) { reported << key; });
    list->List(0, "changed");
    list->List(7, "changed");
    EXPECT_EQ(Texts(*list), QStringList({"item 1", "item 2"}));
    EXPECT_EQ(list->state().ListStore, AnyValue("changed"));
    EXPECT_EQ(reported, QStringList({"List", "List"}));
}

TEST_F(Store, ListIndexReadsTheChosenIndex)
{
    AppendItems(*list, 5);
    EXPECT_EQ(list->ListIndex(), AnyValue(0));
    probe.ChosenIndex(" 0");
    EXPECT_EQ(list->ListIndex(), AnyValue(0));
    probe.ChosenIndex(" 4");
    EXPECT_EQ(list->ListIndex(), AnyValue(4));
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
    EXPECT_TRUE(list->state().ListIndexStore == AnyValue(0));
    EXPECT_EQ(list->ListCount(), AnyValue(0));
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

TEST_F(Store, PicturesWithoutAnImageListAreRefused)
{
    list->DrawStyle(1);
    EXPECT_EQ(ErrorCode([&] { Add(*list, "no list", 0); }), ListErrorCode::ObjectNotSet);
    auto pictures = std::make_shared<ImageList>();
    QImage picture(16, 16, QImage::Format_RGB32);
    picture.fill(Qt::white);
    pictures->Add(picture);
    list->PictureList(pictures);
    QString s = QStringLiteral("no picture 2");
    int16_t ipic = 2;
    QString font;
    int32_t colour = 0;
    EXPECT_EQ(ErrorCode([&] { list->Additem(s, 0, ipic, font, colour); }),
              ListErrorCode::ImageIndexOutOfBounds);
    EXPECT_EQ(list->ListCount(), AnyValue(0));
    ipic = 1;
    list->Additem(s, 0, ipic, font, colour);
    EXPECT_EQ(list->ListCount(), AnyValue(1));
}

} // namespace
