#include "list_probe.h"

#include "moveslist/lbblock.h"
#include "moveslist/olecolor.h"

#include <gtest/gtest.h>

namespace {

std::unique_ptr<UserControl1> ListFrom(const PropertyBag& bag)
{
    return std::unique_ptr<UserControl1>(UserControl1::FromBlock(lbblock::Write(bag)));
}

QStringList Keys(const PropertyBag& bag)
{
    QStringList keys;
    for (const PropertyEntry& entry : bag.entries())
        keys << entry.key;
    return keys;
}

QImage Picture()
{
    QImage picture(3, 2, QImage::Format_RGB32);
    picture.fill(qRgb(10, 20, 30));
    return picture;
}

// Every stored property away from its default, through its setter.
void SetNonDefaults(UserControl1& list)
{
    list.Enabled(true);
    list.PictureList(std::make_shared<ImageList>());
    list.PictureList()->Add(Picture());
    list.forecolor(0x00010203);
    list.GridLines(true);
    list.BorderStyle(0);
    list.DropDownHeight(2000);
    list.Mode(2);
    list.RowHeight(300);
    list.DrawStyle(2);
    list.BackColor(0x00405060);
    list.GridColor(0x00FFFFFF);
    list.ToolTip(true);
}

TEST(StoredProperties, EverySetterReportsItsKey)
{
    auto list = LoadedList();
    QStringList reported;
    QObject::connect(list.get(), &UserControl1::PropertyChanged,
                     [&](const QString& key) { reported << key; });
    SetNonDefaults(*list);
    list->Fontname("Serif");
    list->FontSize(10);
    list->List(0, "x");
    list->text("x");
    list->ListIndex(1);
    EXPECT_EQ(reported, QStringList({"Enabled", "PictureList", "ForeColor", "GridLines",
                                     "BorderStyle", "DropDownHeight", "Mode", "RowHeight",
                                     "DrawStyle", "BackColor", "GridColor", "ToolTip", "Fontname",
                                     "FontSize", "List", "Text", "ListIndex"}));
}

TEST(StoredProperties, ABlockWithoutKeysLoadsTheDefaults)
{
    auto list = LoadedList();
    ListProbe probe(*list);
    EXPECT_FALSE(list->Enabled() || list->GridLines() || list->ToolTip());
    EXPECT_EQ(list->PictureList(), nullptr);
    EXPECT_EQ(list->BorderStyle(), 1);
    EXPECT_EQ(list->Mode() + list->DropDownHeight() + list->DrawStyle() + list->GridColor(), 0);
    EXPECT_EQ(list->forecolor(), olecolor::WindowText);
    EXPECT_EQ(list->BackColor(), olecolor::ButtonFace);
    EXPECT_EQ(list->RowHeight(), AnyValue(0));
    EXPECT_EQ(list->state().ListCountStore, AnyValue(0));
    EXPECT_EQ(list->state().GridLinesOn + list->state().ViewHeight + list->state().RowTwips, 0);
    EXPECT_EQ(list->state().SelectedRow, -1);
    EXPECT_TRUE(probe.canvasHidden() && probe.scrollBarHidden());
}

TEST(StoredProperties, KeysMatchWithoutRegardToCase)
{
    PropertyBag bag;
    bag.WriteProperty("GRIDLINES", PropertyType::Integer, -1, 0);
    bag.WriteProperty("tooltip", PropertyType::Integer, -1, 0);
    auto list = ListFrom(bag);
    EXPECT_TRUE(list->GridLines() && list->ToolTip());
    EXPECT_EQ(list->state().GridLinesOn, 1);
}

TEST(StoredProperties, SavedLayoutSettingsWaitUntilAssigned)
{
    PropertyBag bag;
    bag.WriteProperty("Mode", PropertyType::Integer, 1, 0);
    bag.WriteProperty("DropDownHeight", PropertyType::Integer, 2000, 0);
    bag.WriteProperty("RowHeight", PropertyType::Integer, 400, 0);
    auto list = ListFrom(bag);
    EXPECT_EQ(list->Mode(), 1);
    EXPECT_EQ(list->state().ComboMode, 0);
    EXPECT_EQ(list->DropDownHeight(), 2000);
    EXPECT_EQ(list->state().ViewHeight, 0);
    EXPECT_EQ(list->RowHeight(), AnyValue(400));
    EXPECT_EQ(list->state().RowTwips, 0);
    // The first item measures the rows itself.
    list->DropDownHeight(3000);
    list->Mode(0);
    AppendItems(*list, 1);
    EXPECT_EQ(list->state().RowTwips, HalfEven(HalfEven(MeasuredTextHeight(*list)) * 1.2));
}

TEST(StoredProperties, ASavedBackColourIsTheSurfacesOnly)
{
    PropertyBag bag;
    bag.WriteProperty("BackColor", PropertyType::Long, 0x00FF0000, olecolor::ButtonFace);
    auto list = ListFrom(bag);
    EXPECT_EQ(list->BackColor(), 0x00FF0000);
    EXPECT_EQ(list->canvas().pixel(0, 0), olecolor::ToQColor(olecolor::WindowBackground).rgb());
}

TEST(StoredProperties, TheWriteLeavesOutDefaultsAndKeepsItsOrder)
{
    auto list = LoadedList();
    PropertyBag defaults;
    list->UserControl_WriteProperties(defaults);
    // The font is written though nothing reads it back.
    EXPECT_EQ(Keys(defaults), QStringList({"fontname", "fontsize"}));

    SetNonDefaults(*list);
    list->List(0, "never written");
    PropertyBag bag;
    list->UserControl_WriteProperties(bag);
    EXPECT_EQ(Keys(bag),
              QStringList({"enabled", "picturelist", "fontname", "fontsize", "forecolor",
                           "gridlines", "borderstyle", "dropdownheight", "mode", "rowheight",
                           "drawstyle", "backcolor", "gridcolor", "tooltip"}));
    EXPECT_EQ(bag.ReadProperty("GridLines", 0), AnyValue(-1));
    EXPECT_EQ(bag.find("ForeColor")->type, PropertyType::Long);
    EXPECT_EQ(bag.find("FontSize")->type, PropertyType::Single);
}

TEST(StoredProperties, WhatIsWrittenLoadsBack)
{
    auto list = LoadedList();
    SetNonDefaults(*list);
    PropertyBag bag;
    list->UserControl_WriteProperties(bag);
    auto loaded = ListFrom(bag);
    EXPECT_TRUE(loaded->Enabled() && loaded->GridLines() && loaded->ToolTip());
    ASSERT_NE(loaded->PictureList(), nullptr);
    ASSERT_EQ(loaded->PictureList()->Count(), 1);
    EXPECT_EQ(loaded->PictureList()->ListImages(1).Picture.convertToFormat(QImage::Format_RGB32),
              Picture());
    EXPECT_EQ(loaded->forecolor(), 0x00010203);
    EXPECT_EQ(loaded->BorderStyle(), 0);
    EXPECT_EQ(loaded->DropDownHeight(), 2000);
    EXPECT_EQ(loaded->Mode(), 2);
    EXPECT_EQ(loaded->RowHeight(), AnyValue(300));
    EXPECT_EQ(loaded->DrawStyle(), 2);
    EXPECT_EQ(loaded->BackColor(), 0x00405060);
    EXPECT_EQ(loaded->GridColor(), 0x00FFFFFF);
}

TEST(StoredProperties, AnEmptyStoreTravelsAsEmptyNotZero)
{
    PropertyBag bag;
    bag.WriteProperty("ListCount", PropertyType::Empty, AnyValue(), 0);
    bag.WriteProperty("Text", PropertyType::Text, "typed", 0);
    auto list = ListFrom(bag);
    EXPECT_TRUE(list->state().ListCountStore.isEmpty());
    EXPECT_EQ(list->state().TextStore, AnyValue("typed"));
    PropertyBag written;
    list->UserControl_WriteProperties(written);
    EXPECT_TRUE(written.find("ListCount")->value.isEmpty());
    EXPECT_EQ(written.find("Text"), nullptr);
}

TEST(StoredProperties, ANewInstanceStartsFromZeros)
{
    auto list = LoadedList();
    SetNonDefaults(*list);
    list->UserControl_InitProperties();
    EXPECT_FALSE(list->GridLines() || list->ToolTip() || list->Enabled());
    EXPECT_EQ(list->DrawStyle() + list->Mode() + list->DropDownHeight() + list->GridColor(), 0);
    EXPECT_EQ(list->RowHeight(), AnyValue(0));
}

TEST(StoredProperties, TheLogsBlockGivesTheRecordedWidthAndFont)
{
    auto list = MovesListAsSetUp();
    // 10028 hundredths of a millimetre across.
    EXPECT_EQ(list->width(), static_cast<int>(HalfEven(10028 * 1440.0 / 2540 / TwipsPerPixelX())));
    EXPECT_EQ(list->Fontname(), "MS Sans Serif");
    EXPECT_FLOAT_EQ(list->FontSize(), 8.25f);
}

} // namespace
