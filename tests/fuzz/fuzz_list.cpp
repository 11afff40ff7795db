// The moves list driven by up to 64 member calls, indices and numbers among them NaN,
// infinite or past 16 bits. After each, its count and texts agree with a plain model of
// the store, and a refused call gives the code expected and leaves every record as it was.
#include "fuzzinput.h"

#include "moveslist/listerror.h"
#include "moveslist/usercontrol1.h"
#include "window/moveslistblock.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>

namespace {

using namespace ListErrorCode;

// Short texts from a few characters, so that sorting meets equal texts and texts that
// differ only in case; no TAB, which callers must keep out of a text, but a NUL, which
// sorts below the TAB that ends the text in its record.
QString Text(FuzzInput& in, int most)
{
    static const QString letters = QString::fromUtf8("aAbB1 *?[]#-!\u0131\u00DF") + QChar(0);
    QString text;
    for (int n = in.pick(most + 1); n > 0; --n)
        text += letters[in.pick(int(letters.size()))];
    return text;
}

// An index or number as a caller passes it, now and then NaN, an infinity or past 16 bits,
// or as a number text padded with a blank and a TAB, or a text that is no number (a letter
// before, a NUL behind); and what a strict reading finds, which must be finite or is 13.
struct Arg {
    AnyValue value;
    double number;
    bool ok() const { return std::isfinite(number); }
};

Arg Index(FuzzInput& in, int count)
{
    static const double edges[] = {NAN, INFINITY, -INFINITY, 1e300, -32768, 32767};
    const int k = in.pick(count + 10) - 2;
    const double n = k < count + 2 ? k + (in.pick(4) == 0 ? 0.5 : 0) : edges[k - count - 2];
    const int form = in.pick(8);
    if (form < 2)
        return {form ? QStringLiteral("x%1").arg(n) : QStringLiteral("%1").arg(n) + QChar(0), NAN};
    return {form == 2 ? AnyValue(QStringLiteral(" %1\t").arg(n)) : AnyValue(n), n};
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

    // Runs a member, its code (0: none) left in `code`: a refusal changes no record and
    // carries one of the codes allowed; with none listed, any.
    template <typename Member> void expect(std::initializer_list<int> allowed, Member member)
    {
        const auto before = list->state().Items;
        code = 0;
        try {
            member();
        } catch (const ListError& e) {
            code = e.code();
            // A refused Additem may leave a spare entry behind the last.
            const auto& after = list->state().Items;
            if (after.size() < before.size() ||
                !std::equal(before.begin(), before.end(), after.begin()))
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
        // Whole records compare as binary text, the text first and a TAB behind it.
        if (kind == 9 || kind == 10) {
            std::sort(texts.begin(), texts.end(), [&](const QString& a, const QString& b) {
                return kind == 9 ? a + u'\t' < b + u'\t' : b + u'\t' < a + u'\t';
            });
            return expect({0}, [&] { kind == 9 ? list->SortAscending() : list->SortDescending(); });
        }
        // The plain list and the drop-down keep their items differently; a row height
        // below 1 is refused.
        if (kind == 11 || kind == 12)
            return expect(
                {}, [&] { kind == 11 ? list->Mode(in.pick(2)) : list->RowHeight(in.pick(9) - 2); });
        const Arg it = Index(in, count());
        const int refused = it.ok() ? 0 : TypeMismatch;
        // The item it names, -1 for none: the range is tested on the index as given, before
        // it is brought whole, halves to the even neighbour.
        const double at = it.number + 1;
        const int n = at >= 1 && at <= count() ? int(std::nearbyint(at)) - 1 : -1;
        if (kind == 3) {
            expect({refused}, [&] { list->RemoveItem(it.value); });
            if (n >= 0)
                texts.removeAt(n);
        } else if (kind == 8) {
            // Counted from 1; the pick comes before a scroll that may not reach that far.
            const bool named = it.ok() && it.number >= 1 && it.number <= count();
            expect({refused, named ? InvalidPropertyValue : refused},
                   [&] { list->ShowItem(it.value); });
        } else if (kind == 13) {
            // SetItemData: -1 names the item added last; the value is read only for an item.
            const Arg v = Index(in, 30);
            const int set = it.number != -1 ? n : lastAdded < count() ? lastAdded : -1;
            expect({!it.ok() || (set >= 0 && !v.ok()) ? TypeMismatch : 0}, [&] {
                list->SetItemData(it.value, v.value);
                list->List(it.value, v.value);
                if (list->List(it.value) != AnyValue(n >= 0 ? texts[n] : QString()) ||
                    list->GetItemData(it.value).isEmpty() != (n < 0) ||
                    (set >= 0 && list->GetItemData(set) != AnyValue(v.number)))
                    fail("List or GetItemData read another item or number than was stored");
            });
        } else {
            update(it);
        }
    }

    // From 1 an item goes to that index, and one past the last is not added; -1 puts
    // it first; anything else last. Without a picture it takes the last item's, which
    // fails (6) once a picture number past 16 bits is stored.
    void Additem()
    {
        QString s = Text(in, 6);
        const int itemx = in.pick(count() + 5) - 2;
        auto ipic = int16_t(in.pick(6) - 1);
        QString font = in.pick(4) == 0 ? QStringLiteral("Font%1").arg(in.pick(3)) : QString();
        int32_t colour = in.pick(3) == 0 ? -1 : in.pick(256);
        expect({0, widePicture && ipic <= 0 ? Overflow : 0},
               [&] { list->Additem(s, int16_t(itemx), ipic, font, colour); });
        if (code == 0 && (itemx < count() || itemx <= 0)) {
            lastAdded = itemx > 0 ? itemx : itemx == -1 ? 0 : count();
            texts.insert(lastAdded, s);
        }
    }

    // One column replaced: text, data, picture, font, colour. The index plus one is
    // brought whole in 16 bits (6 past them) before its range is tested; the data and
    // the picture refuse a value that is no number, but only for an item.
    void update(const Arg& it)
    {
        const int column = in.pick(5);
        const QString text = column == 3 ? QStringLiteral("Font%1").arg(in.pick(3)) : Text(in, 6);
        const Arg v = Index(in, 30);
        const std::function<void()> columns[] = {
            [&] { list->UpdateText(it.value, text); },
            [&] { list->UpdateItemData(it.value, v.value); },
            [&] { list->UpdateIcon(it.value, v.value); }, [&] { list->UpdateFont(it.value, text); },
            [&] { list->UpdateForeColor(it.value, in.word()); }};
        const double r = std::nearbyint(it.number + 1);
        const int n = r >= 1 && r <= count() ? int(r) - 1 : -1;
        const bool mismatch = !it.ok() || (n >= 0 && (column == 1 || column == 2) && !v.ok());
        expect({mismatch ? TypeMismatch : r < -32768 || r > 32767 ? Overflow : 0}, columns[column]);
        if (code || n < 0)
            return;
        if (column == 0)
            texts[n] = text;
        widePicture = widePicture || (column == 2 && !(v.number >= -32768 && v.number <= 32767));
    }

    // Entry 0 of the store holds no item; each record is six columns, the text first.
    void check() const
    {
        const auto& items = list->state().Items;
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
    int code = 0;
    int lastAdded = 0;
    bool widePicture = false;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzInput in{data, size};
    ListRun run(in);
    for (int n = 0; n < 64 && !in.done(); ++n) {
        run.call(in.pick(15));
        run.check();
    }
    return 0;
}
