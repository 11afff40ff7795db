#include "list_probe.h"
#include "reference_matcher.h"

#include "moveslist/likepattern.h"
#include "moveslist/listerror.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>

namespace {

// Whether a one-item list with the text `subject` is found by `pattern`.
bool Found(const QString& pattern, const QString& subject, int16_t casen)
{
    auto list = LoadedList();
    AppendTexts(*list, {subject});
    return list->Find(0, 0, pattern, casen) == AnyValue(1);
}

TEST(PatternLanguage, EachRuleOnItsOwn)
{
    struct Row {
        const char* pattern;
        const char* subject;
        bool found;
        int16_t casen = 1;
    };
    const Row rows[] = {
        // Whole subject, plain equality without wildcards.
        {"abc", "abc", true},
        {"abc", "abcd", false},
        {"abc", "xabc", false},
        {"", "", true},
        {"", "a", false},
        // ? is one character, whichever.
        {"a?c", "abc", true},
        {"a?c", "ac", false},
        {"?", "", false},
        {"?", "\u00e9", true},
        // * is any run, also none.
        {"*", "", true},
        {"*", "anything", true},
        {"a*", "ba", false},
        {"*a*", "bab", true},
        {"*a*", "bbb", false},
        {"a*b*c", "axxbyyc", true},
        {"a*b*c", "acb", false},
        {"**", "", true},
        {"*b", "bbb", true},
        {"*ab", "aab", true},
        // # is one digit.
        {"#", "7", true},
        {"#", "x", false},
        {"#", "77", false},
        {"##-#", "12-3", true},
        // Lists and ranges.
        {"[abc]", "b", true},
        {"[abc]", "d", false},
        {"[abc]", "", false},
        {"[a-f]", "a", true},
        {"[a-f]", "f", true},
        {"[a-f]", "g", false},
        {"[a-cx0-9]", "x", true},
        {"[a-cx0-9]", "5", true},
        {"[a-cx0-9]", "d", false},
        {"[a-a]", "a", true},
        {"[\u00e0-\u00fc]", "\u00e9", true},
        // ! negates only right behind the bracket.
        {"[!abc]", "d", true},
        {"[!abc]", "a", false},
        {"[!abc]", "", false},
        {"[a!]", "!", true},
        {"[!!]", "!", false},
        {"[!!]", "x", true},
        {"a!b", "a!b", true},
        // A hyphen first or last is itself.
        {"[-a]", "-", true},
        {"[a-]", "-", true},
        {"[!-a]", "-", false},
        {"[!-a]", "b", true},
        {"[a-]", "b", false},
        // Specials in brackets are themselves.
        {"[?]", "?", true},
        {"[?]", "a", false},
        {"[*]", "*", true},
        {"[*]", "ab", false},
        {"[#]", "#", true},
        {"[#]", "1", false},
        {"[[]", "[", true},
        {"*[*]*", "a*b", true},
        {"*[*]*", "ab", false},
        // ] outside brackets is itself.
        {"]", "]", true},
        {"a]", "a]", true},
        {"[]]", "]", true},
        // [] takes no character and matches nothing.
        {"[]", "", true},
        {"[]", "a", false},
        {"a[]b", "ab", true},
        // Case: counts only with casen 1, and the pattern is upper-cased as well.
        {"abc", "ABC", false},
        {"abc", "ABC", true, 0},
        {"ABC", "abc", true, 0},
        {"[a-z]", "Q", false},
        {"[a-z]", "Q", true, 0},
        {"[A-Z]", "q", true, 0},
        {"[!a]", "A", false, 0},
        {"\u00e9", "\u00c9", true, 0},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Found(QString::fromUtf8(row.pattern), QString::fromUtf8(row.subject), row.casen),
                  row.found)
            << "pattern \"" << row.pattern << "\" on \"" << row.subject << "\" casen " << row.casen;
}

TEST(PatternLanguage, AnUnclosedBracketOrAReversedRangeIsRefused)
{
    for (const char* pattern : {"[abc", "a[", "[!", "*[", "[f-a]", "[a-c9-0]"})
        EXPECT_EQ(ErrorCode([&] { LikePattern{QString::fromLatin1(pattern)}; }),
                  ListErrorCode::InvalidPattern)
            << pattern;
    // Upper-casing can turn a range round: Z-a becomes Z-A.
    EXPECT_EQ(ErrorCode([] { Found("[Z-a]", "_", 0); }), ListErrorCode::InvalidPattern);
    EXPECT_TRUE(Found("[Z-a]", "_", 1));
}

TEST(PatternLanguage, AgreesWithAnIndependentMatcherOnRandomInputs)
{
    const QStringList pieces = {"a", "b", "I", "1",  "-",   "!",  "]",  "?",
                                "*", "#", "[", "[!", "a-b", "-a", "b-a"};
    // The dotless i upper-cases to I.
    const QString letters = QString::fromUtf8("abAI1-!]*\u0131");
    std::mt19937 random(2024);
    int matched = 0;
    int malformed = 0;
    for (int round = 0; round < 20000; ++round) {
        QString subject;
        for (int n = int(random() % 7); n > 0; --n)
            subject += letters[int(random() % letters.size())];
        QString pattern;
        if (round % 2 == 0) {
            for (int n = int(random() % 7); n > 0; --n) {
                pattern += pieces[int(random() % pieces.size())];
                if (random() % 3 == 0)
                    pattern += QLatin1Char(']');
            }
        } else {
            // Drawn from the subject, so that a good share of the pairs match.
            const QStringList stands = {"?", "*", "[%1b]", "%1", "[!a]"};
            for (const QChar c : subject)
                pattern += stands[int(random() % stands.size())].arg(c);
        }
        const std::optional<bool> expected = ReferenceMatcher::Match(pattern, subject);
        std::optional<bool> actual;
        try {
            actual = LikePattern(pattern).matches(subject);
        } catch (const ListError&) {
        }
        ASSERT_EQ(actual, expected)
            << '"' << pattern.toStdString() << "\" on \"" << subject.toStdString() << '"';
        // Case not counting: both sides upper-cased.
        const QString upper = LikePattern::UpperCase(pattern);
        const std::optional<bool> expectedUpper =
            ReferenceMatcher::Match(upper, LikePattern::UpperCase(subject));
        std::optional<bool> actualUpper;
        try {
            actualUpper = LikePattern(upper).matches(subject, true);
        } catch (const ListError&) {
        }
        ASSERT_EQ(actualUpper, expectedUpper)
            << "upper \"" << pattern.toStdString() << "\" on \"" << subject.toStdString() << '"';
        matched += expected.value_or(false);
        malformed += !expected;
    }
    // The draw has to reach all three outcomes often enough to mean something.
    EXPECT_GT(matched, 1000);
    EXPECT_GT(malformed, 1000);
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
        AppendTexts(*list, {"alpha", "beta", "alpha2", "gamma", "alpha", "delta"});
    }

