#include "list_probe.h"

#include "moveslist/listerror.h"
#include "moveslist/listnumbers.h"

#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

#include <functional>

namespace {

using namespace itemrecord;

constexpr int32_t Red = 0x000000FF;

QStringList RecordColumns(ListProbe& probe, int item)
{
    return Split(probe.record(item));
}

TEST(Updating, EachOperationReplacesItsOwnColumnOnly)
{
    struct Row {
        const char* name;
        std::function<void(UserControl1&)> update;
        int column;
        QString expected;
    };
    const Row rows[] = {
        {"UpdateText", [](UserControl1& l) { l.UpdateText(1, "new text"); }, Text, "new text"},
        {"UpdateItemData", [](UserControl1& l) { l.UpdateItemData(1, 42); }, ItemData, " 42"},
        {"UpdateItemData text", [](UserControl1& l) { l.UpdateItemData(1, " 7"); }, ItemData, " 7"},
        {"UpdateIcon", [](UserControl1& l) { l.UpdateIcon(1, -3); }, PictureIndex, "-3"},
        // No image list is asked: any number goes.
        {"UpdateIcon unlisted", [](UserControl1& l) { l.UpdateIcon(1, 999); }, PictureIndex,
         " 999"},
        {"UpdateFont", [](UserControl1& l) { l.UpdateFont(1, "Serif"); }, FontName, "Serif"},
        {"UpdateForeColor", [](UserControl1& l) { l.UpdateForeColor(1, Red); }, Colour, " 255"},
    };
    for (const Row& row : rows) {
        // Not on the screen, so that no repaint rewrites the drawn widths.
        auto list = LoadedList();
        AppendItems(*list, 3);
        ListProbe probe(*list);
        QStringList expected = RecordColumns(probe, 2);
        expected[row.column] = row.expected;
        const QStringList first = RecordColumns(probe, 1);
        const QStringList third = RecordColumns(probe, 3);
        row.update(*list);
        EXPECT_EQ(RecordColumns(probe, 2), expected) << row.name;
        EXPECT_EQ(RecordColumns(probe, 1), first) << row.name;
        EXPECT_EQ(RecordColumns(probe, 3), third) << row.name;
    }
}

TEST(Updating, AnIndexOutsideTheListIsANoOp)
{
    auto list = WhiteList(3);
    ListProbe probe(*list);
    const QStringList before = {probe.record(1), probe.record(2), probe.record(3)};
    for (const AnyValue& it : {AnyValue(-1), AnyValue(3), AnyValue(40000.0)}) {
        if (it.toNumber() > 32766) {
            // Beyond 16 bits the index itself overflows.
            EXPECT_EQ(ErrorCode([&] { list->UpdateText(it, "x"); }), ListErrorCode::Overflow);
            continue;
        }
        list->UpdateText(it, "x");
        list->UpdateItemData(it, "not a number");
        list->UpdateForeColor(it, Red);
    }
    EXPECT_EQ(QStringList({probe.record(1), probe.record(2), probe.record(3)}), before);
}

TEST(Updating, ANumberWithoutANumericReadingIsATypeMismatch)
{
    auto list = WhiteList(2);
    ListProbe probe(*list);
    const QString before = probe.record(1);
    EXPECT_EQ(ErrorCode([&] { list->UpdateItemData(0, "twelve"); }), ListErrorCode::TypeMismatch);
    EXPECT_EQ(ErrorCode([&] { list->UpdateIcon(0, "3 pictures"); }), ListErrorCode::TypeMismatch);
    EXPECT_EQ(probe.record(1), before);
}

TEST(Updating, TheChosenTextStaysAsItWasChosen)
{
    auto list = WhiteList(4);
    list->ShowItem(2);
    list->UpdateText(1, "renamed");
    EXPECT_EQ(list->text(), AnyValue("item 2"));
    EXPECT_EQ(list->List(1), AnyValue("renamed"));
}

TEST(Updating, AnItemOnTheCanvasRepaintsThePageAndWipesTheMark)
{
    auto list = WhiteList(20);
    list->ShowItem(3);
    ASSERT_TRUE(RowMarked(*list, 0));
    list->UpdateForeColor(3, Red);
    EXPECT_FALSE(RowMarked(*list, 0));
    EXPECT_EQ(list->state().SelectedRow, 0);
    // Item 4 is the second row: its text is red now.
    const QImage& canvas = list->canvas();
    int red = 0;
    const int top = PixelsDown(list->state().RowTwips);
    for (int y = top; y < top + PixelsDown(list->state().RowTwips); ++y)
        for (int x = 0; x < canvas.width(); ++x)
            red +=
                QColor(canvas.pixel(x, y)).red() > 200 && QColor(canvas.pixel(x, y)).green() < 100;
    EXPECT_GT(red, 10);
}

TEST(Updating, AnItemOffTheCanvasOrAnUnpaintedCanvasIsOnlyStored)
{
    auto list = WhiteList(20);
    list->ShowItem(3);
    const QImage before = list->canvas();
    list->UpdateForeColor(0, Red);
    list->UpdateText(19, "far below");
    EXPECT_EQ(list->canvas(), before);
    EXPECT_TRUE(RowMarked(*list, 0));

    auto unpainted = LoadedList();
    unpainted->DropDownHeight(2000);
    unpainted->Mode(0);
    AppendItems(*unpainted, 3);
    ASSERT_EQ(unpainted->state().TopRow, -1);
    const QImage blank = unpainted->canvas();
    unpainted->UpdateForeColor(0, Red);
    EXPECT_EQ(unpainted->canvas(), blank);
    EXPECT_EQ(ListProbe(*unpainted).column(1, Colour), " 255");
}

// The tip, with the pointer moved over the real canvas of a list on the screen.
class HoverTip : public ::testing::Test {
protected:
    void SetUp() override
    {
        const QString wide = QString("W").repeated(80);
        list->ToolTip(true);
        list->UpdateText(1, wide);
        ListProbe(*list).DrawRows(1, list->state().RowsInView);
        list->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(list.get()));
        // The pointer starts off the list, wherever the last test left it.
        QCursor::setPos(list->mapToGlobal(QPoint(-50, -50)));
    }

