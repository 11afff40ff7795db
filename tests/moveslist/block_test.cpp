#include "list_probe.h"

#include "moveslist/lbblock.h"
#include "moveslist/listerror.h"
#include "moveslist/moveslistblock.h"

#include <gtest/gtest.h>

#include <QtEndian>

namespace {

// The log's block as the form stores it, byte for byte: the header, then
// "_extentx" 10028, "_extenty" 503, "fontname" "MS Sans Serif", "fontsize" 8.25.
const QByteArray MovesListVector =
    QByteArray::fromHex("2d4c42"
                        "0900"
                        "a4000000"
                        "93b20000"
                        "a4000000"
                        "0300"
                        "0800"
                        "0bf25747"
                        "20000000"
                        "5f0065007800740065006e0074007800"
                        "2c270000"
                        "0300"
                        "0800"
                        "0af25747"
                        "20000000"
                        "5f0065007800740065006e0074007900"
                        "f7010000"
                        "0800"
                        "0800"
                        "bb5756b3"
                        "3c000000"
                        "66006f006e0074006e0061006d006500"
                        "0d000000"
                        "4d0053002000530061006e007300200053006500720069006600"
                        "0000"
                        "0400"
                        "0800"
                        "3bb95493"
                        "84ffffff"
                        "66006f006e007400730069007a006500"
                        "00000441");

constexpr int FirstEntry = 17;
constexpr int FontNameEntry = FirstEntry + 32 + 32;
constexpr int FontSizeEntry = FontNameEntry + 60;

// The block with a number written over it at `at`.
template <typename T> QByteArray With(QByteArray block, int at, T value)
{
    qToLittleEndian(value, block.data() + at);
    return block;
}

QByteArray With32(const QByteArray& block, int at, uint32_t value)
{
    return With<uint32_t>(block, at, value);
}

QByteArray With16(const QByteArray& block, int at, uint16_t value)
{
    return With<uint16_t>(block, at, value);
}

int ReadError(const QByteArray& block)
{
    return ErrorCode([&] { lbblock::Read(block); });
}

TEST(PropertyBlock, ReadsTheLogsBlock)
{
    ASSERT_EQ(MovesListVector.size(), 173);
    const PropertyBag bag = lbblock::Read(MovesListVector);
    ASSERT_EQ(bag.entries().size(), 4u);
    const auto& e = bag.entries();
    EXPECT_EQ(e[0].key + e[1].key + e[2].key + e[3].key, "_extentx_extentyfontnamefontsize");
    EXPECT_EQ(std::make_tuple(e[0].type, e[0].value, e[0].hash),
              std::make_tuple(PropertyType::Long, AnyValue(10028), 0x4757F20Bu));
    EXPECT_EQ(std::make_tuple(e[1].type, e[1].value, e[1].hash),
              std::make_tuple(PropertyType::Long, AnyValue(503), 0x4757F20Au));
    EXPECT_EQ(std::make_tuple(e[2].type, e[2].value, e[2].hash),
              std::make_tuple(PropertyType::Text, AnyValue("MS Sans Serif"), 0xB35657BBu));
    EXPECT_EQ(std::make_tuple(e[3].type, e[3].value, e[3].hash),
              std::make_tuple(PropertyType::Single, AnyValue(8.25), 0x9354B93Bu));
    // Keys are found without regard to case.
    EXPECT_EQ(bag.ReadProperty("FontName", {}), AnyValue("MS Sans Serif"));
    EXPECT_EQ(bag.ReadProperty("_ExtentY", {}), AnyValue(503));
}

TEST(PropertyBlock, WritesTheLogsBlockByteForByte)
{
    EXPECT_EQ(MovesListBlock().toHex(), MovesListVector.toHex());
    EXPECT_EQ(lbblock::Write(lbblock::Read(MovesListVector)).toHex(), MovesListVector.toHex());
}

TEST(PropertyBlock, RoundTripOfEveryKindOfValue)
{
    PropertyBag bag;
    bag.WriteProperty("Small", PropertyType::Integer, -2, 0);
    bag.WriteProperty("Colour", PropertyType::Long, int32_t(0x8000000F), 0);
    bag.WriteProperty("Size", PropertyType::Single, 9.5, 0);
    bag.WriteProperty("Ratio", PropertyType::Double, 1.0 / 3, 0);
    bag.WriteProperty("Name", PropertyType::Text, QString::fromUtf8("Bö₤"), "0");
    bag.WriteProperty("Blank", PropertyType::Text, "", "0");
    bag.WriteProperty("Nothing", PropertyType::Empty, AnyValue(), 0);
    bag.WriteObject("Data", QByteArray("\x01\x02\x03\x04\x05", 5));
    const QByteArray block = lbblock::Write(bag);
    const PropertyBag back = lbblock::Read(block);

    ASSERT_EQ(back.entries().size(), bag.entries().size());
    for (size_t i = 0; i < bag.entries().size(); ++i) {
        const PropertyEntry& wrote = bag.entries()[i];
        const PropertyEntry& read = back.entries()[i];
        EXPECT_EQ(read.key, wrote.key.toLower());
        EXPECT_EQ(read.type, wrote.type) << wrote.key.toStdString();
        EXPECT_EQ(read.value, wrote.value) << wrote.key.toStdString();
        EXPECT_EQ(read.objectData, wrote.objectData);
        EXPECT_EQ(read.hash, wrote.hash);
    }
    EXPECT_EQ(block.size() % 4, 17 % 4);
    EXPECT_EQ(qFromLittleEndian<uint32_t>(block.constData() + 5), block.size() - 9);
}

TEST(PropertyBlock, EmptyAndLoneEntryBlocks)
{
    const QByteArray empty = lbblock::Write(PropertyBag());
    EXPECT_EQ(empty.size(), 17);
    EXPECT_TRUE(lbblock::Read(empty).entries().empty());

    PropertyBag bag;
    bag.WriteProperty("Mode", PropertyType::Integer, 1, 0);
    const QByteArray block = lbblock::Write(bag);
    // A lone entry steps back to itself.
    EXPECT_EQ(qFromLittleEndian<int32_t>(block.constData() + FirstEntry + 8), 0);
    EXPECT_EQ(lbblock::Read(block).ReadProperty("mode", 0), AnyValue(1));
}

TEST(DamagedPropertyBlock, EveryCutIsRefused)
{
    for (int length = 0; length < MovesListVector.size(); ++length)
        EXPECT_EQ(ReadError(MovesListVector.left(length)), ListErrorCode::InvalidFileFormat)
            << "cut at " << length;
}

TEST(DamagedPropertyBlock, BrokenHeadersAreRefused)
{
    QByteArray signature = MovesListVector;
    signature[1] = 'X';
    EXPECT_EQ(ReadError(signature), ListErrorCode::InvalidFileFormat);
    EXPECT_EQ(ReadError(With16(MovesListVector, 3, 8)), ListErrorCode::InvalidFileFormat);
    EXPECT_EQ(ReadError(With32(MovesListVector, 5, 165)), ListErrorCode::InvalidFileFormat);
    EXPECT_EQ(ReadError(With32(MovesListVector, 9, 0xB294)), ListErrorCode::InvalidFileFormat);
    EXPECT_EQ(ReadError(With32(MovesListVector, 13, 160)), ListErrorCode::InvalidFileFormat);
    // Both counts agree but the block has bytes past its last entry.
    QByteArray longer = With32(With32(MovesListVector + QByteArray(4, '\0'), 5, 168), 13, 168);
    EXPECT_EQ(ReadError(longer), ListErrorCode::InvalidFileFormat);
}

TEST(DamagedPropertyBlock, BrokenEntriesAreRefused)
{
    const auto refused = [](const QByteArray& block) {
        return ReadError(block) == ListErrorCode::InvalidFileFormat;
    };
    EXPECT_TRUE(refused(With16(MovesListVector, FirstEntry, 7)));          // unknown type
    EXPECT_TRUE(refused(With16(MovesListVector, FirstEntry + 2, 0)));      // no key
    EXPECT_TRUE(refused(With16(MovesListVector, FirstEntry + 2, 0x7FFF))); // key past the end
    EXPECT_TRUE(refused(With32(MovesListVector, FirstEntry + 8, 28)));     // step inside itself
    EXPECT_TRUE(refused(With32(MovesListVector, FirstEntry + 8, 36)));     // step past it
    EXPECT_TRUE(refused(With32(MovesListVector, FirstEntry + 8, 0x7FFFFFF0)));
    EXPECT_TRUE(refused(With32(MovesListVector, FontSizeEntry + 8, uint32_t(-120))));
    EXPECT_TRUE(refused(With32(MovesListVector, FontNameEntry + 28, 0xFFFFFFF0u)));
    EXPECT_TRUE(refused(With32(MovesListVector, FontNameEntry + 28, 14)));
    QByteArray unterminated = MovesListVector;
    unterminated[FontNameEntry + 28 + 4 + 26] = 'x';
    EXPECT_TRUE(refused(unterminated));
    // The last entry's value type changed to one that is longer than what is left.
    EXPECT_TRUE(refused(With16(MovesListVector, FontSizeEntry, 5)));
}

TEST(DamagedPropertyBlock, PaddingMustBeZero)
{
    PropertyBag bag;
    bag.WriteProperty("ab", PropertyType::Integer, 3, 0); // 18 bytes, 2 of padding
    QByteArray block = lbblock::Write(bag);
    ASSERT_EQ(block.size(), FirstEntry + 20);
    ASSERT_NO_THROW(lbblock::Read(block));
    block[block.size() - 1] = 1;
    EXPECT_EQ(ReadError(block), ListErrorCode::InvalidFileFormat);
}

TEST(DamagedPropertyBlock, AControlIsNotMadeFromIt)
{
    EXPECT_EQ(ErrorCode([] { delete UserControl1::FromBlock(MovesListVector.left(100)); }),
              ListErrorCode::InvalidFileFormat);
}

} // namespace
