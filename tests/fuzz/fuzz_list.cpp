// The moves list driven by up to 64 member calls. After each, its count and the texts
// of its items agree with a plain model of the store, and a refused call gives the code
// expected and leaves every stored record as it was.
#include "fuzzinput.h"

#include "moveslist/listerror.h"
#include "moveslist/moveslistblock.h"
#include "moveslist/usercontrol1.h"

#include <QApplication>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <optional>

namespace {

using namespace ListErrorCode;

// Short texts from a few characters, so that sorting meets equal texts and texts that
// differ only in case; no TAB, which callers must keep out of a text.
QString Text(FuzzInput& in, int most)
{
    static const QString letters = QString::fromUtf8("aAbB1 *?[]#-!\u0131\u00DF");
    QString text;
    for (int n = in.pick(most + 1); n > 0; --n)
        text += letters[in.pick(int(letters.size()))];
    return text;
}

// An index or number as a caller passes it: mostly a number, sometimes its text, now
// and then a text that is no number (13 for the members that read it strictly).
struct Arg {
    AnyValue value;
    std::optional<double> number;
};

Arg Index(FuzzInput& in, int count, bool halves)
{
    const double n = in.pick(count + 4) - 2 + (halves && in.pick(4) == 0 ? 0.5 : 0);
    const int form = in.pick(8);
    if (form == 0)
        return {QStringLiteral("x%1").arg(n), std::nullopt};
    return {form == 1 ? AnyValue(QStringLiteral(" %1 ").arg(n)) : AnyValue(n), n};
}

struct ListRun {
    // Loaded as the window loads its MovesList; half the runs set it up as the game does.
    explicit ListRun(FuzzInput& input) : in(input), list(UserControl1::fromBlock(movesListBlock()))
    {
        if (in.pick(2) == 0)
            setUpMovesLog(*list);
        list->resize(379, 19);
    }

    int count() const { return int(texts.size()); }

    // Runs a member: a refusal changes no record and carries one of the codes allowed
    // (0: none); with none listed, any.
    template <typename Member> void expect(std::initializer_list<int> allowed, Member member)
    {
        const std::vector<QString> before = list->state().Items;
        int code = 0;
        try {
            member();
        } catch (const ListError& e) {
            code = e.code();
            if (list->state().Items != before)
                fail("a refused call changed the store");
        }
        if (allowed.size() && std::find(allowed.begin(), allowed.end(), code) == allowed.end())
            fail("ListError " + std::to_string(code) + ", not " + std::to_string(*allowed.begin()));
    }

    void call(int kind)
    {
        if (kind <= 2)
            return Additem();
        if (kind == 4) {
            texts.clear();
            return expect({0}, [&] { list->Clear(); });
        }
        // Whole records compare as binary text, the text first.
        if (kind == 9 || kind == 10) {
            std::sort(texts.begin(), texts.end(),
                      [&](auto& a, auto& b) { return kind == 9 ? a < b : b < a; });
            return expect({0}, [&] { kind == 9 ? list->SortAscending() : list->SortDescending(); });
        }
        // The plain list and the drop-down keep their items differently; a row height
        // below 1 is refused.
        if (kind == 11 || kind == 12)
            return expect(
                {}, [&] { kind == 11 ? list->Mode(in.pick(2)) : list->RowHeight(in.pick(9) - 2); });
        // Halves only where they name an item: the Update members round it + 1, not it.
        const Arg it = Index(in, count(), kind == 3 || kind == 8);
        // The item it names, halves to the even neighbour; -1 for none.
        const double at = it.number ? std::nearbyint(*it.number) : -1;
        const int n = at >= 0 && at < count() ? int(at) : -1;
        const int refused = it.number ? 0 : TypeMismatch;
        if (kind == 3) {
            expect({refused}, [&] { list->RemoveItem(it.value); });
            if (n >= 0)
                texts.removeAt(n);
        } else if (kind == 8) {
            // The pick is made before the scroll, which may not reach that far.
            const bool named = it.number && *it.number >= 1 && *it.number <= count();
            expect({refused, named ? InvalidPropertyValue : refused},
                   [&] { list->ShowItem(it.value); });
        } else {
            update(it, n);
        }
    }

    // From 1 an item goes to that index, and one past the last is not added; -1 puts
    // it first; anything else last.
    void Additem()
    {
        QString s = Text(in, 6);
        const int itemx = in.pick(count() + 5) - 2;
        auto ipic = int16_t(in.pick(6) - 1);
        QString font = in.pick(4) == 0 ? QStringLiteral("Font%1").arg(in.pick(3)) : QString();
        int32_t colour = in.pick(3) == 0 ? -1 : in.pick(256);
        if (itemx < count() || itemx <= 0)
            texts.insert(itemx > 0 ? itemx : itemx == -1 ? 0 : count(), s);
        expect({0}, [&] { list->Additem(s, int16_t(itemx), ipic, font, colour); });
    }

    // One column replaced: text, data, picture, font, colour. The data and the picture
    // refuse a value that is no number, but only for an item.
    void update(const Arg& it, int n)
    {
        const int column = in.pick(5);
        const QString text = column == 3 ? QStringLiteral("Font%1").arg(in.pick(3)) : Text(in, 6);
        const Arg v = Index(in, 300, false);
        const std::function<void()> columns[] = {
            [&] { list->UpdateText(it.value, text); },
            [&] { list->UpdateItemData(it.value, v.value); },
            [&] { list->UpdateIcon(it.value, v.value); }, [&] { list->UpdateFont(it.value, text); },
            [&] { list->UpdateForeColor(it.value, v.number ? int32_t(*v.number) : 0); }};
        const bool refused = !it.number || (n >= 0 && (column == 1 || column == 2) && !v.number);
        expect({refused ? TypeMismatch : 0}, columns[column]);
        if (column == 0 && n >= 0)
            texts[n] = text;
    }

    // Entry 0 of the store holds no item; each record is six columns, the text first.
    void check() const
    {
        const std::vector<QString>& items = list->state().Items;
        bool same = list->ListCount() == AnyValue(count()) && list->state().ItemCount == count() &&
                    items.size() >= size_t(count() + (count() > 0)) &&
                    (items.empty() || items[0].isEmpty());
        for (int i = 0; same && i < count(); ++i)
            same = items[size_t(i) + 1].count(QLatin1Char('\t')) == 5 &&
                   items[size_t(i) + 1].startsWith(texts[i] + QLatin1Char('\t')) &&
                   list->List(i) == AnyValue(texts[i]);
        if (!same)
            fail("the store differs from the model's texts: " + texts.join('|').toStdString());
    }

    FuzzInput& in;
    std::unique_ptr<UserControl1> list;
    QStringList texts;
};

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    // Lives for the whole run: every input gets a fresh list, never a fresh application.
    static QApplication app(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzInput in{data, size};
    ListRun run(in);
    for (int n = 0; n < 64 && !in.done(); ++n) {
        run.call(in.pick(13));
        run.check();
    }
    return 0;
}
