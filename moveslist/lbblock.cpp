#include "moveslist/lbblock.h"

#include "moveslist/listerror.h"
#include "moveslist/listnumbers.h"

#include <QtEndian>

#include <array>
#include <cmath>
#include <cstring>
#include <limits>

namespace lbblock {

namespace {

// A damaged block is refused whatever the damage: the caller hears the code alone.
[[noreturn]] void refuse()
{
    throw ListError(ListErrorCode::InvalidFileFormat);
}

// Reads little-endian values from a block, never past its end.
class Reader {
public:
    explicit Reader(const QByteArray& block) : m_data(block) {}

    qint64 size() const { return m_data.size(); }

    template <typename T> T number(qint64 at) const
    {
        need(at, sizeof(T));
        std::array<uchar, sizeof(T)> bytes;
        for (size_t i = 0; i < sizeof(T); ++i)
            bytes[i] = static_cast<uchar>(m_data.at(at + static_cast<qint64>(i)));
        return qFromLittleEndian<T>(bytes.data());
    }

    QString utf16(qint64 at, qint64 characters) const
    {
        need(at, characters * 2);
        QString text(characters, Qt::Uninitialized);
        for (qint64 i = 0; i < characters; ++i)
            text[i] = QChar(number<char16_t>(at + 2 * i));
        return text;
    }

    QByteArray bytes(qint64 at, qint64 count) const
    {
        need(at, count);
        return m_data.mid(at, count);
    }

