// The "-LB" property block reader on any bytes: a block is either refused with
// ListError 321 or read, and what is read survives being written and read again.
#include "moveslist/lbblock.h"
#include "moveslist/listerror.h"

#include <QByteArray>

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void fail(const char* what, const QString& detail = {})
{
    std::fprintf(stderr, "%s %s\n", what, qPrintable(detail));
    std::abort();
}

// A Single or Double read from stray bytes may be NaN, which is not equal to itself.
bool sameValue(const PropertyEntry& a, const PropertyEntry& b)
{
    if (a.value.isNumber() && b.value.isNumber() && std::isnan(a.value.toNumber()))
        return std::isnan(b.value.toNumber());
    return a.value == b.value;
}

// The writer stores keys in lower case, as the block is meant to hold them; a block
// from elsewhere may not have, so the first reading is compared lowered.
void checkSame(const PropertyBag& first, const PropertyBag& second)
{
    if (first.entries().size() != second.entries().size())
        fail("the second reading has another number of entries");
    for (size_t i = 0; i < first.entries().size(); ++i) {
        const PropertyEntry& a = first.entries()[i];
        const PropertyEntry& b = second.entries()[i];
        if (a.key.toLower() != b.key || a.type != b.type || a.hash != b.hash)
            fail("the second reading differs in the key, type or hash of", a.key);
        if (!sameValue(a, b) || a.objectData != b.objectData)
            fail("the second reading differs in the value of", a.key);
    }
}

PropertyBag readAgain(const QByteArray& block)
{
    try {
        return lbblock::read(block);
    } catch (const ListError& e) {
        fail("a block we wrote is refused:", QString::fromUtf8(e.what()));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // No copy: a copy would carry a terminating zero and room to spare, and ASan could
    // not see a read past the input's last byte.
    const QByteArray block =
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    PropertyBag first;
    try {
        first = lbblock::read(block);
    } catch (const ListError& e) {
        if (e.code() != ListErrorCode::InvalidFileFormat)
            fail("a refused block gives another code than 321:", QString::fromUtf8(e.what()));
        return 0;
    }
    const QByteArray written = lbblock::write(first);
    checkSame(first, readAgain(written));
    // What we write we write the same way twice.
    if (lbblock::write(readAgain(written)) != written)
        fail("writing the second reading gives other bytes");
    return 0;
}
