#include "list_probe.h"

#include "moveslist/listerror.h"
#include "moveslist/uniformsource.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

namespace {

QStringList Reversed(QStringList texts)
{
    std::reverse(texts.begin(), texts.end());
    return texts;
}

std::vector<QString> Records(const UserControl1& list)
{
    ListProbe probe(const_cast<UserControl1&>(list));
    std::vector<QString> records;
    for (int item = 1; item <= list.state().ItemCount; ++item)
        records.push_back(probe.record(item));
    return records;
}

// Short texts over a small alphabet and a few item data, so that many records are
// identical and many more share their text.
std::unique_ptr<UserControl1> RandomList(unsigned seed, int count)
{
    auto list = LoadedList();
    std::mt19937 random(seed);
    const QString letters = QStringLiteral("abAB\t ");
    for (int i = 0; i < count; ++i) {
        QString s;
        for (int n = int(random() % 4); n > 0; --n)
            s += letters[int(random() % 5)];
        list->Additem(s);
        list->SetItemData(-1, int(random() % 3));
    }
    return list;
}

TEST(SortOrder, RecordsCompareAsBinaryTextFromTheItemsText)
{
    struct Case {
        QStringList given;
        QStringList ascending;
    };
    const std::array<Case, 6> cases{{
        {{"b", "c", "a"}, {"a", "b", "c"}},
        {{"9", "10"}, {"10", "9"}},
        {{"a", "Z"}, {"Z", "a"}},
        // The TAB behind a text sorts below every printable character.
        {{"abc", "ab"}, {"ab", "abc"}},
        {{"a!", "a b"}, {"a b", "a!"}},
        // No locale: an accented letter comes after z by its code.
        {{QString::fromUtf8("\u00e9t\u00e9"), "zoo"}, {"zoo", QString::fromUtf8("\u00e9t\u00e9")}},
    }};
    for (const Case& c : cases) {
        auto list = LoadedList();
        AppendTexts(*list, c.given);
        list->SortAscending();
        EXPECT_EQ(Texts(*list), c.ascending) << c.given.join(',').toStdString();
        list->SortDescending();
        EXPECT_EQ(Texts(*list), Reversed(c.ascending)) << c.given.join(',').toStdString();
    }
}

TEST(SortOrder, EqualTextsAreOrderedByTheRestOfTheRecordAsText)
{
    auto list = LoadedList();
    AppendTexts(*list, {"same", "same", "same"});
    list->SetItemData(0, 9);
    list->SetItemData(1, 10);
    list->SetItemData(2, -1);
    list->SortAscending();
    // " 10", " 9", "-1": never numerically, and the blank before a sign.
    EXPECT_EQ(list->GetItemData(0), AnyValue(10));
    EXPECT_EQ(list->GetItemData(1), AnyValue(9));
    EXPECT_EQ(list->GetItemData(2), AnyValue(-1));
}

TEST(SortOrder, PictureIndexOrdersAsItsStoredText)
{
    auto list = LoadedList();
    for (const int16_t picture : {9, 10}) {
        QString s = QStringLiteral("same");
        int16_t ipic = picture;
        QString font;
        int32_t colour = 0;
        list->Additem(s, 0, ipic, font, colour);
    }
    list->SortAscending();
    ListProbe probe(*list);
    EXPECT_EQ(probe.column(1, itemrecord::PictureIndex), " 10");
    EXPECT_EQ(probe.column(2, itemrecord::PictureIndex), " 9");
}

TEST(Sorting, GivesTheOrderOfAStandardSortOfTheSameRecords)
{
    for (unsigned seed = 1; seed <= 4; ++seed) {
        auto list = RandomList(seed, 1500);
        std::vector<QString> expected = Records(*list);
        std::sort(expected.begin(), expected.end());
        list->SortAscending();
        EXPECT_EQ(Records(*list), expected) << "seed " << seed;
        std::reverse(expected.begin(), expected.end());
        list->SortDescending();
        EXPECT_EQ(Records(*list), expected) << "seed " << seed;
    }
}

TEST(Sorting, TwiceInARowGivesTheSameListWhateverThePivots)
{
    auto list = RandomList(7, 400);
    list->SortDescending();
    const std::vector<QString> once = Records(*list);
    list->SortDescending();
    EXPECT_EQ(Records(*list), once);
}

TEST(Sorting, AnEmptyListOrASingleItemIsLeftAlone)
{
    auto list = LoadedList();
    list->SortAscending();
    EXPECT_EQ(list->ListCount(), AnyValue(0));
    AppendTexts(*list, {"only"});
    const std::vector<QString> before = Records(*list);
    list->SortDescending();
    EXPECT_EQ(Records(*list), before);
}

TEST(Sorting, TheLargestListsGetThroughIdenticalAndOrderedRecords)
{
    auto list = LoadedList();
    QStringList same(32767, QStringLiteral("same"));
    AppendTexts(*list, same);
    list->SortAscending();
    list->SortDescending();
    EXPECT_EQ(Texts(*list), same);

    auto ordered = LoadedList();
    QStringList rising;
    for (int i = 0; i < 32767; ++i)
        rising << QStringLiteral("%1").arg(i, 5, 10, QLatin1Char('0'));
    AppendTexts(*ordered, rising);
    ordered->SortDescending();
    EXPECT_EQ(Texts(*ordered), Reversed(rising));
}

TEST(Sorting, AListOf32768ItemsOverflowsItsBoundsAndStaysAsItWas)
{
    auto list = LoadedList();
    QStringList falling;
    for (int i = 32768; i > 0; --i)
        falling << QString::number(i);
    // The 32,768th item is stored and only its scroll bar maximum overflows.
    EXPECT_EQ(ErrorCode([&] { AppendTexts(*list, falling); }), 0);
    EXPECT_EQ(ErrorCode([&] { list->SortAscending(); }), ListErrorCode::Overflow);
    EXPECT_EQ(list->List(0), AnyValue("32768"));
}

class SortRepaint : public ::testing::Test {
protected:
    static std::unique_ptr<UserControl1> ShownList(const QStringList& texts)
    {
        auto list = LoadedList();
        list->resize(300, 200);
        list->DropDownHeight(2000);
        list->Mode(0);
        AppendTexts(*list, texts);
        return list;
    }
};

TEST_F(SortRepaint, AnUnpaintedCanvasKeepsItsRowsWhileTheItemsSort)
{
    auto list = ShownList({"c", "b", "a"});
    ASSERT_EQ(list->state().TopRow, -1);
    const QImage before = list->canvas();
    list->SortAscending();
    EXPECT_EQ(Texts(*list), QStringList({"a", "b", "c"}));
    EXPECT_EQ(list->canvas(), before);
}

TEST_F(SortRepaint, APaintedViewShowsTheSameItemNumbersWithTheirNewRecords)
{
    auto list = ShownList({"delta", "charlie", "bravo", "alpha"});
    ListProbe probe(*list);
    probe.DrawRows(2, 3);
    list->SortAscending();
    EXPECT_EQ(list->state().TopRow, 2);
    EXPECT_EQ(list->state().BottomRow, 3);

    auto sorted = ShownList({"alpha", "bravo", "charlie", "delta"});
    ListProbe(*sorted).DrawRows(2, 3);
    EXPECT_EQ(list->canvas(), sorted->canvas());
}

TEST(UniformSource, DrawsSpreadOverTheUnitIntervalAndNeverReachOne)
{
    std::array<int, 10> tenths{};
    for (int i = 0; i < 100000; ++i) {
        const float r = moveslist::Rnd();
        ASSERT_GE(r, 0.0f);
        ASSERT_LT(r, 1.0f);
        ++tenths[static_cast<size_t>(r * 10)];
    }
    for (const int count : tenths)
        EXPECT_NEAR(count, 10000, 600);
}

} // namespace