    void need(qint64 at, qint64 count) const
    {
        if (count < 0 || at < 0 || at + count > m_data.size())
            refuse(); // the block ends before the … bytes needed
    }

private:
    const QByteArray& m_data;
};

qint64 padded(qint64 size)
{
    return (size + 3) / 4 * 4;
}

// The value of an entry at `at`; gives the number of bytes it takes.
qint64 readValue(const Reader& in, qint64 at, PropertyEntry& entry)
{
    switch (entry.type) {
    case PropertyType::Integer:
        entry.value = in.number<int16_t>(at);
        return 2;
    case PropertyType::Long:
        entry.value = in.number<int32_t>(at);
        return 4;
    case PropertyType::Single: {
        const float number = in.number<float>(at);
        if (!std::isfinite(number))
            refuse(); // a single that is no finite number
        entry.value = number;
        return 4;
    }
    case PropertyType::Text: {
        const auto characters = static_cast<qint64>(in.number<uint32_t>(at));
        in.need(at + 4, characters * 2 + 2);
        entry.value = in.utf16(at + 4, characters);
        if (in.number<uint16_t>(at + 4 + characters * 2) != 0)
            refuse(); // a text without its closing zero
        return 4 + characters * 2 + 2;
    }
    case PropertyType::Object: {
        const auto count = static_cast<qint64>(in.number<uint32_t>(at));
        entry.objectData = in.bytes(at + 4, count);
        return 4 + count;
    }
    }
    refuse(); // an unknown value type …
}

bool knownType(int16_t type)
{
    switch (static_cast<PropertyType>(type)) {
    case PropertyType::Integer:
    case PropertyType::Long:
    case PropertyType::Single:
    case PropertyType::Text:
    case PropertyType::Object:
        return true;
    }
    return false;
}

// One entry at `at`; gives its size and its step.
std::pair<qint64, qint64> readEntry(const Reader& in, qint64 at, PropertyEntry& entry)
{
    const auto type = in.number<int16_t>(at);
    if (!knownType(type))
        refuse(); // an unknown value type …
    entry.type = static_cast<PropertyType>(type);
    const auto keyLength = in.number<int16_t>(at + 2);
    if (keyLength <= 0)
        refuse(); // a key of length …
    entry.hash = in.number<uint32_t>(at + 4);
    const auto step = static_cast<qint64>(in.number<int32_t>(at + 8));
    entry.key = in.utf16(at + 12, keyLength);
    const qint64 unpadded = 12 + 2 * keyLength + readValue(in, at + 12 + 2 * keyLength, entry);
    const qint64 size = padded(unpadded);
    const QByteArray padding = in.bytes(at + unpadded, size - unpadded);
    if (padding.count('\0') != padding.size())
        refuse(); // padding that is not zero
    return {size, step};
}

void checkHeader(const Reader& in, const QByteArray& block)
{
    in.need(0, HeaderSize);
    if (!block.startsWith("-LB"))
        refuse(); // no "-LB" signature
    if (in.number<int16_t>(3) != BlockKind)
        refuse(); // block kind … instead of …
    const uint32_t count = in.number<uint32_t>(5);
    if (in.number<uint32_t>(9) != Marker)
        refuse(); // a wrong marker
    if (in.number<uint32_t>(13) != count)
        refuse(); // two byte counts that differ
    if (static_cast<qint64>(count) + 9 != in.size())
        refuse(); // a byte count of … for a block of … bytes
}

} // namespace

PropertyBag read(const QByteArray& block)
{
    const Reader in(block);
    checkHeader(in, block);
    PropertyBag bag;
    qint64 at = HeaderSize;
    while (at < in.size()) {
        PropertyEntry entry;
        const auto [size, step] = readEntry(in, at, entry);
        bag.add(std::move(entry));
        if (step <= 0) {
            if (at + step != HeaderSize)
                refuse(); // a last step that does not lead back to the first entry
            if (at + size != in.size())
                refuse(); // bytes after the last entry
            return bag;
        }
        if (step != size)
            refuse(); // a step of … for an entry of … bytes
        at += step;
    }
    if (at != HeaderSize)
        refuse(); // entries without a last one
    return bag;
}

namespace {

template <typename T> void append(QByteArray& out, T value)
{
    const T little = qToLittleEndian(value);
    out.append(reinterpret_cast<const char*>(&little), sizeof(T));
}

void appendUtf16(QByteArray& out, const QString& text)
{
    for (const QChar c : text)
        append<char16_t>(out, c.unicode());
}

void appendValue(QByteArray& out, const PropertyEntry& entry)
{
    const double number = entry.value.toNumber();
    switch (entry.type) {
    case PropertyType::Integer:
        return append<int16_t>(out, moveslist::to16(number));
    case PropertyType::Long:
        return append<int32_t>(out, moveslist::to32(number));
    case PropertyType::Single:
        // A number a single cannot hold is an overflow, not an infinity.
        if (!(std::abs(number) <= std::numeric_limits<float>::max()))
            throw ListError(ListErrorCode::Overflow);
        return append<float>(out, static_cast<float>(number));
    case PropertyType::Text: {
        const QString text = entry.value.toText();
        append<uint32_t>(out, static_cast<uint32_t>(text.size()));
        appendUtf16(out, text);
        return append<uint16_t>(out, 0);
    }
    case PropertyType::Object:
        append<uint32_t>(out, static_cast<uint32_t>(entry.objectData.size()));
        out.append(entry.objectData);
        return;
    }
}

// An entry without its step, which is filled in once all sizes are known.
QByteArray entryBytes(const PropertyEntry& entry)
{
    // Lowering can lengthen a key; one that no longer fits its 16-bit length is refused
    // rather than written with a length that lies.
    const QString key = entry.key.toLower();
    if (key.size() > std::numeric_limits<int16_t>::max())
        throw ListError(ListErrorCode::Overflow);
    QByteArray out;
    append<int16_t>(out, static_cast<int16_t>(entry.type));
    append<int16_t>(out, static_cast<int16_t>(key.size()));
    append<uint32_t>(out, entry.hash);
    append<int32_t>(out, 0);
    appendUtf16(out, key);
    appendValue(out, entry);
    out.append(padded(out.size()) - out.size(), '\0');
    return out;
}

void setStep(QByteArray& entry, int32_t step)
{
    const int32_t little = qToLittleEndian(step);
    std::memcpy(entry.data() + 8, &little, sizeof little);
}

} // namespace

QByteArray write(const PropertyBag& bag)
{
    QByteArray entries;
    qint64 lastStart = 0;
    for (const PropertyEntry& entry : bag.entries()) {
        QByteArray bytes = entryBytes(entry);
        lastStart = entries.size();
        setStep(bytes, static_cast<int32_t>(bytes.size()));
        entries.append(bytes);
    }
    if (!entries.isEmpty()) {
        QByteArray last = entries.mid(lastStart);
        setStep(last, static_cast<int32_t>(-lastStart));
        entries.replace(lastStart, last.size(), last);
    }
    QByteArray block("-LB");
    append<int16_t>(block, BlockKind);
    const auto count = static_cast<uint32_t>(entries.size() + 8);
    append<uint32_t>(block, count);
    append<uint32_t>(block, Marker);
    append<uint32_t>(block, count);
    block.append(entries);
    return block;
}

} // namespace lbblock
