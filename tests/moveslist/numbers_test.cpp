#include "moveslist/listerror.h"
#include "moveslist/listnumbers.h"

#include "list_probe.h"

#include <gtest/gtest.h>

namespace {

using namespace moveslist;

TEST(Numbers, HalvesRoundToTheEvenNeighbour)
{
    const std::vector<std::pair<double, double>> cases = {
        {0.5, 0}, {1.5, 2}, {2.5, 2}, {-0.5, 0}, {-1.5, -2}, {-2.5, -2}, {15.6, 16}, {-1.6, -2}};
    for (const auto& [v, expected] : cases)
        EXPECT_EQ(R(v), expected) << v;
    EXPECT_EQ(To32(2.5), 2);
    EXPECT_EQ(ErrorCode([] { To32(2147483648.0); }), ListErrorCode::Overflow);
}

TEST(Numbers, AColumnReadsAsItsLeadingNumber)
{
    EXPECT_EQ(NumericRead(" 12abc"), 12);
    EXPECT_EQ(NumericRead("  -3.5e2x"), -350);
    EXPECT_EQ(NumericRead("7e"), 7);
    EXPECT_EQ(NumericRead(" 1 2"), 1);
    EXPECT_EQ(NumericRead("abc") + NumericRead("") + NumericRead(" -"), 0);
}

} // namespace