    AnyValue find(int16_t sdir, int16_t it, const char* pattern, int16_t casen = 0)
    {
        return list->Find(sdir, it, QString::fromLatin1(pattern), casen);
    }

    std::unique_ptr<UserControl1> list = LoadedList();
};

TEST_F(Finding, ForwardFromTheStartItemAndOnBehindEachFind)
{
    EXPECT_EQ(find(0, 0, "alpha*"), AnyValue(1));
    // The number found, passed back as an index, starts behind it.
    EXPECT_EQ(find(0, 1, "alpha*"), AnyValue(3));
    EXPECT_EQ(find(0, 3, "alpha*"), AnyValue(5));
    EXPECT_EQ(find(0, 5, "alpha*"), AnyValue(0));
    // Every direction but 1 goes forward.
    EXPECT_EQ(find(2, 2, "alpha*"), AnyValue(3));
    EXPECT_EQ(find(-1, 2, "alpha*"), AnyValue(3));
}

TEST_F(Finding, BackwardFromTheLastItemDownToTheStartItem)
{
    EXPECT_EQ(find(1, 0, "alpha*"), AnyValue(5));
    EXPECT_EQ(find(1, 4, "alpha*"), AnyValue(5));
    // Only items 5 and above are looked at, though beta is item 2.
    EXPECT_EQ(find(1, 4, "beta"), AnyValue(0));
    EXPECT_EQ(find(1, 1, "beta"), AnyValue(2));
    EXPECT_EQ(find(1, 2, "beta"), AnyValue(0));
}

TEST_F(Finding, TheLastItemAloneAndStartsOutsideTheList)
{
    EXPECT_EQ(find(0, 5, "delta"), AnyValue(6));
    EXPECT_EQ(find(1, 5, "delta"), AnyValue(6));
    EXPECT_EQ(find(1, 5, "alpha"), AnyValue(0));
    // Outside the list the search does not run: the empty value, not 0.
    EXPECT_TRUE(find(0, 6, "delta").isEmpty());
    EXPECT_TRUE(find(1, -1, "delta").isEmpty());
    EXPECT_TRUE(LoadedList()->Find(0, 0, "*").isEmpty());
    // 32,767 + 1 does not fit the start item's 16 bits.
    EXPECT_EQ(ErrorCode([&] { find(0, 32767, "*"); }), ListErrorCode::Overflow);
}

