#include "list_probe.h"

#include "moveslist/likepattern.h"
#include "moveslist/listerror.h"

#include <gtest/gtest.h>

namespace {

// Whether a one-item list with the text `subject` is found by `pattern`.
bool found(const QString& pattern, const QString& subject, int16_t casen)
{
    auto list = loadedList();
    appendTexts(*list, {subject});
    return list->Find(0, 0, pattern, casen) == AnyValue(1);
}

// A few rows per rule; the fuzz target walks the rest beside the reference matcher.
TEST(PatternLanguage, EachRuleOnItsOwn)
{
    struct Row {
        const char* pattern;
        const char* subject;
        bool found;
        int16_t casen = 1;
    };
    const Row rows[] = {
        // The whole subject: without wildcards, plain equality.
        {"abc", "abc", true},
        {"abc", "abcd", false},
        {"a?c", "abc", true},
        {"?", "", false},
        {"*", "", true},
        {"*a*", "bab", true},
        {"a*b*c", "acb", false},
        {"*ab", "aab", true},
        {"#", "7", true},
        {"[a-cx0-9]", "5", true},
        {"[a-cx0-9]", "d", false},
        {"[\u00e0-\u00fc]", "\u00e9", true},
        // ! negates only right behind the bracket; a hyphen first or last is itself.
        {"[!abc]", "d", true},
        {"[!abc]", "a", false},
        {"[a!]", "!", true},
        {"[!-a]", "-", false},
        {"[a-]", "-", true},
        // Specials in brackets are themselves, and ] outside them.
        {"[#]", "1", false},
        {"[[]", "[", true},
        {"*[*]*", "a*b", true},
        {"*[*]*", "ab", false},
        // [] takes no character and matches nothing.
        {"a[]b", "ab", true},
        // Case counts only with casen 1, and the pattern is upper-cased as well.
        {"abc", "ABC", true, 0},
        {"[A-Z]", "q", true, 0},
        {"[!a]", "A", false, 0},
        {"\u00e9", "\u00c9", true, 0},
        // The dotless i upper-cases to I, between stars too.
        {"*I*", "x\u0131y", true, 0},
        {"*I*", "x\u0131y", false},
    };
    for (const Row& row : rows)
        EXPECT_EQ(found(QString::fromUtf8(row.pattern), QString::fromUtf8(row.subject), row.casen),
                  row.found)
            << "pattern \"" << row.pattern << "\" on \"" << row.subject << "\" casen " << row.casen;
}

TEST(PatternLanguage, AnUnclosedBracketOrAReversedRangeIsRefused)
{
    for (const char* pattern : {"[abc", "*[", "[!", "[f-a]", "[a-c9-0]"})
        EXPECT_EQ(errorCode([&] { LikePattern{QString::fromLatin1(pattern)}; }),
                  ListErrorCode::InvalidPattern)
            << pattern;
    // Upper-casing can turn a range round: Z-a becomes Z-A.
    EXPECT_EQ(errorCode([] { found("[Z-a]", "_", 0); }), ListErrorCode::InvalidPattern);
    EXPECT_TRUE(found("[Z-a]", "_", 1));
}

TEST(PatternLanguage, ManyStarsOnALongSubjectTakeNoTime)
{
    const QString subject(5000, QLatin1Char('a'));
    const LikePattern pattern(QString("*a").repeated(40) + QStringLiteral("*b"));
    // Backtracking into every star would not end in the life of the test.
    EXPECT_FALSE(pattern.matches(subject));
    EXPECT_TRUE(pattern.matches(subject + QLatin1Char('b')));
}

class Finding : public ::testing::Test {
protected:
    void SetUp() override
    {
        appendTexts(*list, {"alpha", "beta", "alpha2", "gamma", "alpha", "delta"});
    }

    AnyValue find(int16_t sdir, int16_t it, const char* pattern, int16_t casen = 0)
    {
        return list->Find(sdir, it, QString::fromLatin1(pattern), casen);
    }

