// A whole list loaded from any bytes as its stored property block, picture list
// included, then shown with a picture on each row: loading gives a list or ListError 321
// and nothing else, and every step after it a ListError at worst. A list that loaded
// writes a block that loads again into a list that writes the same block.
#include "fuzzinput.h"

#include "moveslist/lbblock.h"
#include "moveslist/listerror.h"
#include "moveslist/usercontrol1.h"

#include <QApplication>

#include <memory>

namespace {

QByteArray written(const UserControl1& list)
{
    PropertyBag bag;
    list.UserControl_WriteProperties(bag);
    return lbblock::write(bag);
}

// A member called as a host calls it: its refusals are the host's to hear.
template <typename Member> void attempt(Member member)
{
    try {
        member();
    } catch (const ListError&) {
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    static QApplication app(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    std::unique_ptr<UserControl1> list, again;
    try {
        list.reset(UserControl1::fromBlock(
            QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size))));
    } catch (const ListError&) {
        return 0;
    }
    const QByteArray block = written(*list);
    try {
        again.reset(UserControl1::fromBlock(block));
    } catch (const ListError& e) {
        fail(std::string("a block the list wrote is refused: ") + e.what());
    }
    if (written(*again) != block)
        fail("a block the list wrote loads into a list that writes another");
    // The stored heights and mode act once the host assigns them, as the game does.
    list->DropDownHeight(list->DropDownHeight());
    attempt([&] { list->RowHeight(list->RowHeight()); });
    attempt([&] { list->Mode(list->Mode()); });
    if (list->DrawStyle() == 0)
        list->DrawStyle(1);
    for (int16_t n = 1; n <= 3; ++n) {
        QString text = QStringLiteral("row %1").arg(n), font;
        int16_t picture = n;
        int32_t colour = -1;
        attempt([&] { list->Additem(text, 0, picture, font, colour); });
    }
    // A new picture on a row in view redraws the page; ShowItem opens a drop-down.
    attempt([&] { list->UpdateIcon(0, 2); });
    attempt([&] { list->ShowItem(1); });
    return 0;
}
