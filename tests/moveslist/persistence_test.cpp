#include "moveslist/lbblock.h"
#include "moveslist/listerror.h"
#include "moveslist/usercontrol1.h"
#include "window/moveslistblock.h"

#include <gtest/gtest.h>

#include <QtEndian>

#include <functional>

namespace {

// The code of the ListError a call ends in, or 0 when it ends normally.
int errorCode(const std::function<void()>& call)
{
    try {
        call();
    } catch (const ListError& error) {
        return error.code();
    }
    return 0;
}

// The log's block as the form stores it, byte for byte: the header, then
// "_extentx" 10028, "_extenty" 503, "fontname" "MS Sans Serif", "fontsize" 8.25.
const QByteArray MovesListVector =
    QByteArray::fromHex("2d4c420900a400000093b20000a4000000"
                        "030008000bf25747200000005f0065007800740065006e00740078002c270000"
                        "030008000af25747200000005f0065007800740065006e0074007900f7010000"
                        "08000800bb5756b33c00000066006f006e0074006e0061006d0065000d000000"
                        "4d0053002000530061006e0073002000530065007200690066000000"
                        "040008003bb9549384ffffff66006f006e007400730069007a00650000000441");

constexpr int FirstEntry = 17;
constexpr int FontNameEntry = FirstEntry + 32 + 32;
constexpr int FontSizeEntry = FontNameEntry + 60;

// The block with a number written over it at `at`.
template <typename T> QByteArray with(QByteArray block, int at, T value)
{
    qToLittleEndian(value, block.data() + at);
    return block;
}

int readError(const QByteArray& block)
{
    return errorCode([&] { lbblock::read(block); });
}

TEST(PropertyBlock, TheLogsBlockRoundTrips)
{
    const PropertyBag bag = lbblock::read(MovesListVector);
    ASSERT_EQ(bag.entries().size(), 4u);
    const std::tuple<QString, PropertyType, AnyValue, uint32_t> expected[] = {
        {"_extentx", PropertyType::Long, 10028, 0x4757F20Bu},
        {"_extenty", PropertyType::Long, 503, 0x4757F20Au},
        {"fontname", PropertyType::Text, "MS Sans Serif", 0xB35657BBu},
        {"fontsize", PropertyType::Single, 8.25, 0x9354B93Bu},
    };
    for (size_t i = 0; i < 4; ++i) {
        const PropertyEntry& e = bag.entries()[i];
        EXPECT_EQ(std::make_tuple(e.key, e.type, e.value, e.hash), expected[i]) << i;
    }
    // Keys are found without regard to case.
    EXPECT_EQ(bag.readProperty("FontName", {}), AnyValue("MS Sans Serif"));
    EXPECT_EQ(movesListBlock().toHex(), MovesListVector.toHex());
    EXPECT_EQ(lbblock::write(bag).toHex(), MovesListVector.toHex());
}

TEST(PropertyBlock, EveryKindOfValueRoundTrips)
{
    PropertyBag bag;
    bag.writeProperty("Small", PropertyType::Integer, -2, 0);
    bag.writeProperty("Colour", PropertyType::Long, int32_t(0x8000000F), 0);
    bag.writeProperty("Size", PropertyType::Single, 9.5, 0);
    bag.writeProperty("Ratio", PropertyType::Single, 0.25, 0);
    bag.writeProperty("Name", PropertyType::Text, QString::fromUtf8("Bö₤"), "0");
    bag.writeProperty("Blank", PropertyType::Text, "", "0");
    bag.writeObject("Data", QByteArray("\x01\x02\x03\x04\x05", 5));
    const PropertyBag back = lbblock::read(lbblock::write(bag));
    ASSERT_EQ(back.entries().size(), bag.entries().size());
    for (size_t i = 0; i < bag.entries().size(); ++i) {
        const PropertyEntry& wrote = bag.entries()[i];
        const PropertyEntry& read = back.entries()[i];
        EXPECT_EQ(std::make_tuple(read.key, read.type, read.value, read.objectData, read.hash),
                  std::make_tuple(wrote.key.toLower(), wrote.type, wrote.value, wrote.objectData,
                                  wrote.hash))
            << wrote.key.toStdString();
    }
    EXPECT_TRUE(lbblock::read(lbblock::write(PropertyBag())).entries().empty());
    // A block of one entry, a number or a text that ends it.
    PropertyBag lone;
    lone.writeProperty("Mode", PropertyType::Integer, 1, 0);
    EXPECT_EQ(lbblock::read(lbblock::write(lone)).readProperty("mode", 0), AnyValue(1));
    PropertyBag text;
    text.writeProperty("Fontname", PropertyType::Text, "Serif", "");
    EXPECT_EQ(lbblock::read(lbblock::write(text)).readProperty("fontname", ""), AnyValue("Serif"));
}

// Dotted capital I lowers to two characters: a key that fits 16 bits before lowering
// may not after, and must then be refused rather than written with a false length.
TEST(PropertyBlock, AKeyTooLongOnceLoweredIsRefused)
{
    PropertyBag fits;
    fits.writeProperty(QString(32767, QLatin1Char('K')), PropertyType::Integer, 1, 0);
    EXPECT_EQ(lbblock::read(lbblock::write(fits)).entries().size(), 1U);
    PropertyBag grows;
    grows.writeProperty(QString(16384, QChar(0x130)), PropertyType::Integer, 1, 0);
    EXPECT_EQ(errorCode([&] { lbblock::write(grows); }), ListErrorCode::Overflow);
}

TEST(DamagedPropertyBlock, EveryCutIsRefused)
{
    for (int length = 0; length < MovesListVector.size(); ++length)
        EXPECT_EQ(readError(MovesListVector.left(length)), ListErrorCode::InvalidFileFormat)
            << "cut at " << length;
    EXPECT_EQ(errorCode([] { delete UserControl1::fromBlock(MovesListVector.left(100)); }),
              ListErrorCode::InvalidFileFormat);
}

TEST(DamagedPropertyBlock, BrokenPartsAreRefused)
{
    const QByteArray V = MovesListVector;
    QByteArray signature = V;
    signature[1] = 'X';
    QByteArray unterminated = V;
    unterminated[FontNameEntry + 28 + 4 + 26] = 'x';
    PropertyBag padded;
    padded.writeProperty("ab", PropertyType::Integer, 3, 0); // 18 bytes, 2 of padding
    QByteArray badPadding = lbblock::write(padded);
    ASSERT_EQ(readError(badPadding), 0);
    badPadding[badPadding.size() - 1] = 1;
    const QByteArray damaged[] = {
        signature, with<uint16_t>(V, 3, 8), // block kind
        with<uint32_t>(V, 5, 165),          // byte count
        with<uint32_t>(V, 9, 0xB294),       // marker
        with<uint32_t>(V, 13, 160),         // second byte count
        // Both counts agree but the block has bytes past its last entry.
        with<uint32_t>(with<uint32_t>(V + QByteArray(4, '\0'), 5, 168), 13, 168),
        with<uint16_t>(V, FirstEntry, 7),                     // unknown type
        with<uint16_t>(V, FirstEntry + 2, 0),                 // no key
        with<uint32_t>(V, FirstEntry + 8, 28),                // step inside itself
        with<uint32_t>(V, FontSizeEntry + 8, uint32_t(-120)), // last step not to the first
        with<uint32_t>(V, FontNameEntry + 28, 0xFFFFFFF0u),   // text longer than the block
        unterminated,
        with<uint16_t>(V, FontSizeEntry, 5), // the last value longer than what is left
        badPadding,
        with<uint32_t>(V, FontSizeEntry + 28, 0x7F800001u), // a single that is no number
        with<uint32_t>(V, FontSizeEntry + 28, 0xFF800000u), // an infinite single
    };
    for (size_t i = 0; i < std::size(damaged); ++i)
        EXPECT_EQ(readError(damaged[i]), ListErrorCode::InvalidFileFormat) << "damage " << i;
}

} // namespace