    std::unique_ptr<UserControl1> list = loadedList();
};

// Forward from the start item, backward from the last item down to it; neither wraps.
TEST_F(Finding, TheRunCoversTheStartItemToTheLast)
{
    EXPECT_EQ(find(0, 0, "alpha*"), AnyValue(1));
    // The number found, passed back as an index, starts behind it.
    EXPECT_EQ(find(0, 1, "alpha*"), AnyValue(3));
    EXPECT_EQ(find(-1, 3, "alpha*"), AnyValue(5));
    EXPECT_EQ(find(2, 5, "alpha*"), AnyValue(0));
    EXPECT_EQ(find(0, 5, "delta"), AnyValue(6));
    EXPECT_EQ(find(1, 0, "alpha*"), AnyValue(5));
    // Only items 5 and above are looked at, though beta is item 2.
    EXPECT_EQ(find(1, 4, "beta"), AnyValue(0));
    EXPECT_EQ(find(1, 1, "beta"), AnyValue(2));
    EXPECT_EQ(find(1, 5, "alpha"), AnyValue(0));
    // Outside the list the search does not run: the empty value, not 0, and a pattern
    // that is never read is not refused.
    EXPECT_TRUE(find(0, 6, "delta").isEmpty());
    EXPECT_TRUE(find(1, -1, "delta").isEmpty());
    EXPECT_TRUE(loadedList()->Find(0, 0, "*").isEmpty());
    EXPECT_EQ(errorCode([&] { find(0, 9, "["); }), 0);
    // 32,767 + 1 does not fit the start item's 16 bits.
    EXPECT_EQ(errorCode([&] { find(0, 32767, "*"); }), ListErrorCode::Overflow);
}

TEST_F(Finding, OnlyTheTextIsSearchedAndCaseCountsWithCasenOne)
{
    // Every record holds digits in its other columns.
    EXPECT_EQ(find(0, 0, "*#"), AnyValue(3));
    EXPECT_EQ(find(0, 0, "*\t*"), AnyValue(0));
    EXPECT_EQ(find(0, 0, "GAMMA"), AnyValue(4));
    EXPECT_EQ(find(0, 0, "GAMMA", 1), AnyValue(0));
    EXPECT_EQ(find(0, 0, "GAMMA", 2), AnyValue(4));
    // The empty pattern finds only an empty text.
    EXPECT_EQ(find(0, 0, ""), AnyValue(0));
    appendTexts(*list, {""});
    EXPECT_EQ(find(0, 0, ""), AnyValue(7));
}

TEST_F(Finding, ABadPatternStopsTheSearchAndLeavesTheList)
{
    const std::vector<QString> before = records(*list);
    EXPECT_EQ(errorCode([&] { find(0, 0, "alpha["); }), ListErrorCode::InvalidPattern);
    EXPECT_EQ(errorCode([&] { find(1, 0, "[z-a]*", 1); }), ListErrorCode::InvalidPattern);
    EXPECT_EQ(records(*list), before);
}

class ShowingItems : public ::testing::Test {
protected:
    std::unique_ptr<UserControl1> list = whiteList(20);
    ListProbe probe{*list};
};

TEST_F(ShowingItems, TheItemFoundComesToTheFirstRowMarkedAndChosen)
{
    // A number outside the list is ignored.
    for (const AnyValue& i : {AnyValue(0), AnyValue(21), AnyValue(0.5), AnyValue()})
        list->ShowItem(i);
    EXPECT_EQ(list->state().SelectedRow, -1);
    EXPECT_EQ(list->text(), AnyValue(""));
    list->ShowItem(list->Find(0, 0, QStringLiteral("*1#")));
    EXPECT_EQ(list->text(), AnyValue("item 10"));
    EXPECT_EQ(probe.ChosenIndex(), " 9");
    EXPECT_EQ(probe.scrollValue(), 9);
    EXPECT_EQ(list->state().TopRow, 10);
    EXPECT_EQ(list->state().SelectedRow, 0);
    EXPECT_TRUE(rowMarked(*list, 0));
    EXPECT_FALSE(rowMarked(*list, 1));
    // The last item stands alone on the first row, blank canvas below it.
    list->ShowItem(20);
    EXPECT_EQ(std::make_pair(list->state().TopRow, list->state().BottomRow),
              std::make_pair(int16_t(20), int16_t(20)));
    EXPECT_TRUE(rowMarked(*list, 0));
    EXPECT_TRUE(blank(list->canvas(), 0xFFFFFFFF, pixelsDown(list->state().RowTwips * 1.2)));
}

TEST_F(ShowingItems, TheItemAlreadyOnTopIsNotRepaintedAndEndsMarked)
{
    list->ShowItem(5);
    // A mark no repaint would leave standing.
    probe.InvertRowStrip(3);
    const QImage before = list->canvas();
    list->ShowItem(5);
    EXPECT_EQ(list->canvas(), before);
    EXPECT_EQ(list->state().SelectedRow, 0);
}

} // namespace