    // The pointer steps across as well, so that each call is a move of its own.
    void hoverRow(int row)
    {
        const int y = PixelsDown((row + 0.5) * list->state().RowTwips);
        QTest::mouseMove(probe.canvasWidget(), QPoint(20 + (++moves % 2), y));
    }

    QString tip() const { return probe.canvasWidget()->toolTip(); }

    std::unique_ptr<UserControl1> list = WhiteList(3);
    ListProbe probe{*list};
    int moves = 0;
};

TEST_F(HoverTip, ARowWiderThanTheCanvasShowsItsTextAndANarrowOneNone)
{
    hoverRow(1);
    EXPECT_EQ(tip(), QString("W").repeated(80));
    hoverRow(0);
    EXPECT_EQ(tip(), "");
    hoverRow(1);
    EXPECT_EQ(tip(), QString("W").repeated(80));
}

TEST_F(HoverTip, BelowTheLastItemTheLastTipStands)
{
    hoverRow(1);
    hoverRow(5);
    EXPECT_EQ(tip(), QString("W").repeated(80));
}

TEST_F(HoverTip, AWidthJustAsWideAsTheCanvasShowsNoTip)
{
    const QString canvasWidth =
        moveslist::NumberText(HalfEven(probe.canvasWidth() * TwipsPerPixelX()));
    hoverRow(1);
    probe.column(3, DrawnWidth, canvasWidth);
    hoverRow(2);
    EXPECT_EQ(tip(), "");
    probe.column(3, DrawnWidth, moveslist::NumberText(canvasWidth.toInt() + 1));
    hoverRow(2);
    EXPECT_EQ(tip(), "item 3");
}

TEST_F(HoverTip, ARowNeverPaintedShowsNoTip)
{
    hoverRow(1);
    // Column 5 of a row never drawn is empty, and reads as 0.
    probe.column(3, DrawnWidth, "");
    hoverRow(2);
    EXPECT_EQ(tip(), "");
}

TEST_F(HoverTip, SwitchedOffTheRuleStopsAndTheLastTextStays)
{
    hoverRow(1);
    list->ToolTip(false);
    hoverRow(0);
    EXPECT_EQ(tip(), QString("W").repeated(80));
}

} // namespace