TEST_F(Finding, OnlyTheTextIsSearchedAndCaseCountsWithCasenOne)
{
    // Every record holds digits in its other columns.
    EXPECT_EQ(find(0, 0, "*#"), AnyValue(3));
    EXPECT_EQ(find(0, 0, "*#*"), AnyValue(3));
    EXPECT_EQ(find(0, 0, "*\t*"), AnyValue(0));
    EXPECT_EQ(find(0, 0, "GAMMA"), AnyValue(4));
    EXPECT_EQ(find(0, 0, "GAMMA", 1), AnyValue(0));
    EXPECT_EQ(find(0, 0, "GAMMA", 2), AnyValue(4));
}

TEST_F(Finding, TheEmptyPatternFindsOnlyAnEmptyText)
{
    EXPECT_EQ(find(0, 0, ""), AnyValue(0));
    AppendTexts(*list, {""});
    EXPECT_EQ(find(0, 0, ""), AnyValue(7));
}

TEST_F(Finding, ABadPatternStopsTheSearchAndLeavesTheList)
{
    ListProbe probe(*list);
    QStringList before;
    for (int item = 1; item <= 6; ++item)
        before << probe.record(item);
    EXPECT_EQ(ErrorCode([&] { find(0, 0, "alpha["); }), ListErrorCode::InvalidPattern);
    EXPECT_EQ(ErrorCode([&] { find(1, 0, "[z-a]*", 1); }), ListErrorCode::InvalidPattern);
    for (int item = 1; item <= 6; ++item)
        EXPECT_EQ(probe.record(item), before[item - 1]);
    // A search that does not run reads no pattern.
    EXPECT_EQ(ErrorCode([&] { find(0, 9, "["); }), 0);
}

class ShowingItems : public ::testing::Test {
protected:
    std::unique_ptr<UserControl1> list = WhiteList(20);
    ListProbe probe{*list};
};

TEST_F(ShowingItems, TheItemComesToTheFirstRowMarkedAndChosen)
{
    list->ShowItem(5);
    EXPECT_EQ(list->text(), AnyValue("item 5"));
    EXPECT_EQ(probe.ChosenIndex(), " 4");
    EXPECT_EQ(list->ListIndex(), AnyValue(4));
    EXPECT_EQ(probe.scrollValue(), 4);
    EXPECT_EQ(list->state().TopRow, 5);
    EXPECT_EQ(list->state().SelectedRow, 0);
    EXPECT_TRUE(RowMarked(*list, 0));
    EXPECT_FALSE(RowMarked(*list, 1));
}

TEST_F(ShowingItems, TheLastItemStandsAloneOnTheFirstRow)
{
    list->ShowItem(20);
    EXPECT_EQ(probe.scrollValue(), 19);
    EXPECT_EQ(list->state().TopRow, 20);
    EXPECT_EQ(list->state().BottomRow, 20);
    EXPECT_TRUE(RowMarked(*list, 0));
    // Blank canvas below it.
    const QImage& canvas = list->canvas();
    const int below = PixelsDown(list->state().RowTwips * 1.2);
    for (int y = below; y < canvas.height(); ++y)
        for (int x = 0; x < canvas.width(); ++x)
            ASSERT_EQ(canvas.pixel(x, y), 0xFFFFFFFF) << x << "," << y;
}

TEST_F(ShowingItems, TheItemAlreadyOnTopIsNotRepaintedAndEndsMarked)
{
    list->ShowItem(5);
    // A mark no repaint would leave standing.
    probe.InvertRowStrip(3);
    const QImage before = list->canvas();
    list->ShowItem(5);
    EXPECT_EQ(list->canvas(), before);
    EXPECT_TRUE(RowMarked(*list, 0));
    EXPECT_EQ(list->state().SelectedRow, 0);
}

TEST_F(ShowingItems, ANumberOutsideTheListIsIgnored)
{
    for (const AnyValue& i : {AnyValue(0), AnyValue(21), AnyValue(0.5), AnyValue()})
        list->ShowItem(i);
    EXPECT_EQ(list->text(), AnyValue(""));
    EXPECT_EQ(probe.scrollValue(), 0);
    EXPECT_EQ(list->state().SelectedRow, -1);
    EXPECT_FALSE(RowMarked(*list, 0));
}

TEST_F(ShowingItems, TheNumberFoundIsTheNumberShown)
{
    const AnyValue found = list->Find(0, 0, QStringLiteral("*1#"));
    list->ShowItem(found);
    EXPECT_EQ(list->text(), AnyValue("item 10"));
    EXPECT_EQ(list->state().TopRow, 10);
}

} // namespace
