#include "moveslist/anyvalue.h"
#include "moveslist/listerror.h"
#include "moveslist/listnumbers.h"

#include "list_probe.h"

#include <gtest/gtest.h>

namespace {

using moveslist::NumberText;
using moveslist::NumericRead;
using moveslist::R;

TEST(Rounding, HalvesGoToTheEvenNeighbour)
{
    EXPECT_EQ(R(0.5), 0);
    EXPECT_EQ(R(1.5), 2);
    EXPECT_EQ(R(2.5), 2);
    EXPECT_EQ(R(-0.5), 0);
    EXPECT_EQ(R(-1.5), -2);
    EXPECT_EQ(R(-2.5), -2);
    EXPECT_EQ(R(15.6), 16);
    EXPECT_EQ(R(-1.6), -2);
    EXPECT_EQ(R(62.4), 62);
    EXPECT_EQ(R(280.8), 281);
}

TEST(NumberText, OneBlankBeforeANumberThatIsNotNegative)
{
    EXPECT_EQ(NumberText(5), " 5");
    EXPECT_EQ(NumberText(0), " 0");
    EXPECT_EQ(NumberText(-1), "-1");
    EXPECT_EQ(NumberText(42.5), " 42.5");
    EXPECT_EQ(NumberText(int32_t(0x80000012)), "-2147483630");
}

TEST(NumericRead, TakesTheLeadingNumber)
{
    EXPECT_EQ(NumericRead(" 12abc"), 12);
    EXPECT_EQ(NumericRead("  -3.5e2x"), -350);
    EXPECT_EQ(NumericRead("7e"), 7);
    EXPECT_EQ(NumericRead(".5"), 0.5);
    EXPECT_EQ(NumericRead("abc"), 0);
    EXPECT_EQ(NumericRead(""), 0);
    EXPECT_EQ(NumericRead(" -"), 0);
    EXPECT_EQ(NumericRead(" 1 2"), 1);
}

TEST(WholeNumbers, OverflowIsCodeSix)
{
    EXPECT_EQ(moveslist::To16(32767.4), 32767);
    EXPECT_EQ(moveslist::To16(-32768), -32768);
    EXPECT_EQ(ErrorCode([] { moveslist::To16(32768); }), ListErrorCode::Overflow);
    EXPECT_EQ(ErrorCode([] { moveslist::To32(2147483648.0); }), ListErrorCode::Overflow);
    EXPECT_EQ(moveslist::To32(2.5), 2);
}

TEST(AnyValue, EmptyIsNeitherZeroNorEmptyText)
{
    const AnyValue empty;
    EXPECT_TRUE(empty.isEmpty());
    EXPECT_NE(empty, AnyValue(0));
    EXPECT_NE(empty, AnyValue(""));
    EXPECT_NE(AnyValue(0), AnyValue("0"));
    EXPECT_EQ(AnyValue(3), AnyValue(3.0));
    EXPECT_EQ(empty.toNumber(), 0);
    EXPECT_EQ(empty.toText(), "");
}

TEST(AnyValue, NumbersFromTexts)
{
    EXPECT_EQ(AnyValue(" 12abc").toNumber(), 12);
    EXPECT_EQ(AnyValue(" 12 ").toNumberStrict(), 12);
    EXPECT_EQ(ErrorCode([] { AnyValue("12abc").toNumberStrict(); }), ListErrorCode::TypeMismatch);
    EXPECT_EQ(AnyValue(-4).toText(), "-4");
    EXPECT_EQ(AnyValue(4).toText(), "4");
}

} // namespace
