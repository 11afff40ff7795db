#include "common/numbers.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(Numbers, NumbersTakeOneBlankUnlessNegative)
{
    EXPECT_EQ(numberText(5), " 5");
    EXPECT_EQ(numberText(-1), "-1");
    EXPECT_EQ(numberText(2.5), " 2.5");
    EXPECT_EQ(numberText(123456789012345678.0), " 1.23456789012346e+17");
    EXPECT_EQ(digits(-32768), "-32768");
}

TEST(Numbers, ATextReadsAsTheNumberItBeginsWith)
{
    const std::pair<const char*, double> reads[] = {
        {"  12", 12},
        {"12abc", 12},
        {"\t-4", -4},
        {"2.5x", 2.5},
        {"  -3.5e2x", -350},
        {"5e", 5},
        {"7e+", 7},
        {" 1 2", 1},
        {"+.5", 0.5},
        {"", 0},
        {"abc", 0},
        {"-", 0},
        {" . ", 0},
        {"1e-400", 0},
        {"0.0000e999", 0},
        {"1e400", HUGE_VAL},
        {"-1e400", -HUGE_VAL},
        {"0.001e310", 1e307},
    };
    for (const auto& [text, value] : reads)
        EXPECT_EQ(numericRead(text), value) << '"' << text << '"';
}

TEST(Numbers, HalvesRoundToTheEvenNeighbour)
{
    const std::pair<double, double> cases[] = {{0.5, 0},   {1.5, 2},   {2.5, 2},   {-0.5, 0},
                                               {-1.5, -2}, {-2.5, -2}, {15.6, 16}, {-1.6, -2}};
    for (const auto& [v, expected] : cases)
        EXPECT_EQ(R(v), expected) << v;
    EXPECT_TRUE(std::isnan(R(NAN)));
    EXPECT_EQ(twipsToPixels(7950, 15), 530);
    EXPECT_EQ(twipsToPixels(22.5, 15), 2) << "1.5 pixels";

    int16_t out = 0;
    EXPECT_TRUE(numericRead16(" 2.5", out));
    EXPECT_EQ(out, 2);
    EXPECT_TRUE(numericRead16("-32768", out));
    EXPECT_EQ(out, -32768);
    EXPECT_FALSE(numericRead16("32767.5", out)) << "rounds to 32768";
    EXPECT_FALSE(numericRead16("1e400", out));
}
