#include "list_probe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

QStringList reversed(QStringList texts)
{
    std::reverse(texts.begin(), texts.end());
    return texts;
}

TEST(SortOrder, RecordsCompareAsBinaryTextFromTheItemsText)
{
    struct Case {
        QStringList given;
        QStringList ascending;
    };
    const Case cases[] = {
        {{"b", "c", "a"}, {"a", "b", "c"}},
        {{"9", "10"}, {"10", "9"}},
        {{"a", "Z"}, {"Z", "a"}},
        // The TAB behind a text sorts below every printable character.
        {{"a!", "a b", "a"}, {"a", "a b", "a!"}},
        // No locale: an accented letter comes after z by its code.
        {{QString::fromUtf8("\u00e9t\u00e9"), "zoo"}, {"zoo", QString::fromUtf8("\u00e9t\u00e9")}},
    };
    for (const Case& c : cases) {
        auto list = loadedList();
        appendTexts(*list, c.given);
        list->SortAscending();
        EXPECT_EQ(texts(*list), c.ascending) << c.given.join(',').toStdString();
        list->SortDescending();
        EXPECT_EQ(texts(*list), reversed(c.ascending)) << c.given.join(',').toStdString();
    }
}

TEST(SortOrder, EqualTextsAreOrderedByTheRestOfTheRecordAsText)
{
    auto list = loadedList();
    appendTexts(*list, {"same", "same", "same"});
    list->SetItemData(0, 9);
    list->SetItemData(1, 10);
    list->SetItemData(2, -1);
    list->SortAscending();
    // " 10", " 9", "-1": never numerically, and the blank before a sign.
    EXPECT_EQ(list->GetItemData(0), AnyValue(10));
    EXPECT_EQ(list->GetItemData(1), AnyValue(9));
    EXPECT_EQ(list->GetItemData(2), AnyValue(-1));

    auto pictures = loadedList();
    for (const int16_t picture : {9, 10})
        addFull(*pictures, "same", 0, picture, 0);
    pictures->SortAscending();
    EXPECT_EQ(ListProbe(*pictures).column(1, itemrecord::PictureIndex), " 10");
}

// Short texts over a small alphabet and a few item data, so that many records are
// identical and many more share their text.
TEST(Sorting, GivesTheOrderOfAStandardSortOfTheSameRecords)
{
    for (unsigned seed = 1; seed <= 3; ++seed) {
        auto list = loadedList();
        std::mt19937 random(seed);
        const QString letters = QStringLiteral("abAB\t ");
        for (int i = 0; i < 1500; ++i) {
            QString s;
            for (int n = int(random() % 4); n > 0; --n)
                s += letters[int(random() % 5)];
            list->Additem(s);
            list->SetItemData(-1, int(random() % 3));
        }
        std::vector<QString> expected = records(*list);
        std::sort(expected.begin(), expected.end());
        list->SortAscending();
        EXPECT_EQ(records(*list), expected) << "seed " << seed;
        std::reverse(expected.begin(), expected.end());
        list->SortDescending();
        EXPECT_EQ(records(*list), expected) << "seed " << seed;
    }
}

TEST(Sorting, ShortAndLargestListsGetThrough)
{
    auto list = loadedList();
    list->SortAscending();
    appendTexts(*list, {"only"});
    list->SortDescending();
    EXPECT_EQ(texts(*list), QStringList({"only"}));

    // Identical records put every record on one side of the pivot, and an ordered
    // list is the quick sort's worst case without a random pivot.
    auto same = loadedList();
    const QStringList alike(32767, QStringLiteral("same"));
    appendTexts(*same, alike);
    same->SortAscending();
    same->SortDescending();
    EXPECT_EQ(texts(*same), alike);
    auto ordered = loadedList();
    QStringList rising;
    for (int i = 0; i < 32767; ++i)
        rising << QStringLiteral("%1").arg(i, 5, 10, QLatin1Char('0'));
    appendTexts(*ordered, rising);
    ordered->SortDescending();
    EXPECT_EQ(texts(*ordered), reversed(rising));
}

TEST(SortRepaint, AnUnpaintedCanvasKeepsItsRowsWhileTheItemsSort)
{
    auto list = unpaintedList();
    appendTexts(*list, {"c", "b", "a"});
    ASSERT_EQ(list->state().TopRow, -1);
    const QImage before = list->canvas();
    list->SortAscending();
    EXPECT_EQ(texts(*list), QStringList({"a", "b", "c"}));
    EXPECT_EQ(list->canvas(), before);
}

TEST(SortRepaint, APaintedViewShowsTheSameItemNumbersWithTheirNewRecords)
{
    auto list = whiteList(0);
    appendTexts(*list, {"delta", "charlie", "bravo", "alpha"});
    ListProbe(*list).DrawRows(2, 3);
    list->SortAscending();
    EXPECT_EQ(list->state().TopRow, 2);
    EXPECT_EQ(list->state().BottomRow, 3);

    auto sorted = whiteList(0);
    appendTexts(*sorted, {"alpha", "bravo", "charlie", "delta"});
    ListProbe(*sorted).DrawRows(2, 3);
    EXPECT_EQ(list->canvas(), sorted->canvas());
}

} // namespace
