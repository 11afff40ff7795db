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

// An index or number as a caller passes it: a number, its text between a blank and a TAB,
// or a text that is no number (a letter before it, a NUL behind it); now and then NaN, an
// infinity or a number past 16 bits. A strict reading refuses all but finite numbers (13).
struct Arg {
    AnyValue value;
    std::optional<double> number;
    bool strict() const { return number && std::isfinite(*number); }
};

Arg Index(FuzzInput& in, int count)
{
    static const double edges[] = {NAN, INFINITY, -INFINITY, 1e300, -32768, 32767};
    const int k = in.pick(count + 10) - 2;
    const double n = k < count + 2 ? k + (in.pick(4) == 0 ? 0.5 : 0) : edges[k - count - 2];
    const int form = in.pick(8);
    if (form < 2)
        return {form ? QStringLiteral("x%1").arg(n) : QStringLiteral("%1").arg(n) + QChar(0), {}};
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

    // The item a 0-based index names, -1 for none: its range is tested on the index plus
    // one as given, and only then is it brought whole, halves to the even neighbour.
    int entry(double it) const
    {
        return it + 1 >= 1 && it + 1 <= count() ? int(std::nearbyint(it + 1)) - 1 : -1;
    }

    // Runs a member and gives its code (0: none): a refusal changes no record and carries
    // one of the codes allowed; with none listed, any.
    template <typename Member> int expect(std::initializer_list<int> allowed, Member member)
    {
        const auto before = list->state().Items;
        int code = 0;
        try {
            member();
        } catch (const ListError& e) {
            code = e.code();
            // A refused Additem may leave a spare entry behind the last.
            const auto& after = list->state().Items;
            if (after.size() < before.size() || !std::equal(before.begin(), before.end(), after.begin()))
                fail("a refused call changed the store");
        }
        if (allowed.size() && std::find(allowed.begin(), allowed.end(), code) == allowed.end())
            fail("ListError " + std::to_string(code) + ", not " + std::to_string(*allowed.begin()));
        return code;
    }

    // What was stored as an item's data reads back as the same number.
    void dataIs(int n, const Arg& v)
    {
        if (n >= 0 && v.strict() && list->GetItemData(n) != AnyValue(*v.number))
            fail("GetItemData does not give back the number stored");
    }

    void call(int kind)
    {
        if (kind <= 2)
            return Additem();
        if (kind == 4) {
            texts.clear();
            return void(expect({0}, [&] { list->Clear(); }));
        }
        // Whole records compare as binary text, the text first and a TAB behind it.
        if (kind == 9 || kind == 10) {
            std::sort(texts.begin(), texts.end(), [&](const QString& a, const QString& b) {
                return kind == 9 ? a + u'\t' < b + u'\t' : b + u'\t' < a + u'\t';
            });
            return void(expect({0}, [&] { kind == 9 ? list->SortAscending() : list->SortDescending(); }));
        }
        // The plain list and the drop-down keep their items differently; a row height
        // below 1 is refused.
        if (kind == 11 || kind == 12)
            return void(expect({}, [&] { kind == 11 ? list->Mode(in.pick(2)) : list->RowHeight(in.pick(9) - 2); }));
        const Arg it = Index(in, count());
        const int refused = it.strict() ? 0 : TypeMismatch;
        const int n = it.strict() ? entry(*it.number) : -1;
        if (kind == 3) {
            expect({refused}, [&] { list->RemoveItem(it.value); });
            if (n >= 0)
                texts.removeAt(n);
        } else if (kind == 8) {
            // ShowItem counts from 1. The pick is made before the scroll, which may not
            // reach that far.
            const bool named = it.strict() && *it.number >= 1 && *it.number <= count();
            expect({refused, named ? InvalidPropertyValue : refused}, [&] { list->ShowItem(it.value); });
        } else if (kind == 13) {
            // Writing List stores the value only, whatever the index.
            expect({refused}, [&] {
                list->List(it.value, it.value);
                if (list->List(it.value) != AnyValue(n >= 0 ? texts[n] : QString()) ||
                    list->GetItemData(it.value).isEmpty() != (n < 0))
                    fail("List or GetItemData read another item than the one named");
            });
        } else if (kind == 14) {
            // -1 names the item added last; the value is read only for an item.
            const Arg v = Index(in, 300);
            const int at = it.strict() && *it.number == -1 ? entry(lastAdded) : n;
            if (!expect({!it.strict() || (at >= 0 && !v.strict()) ? TypeMismatch : 0},
                        [&] { list->SetItemData(it.value, v.value); }))
                dataIs(at, v);
        } else {
            update(it);
        }
    }

    // From 1 an item goes to that index, and one past the last is not added; -1 puts
    // it first; anything else last. With no picture given it takes the last item's,
    // which fails once a picture number past 16 bits was stored.
    void Additem()
    {
        QString s = Text(in, 6);
        const int itemx = in.pick(count() + 5) - 2;
        auto ipic = int16_t(in.pick(6) - 1);
        QString font = in.pick(4) == 0 ? QStringLiteral("Font%1").arg(in.pick(3)) : QString();
        int32_t colour = in.pick(3) == 0 ? -1 : in.pick(256);
        const int at = itemx > 0 ? itemx : itemx == -1 ? 0 : count();
        if (!expect({0, widePicture && ipic <= 0 ? Overflow : 0},
                    [&] { list->Additem(s, int16_t(itemx), ipic, font, colour); }) &&
            (itemx < count() || itemx <= 0)) {
            texts.insert(at, s);
            lastAdded = at;
        }
    }

    // One column replaced: text, data, picture, font, colour. The index plus one is
    // brought to 16 bits (6 past them) before its range is tested; the data and the
    // picture refuse a value that is no number, but only for an item.
    void update(const Arg& it)
    {
        const int column = in.pick(5);
        const QString text = column == 3 ? QStringLiteral("Font%1").arg(in.pick(3)) : Text(in, 6);
        const Arg v = Index(in, 300);
        const int16_t colour = in.word();
        const std::function<void()> columns[] = {
            [&] { list->UpdateText(it.value, text); },
            [&] { list->UpdateItemData(it.value, v.value); },
            [&] { list->UpdateIcon(it.value, v.value); }, [&] { list->UpdateFont(it.value, text); },
            [&] { list->UpdateForeColor(it.value, colour); }};
        const double r = it.strict() ? std::nearbyint(*it.number + 1) : 0;
        const int n = r >= 1 && r <= count() ? int(r) - 1 : -1;
        const int code = !it.strict()               ? TypeMismatch
                         : r < -32768 || r > 32767 ? Overflow
                         : n >= 0 && (column == 1 || column == 2) && !v.strict() ? TypeMismatch
                                                                                  : 0;
        if (expect({code}, columns[column]) || n < 0)
            return;
        if (column == 0)
            texts[n] = text;
        dataIs(column == 1 ? n : -1, v);
        widePicture = widePicture || (column == 2 && (*v.number < -32768 || *v.number > 32767));
    }

    // Entry 0 of the store holds no item; each record is six columns, the text first.
    void check()
    {
        const auto& items = list->state().Items;
        bool same = list->ListCount() == AnyValue(count()) && list->state().ItemCount == count() &&
                    items.size() >= size_t(count() + (count() > 0)) &&
                    (items.empty() || items[0].isEmpty());
        for (int i = 0; same && i < count(); ++i)
            same = items[size_t(i) + 1].count(QLatin1Char('\t')) == 5 &&
                   items[size_t(i) + 1].startsWith(texts[i] + QLatin1Char('\t')) &&
                   list->List(i) == AnyValue(texts[i]);
        widePicture = widePicture && count() > 0;
        if (!same)
            fail("the store differs from the model's texts: " + texts.join('|').toStdString());
    }

    FuzzInput& in;
    std::unique_ptr<UserControl1> list;
    QStringList texts;
    double lastAdded = 0;
    bool widePicture = false;
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
        run.call(in.pick(15));
        run.check();
    }
    return 0;
}
