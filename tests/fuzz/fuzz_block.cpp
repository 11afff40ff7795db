// The "-LB" property block reader on any bytes: a block is either refused with ListError
// 321 or read, and what is read survives being written and read again. It then loads a
// whole list, picture list included, that draws rows with pictures: ListErrors at worst.
#include "fuzzinput.h"

#include "moveslist/lbblock.h"
#include "moveslist/listerror.h"
#include "moveslist/usercontrol1.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

// The writer stores keys in lower case, as the block is meant to hold them; a block
// from elsewhere may not have, so the first reading is compared lowered. A Single read
// from stray bytes may be NaN, which is not equal to itself.
bool same(const PropertyEntry& a, const PropertyEntry& b)
{
    const auto nan = [](const AnyValue& v) { return v.isNumber() && std::isnan(v.toNumber()); };
    return a.key.toLower() == b.key && a.type == b.type && a.hash == b.hash &&
           (a.value == b.value || (nan(a.value) && nan(b.value))) && a.objectData == b.objectData;
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
            fail(std::string("a refused block gives another code than 321: ") + e.what());
        return 0;
    }
    const QByteArray written = lbblock::write(first);
    const PropertyBag second = lbblock::read(written); // a block we wrote is never refused
    if (!std::equal(first.entries().begin(), first.entries().end(), second.entries().begin(),
                    second.entries().end(), same))
        fail("the second reading differs from the first");
    // What we write we write the same way twice.
    if (lbblock::write(second) != written)
        fail("writing the second reading gives other bytes");
    // The stored mode acts once the host assigns it; each row then asks for a picture,
    // and a new picture in view draws the page again. A refusal ends the steps.
    try {
        const std::unique_ptr<UserControl1> list(UserControl1::fromBlock(block));
        QString text = QStringLiteral("row"), font;
        int16_t picture = 0;
        int32_t colour = -1;
        list->Mode(list->Mode());
        list->DrawStyle(list->DrawStyle() ? list->DrawStyle() : int16_t(1));
        for (int16_t n = 1; n <= 3; ++n)
            list->Additem(text, 0, picture = n, font, colour);
        list->UpdateIcon(0, 2);
        list->ShowItem(1);
    } catch (const ListError&) {
    }
    return 0;
}
