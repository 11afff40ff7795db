// The moves list driven by up to 64 member calls, checked after each against a plain
// model of its items: count, records, the chosen index and the head's text agree, and
// a call the list refuses is refused with the code the model expects, changing nothing.
#include "fuzzinput.h"
#include "listmodel.h"

#include "moveslist/likepattern.h"
#include "moveslist/listerror.h"
#include "moveslist/moveslistblock.h"
#include "moveslist/usercontrol1.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>

namespace {

constexpr int MaxCalls = 64;

// Short texts from a few characters, so that sorting meets equal records and finding
// meets matches; no TAB, which callers must keep out of a text.
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
    switch (in.pick(8)) {
    case 0:
        return {QStringLiteral("x%1").arg(n), std::nullopt};
    case 1:
        return {QStringLiteral(" %1 ").arg(n), n};
    default:
        return {n, n};
    }
}

class ListRun {
public:
    // Loaded as the window loads its MovesList, from the stored block.
    ListRun(FuzzInput& in, int32_t surfaceColour)
        : in(in), owned(UserControl1::fromBlock(movesListBlock())), list(*owned),
          model(list.font().family(), surfaceColour)
    {
        // Half the runs set the list up as the game's window does.
        if (in.pick(2) == 0) {
            setUpMovesLog(list);
        }
        list.resize(379, 19);
    }

    void play()
    {
        for (int n = 0; n < MaxCalls && !in.done(); ++n) {
            call(in.pick(22));
            check();
        }
    }

private:
    [[noreturn]] void fail(const std::string& what) const
    {
        std::fprintf(stderr, "%s\ncalls:\n%s", what.c_str(), calls.c_str());
        std::abort();
    }

    void log(const QString& call) { calls += call.toStdString() + '\n'; }

    // Runs a member and holds its refusal, if any, to the code expected.
    void expect(int expected, const std::function<void()>& member)
    {
        int actual = 0;
        try {
            member();
        } catch (const ListError& e) {
            actual = e.code();
        }
        if (actual != expected)
            fail("ListError " + std::to_string(actual) + " where the model expects " +
                 std::to_string(expected));
    }

    int count() const { return int(model.items.size()); }

    void call(int kind)
    {
        switch (kind) {
        case 0:
        case 1:
        case 2:
            return Additem();
        case 3: {
            const Arg it = Index(in, count(), true);
            log("RemoveItem " + it.value.toText());
            return expect(model.RemoveItem(it.number), [&] { list.RemoveItem(it.value); });
        }
        case 4:
            log("Clear");
            model.Clear();
            return expect(0, [&] { list.Clear(); });
        case 5: {
            const Arg it = Index(in, count(), true);
            const Arg v = Index(in, 200, false);
            log("SetItemData " + it.value.toText() + ", " + v.value.toText());
            return expect(model.SetItemData(it.number, v.number),
                          [&] { list.SetItemData(it.value, v.value); });
        }
        case 6:
        case 7:
            return update();
        case 8:
        case 9:
            return Find();
        case 10: {
            const Arg i = Index(in, count(), true);
            log("ShowItem " + i.value.toText());
            return expect(model.ShowItem(i.number), [&] { list.ShowItem(i.value); });
        }
        case 11:
            log("SortAscending");
            model.sort(true);
            return expect(0, [&] { list.SortAscending(); });
        case 12:
            log("SortDescending");
            model.sort(false);
            return expect(0, [&] { list.SortDescending(); });
        case 13: {
            log("ListIndex =");
            const int refused = list.designTime() ? ListErrorCode::NotAtDesignTime : 0;
            return expect(refused, [&] { list.ListIndex(in.pick(9) - 2); });
        }
        case 14: {
            log("ListCount =");
            const int refused =
                list.designTime() ? ListErrorCode::NotAtDesignTime : ListErrorCode::NotAtRunTime;
            return expect(refused, [&] { list.ListCount(in.pick(9)); });
        }
        case 15:
            log("design time toggled");
            return list.setDesignTime(!list.designTime());
        case 16: {
            const int style = in.pick(3);
            log(QStringLiteral("BorderStyle %1").arg(style));
            const int refused = style > 1 ? ListErrorCode::InvalidPropertyValue : 0;
            return expect(refused, [&] { list.BorderStyle(int16_t(style)); });
        }
        case 17: {
            const Arg h = Index(in, 300, false);
            log("RowHeight " + h.value.toText());
            const int refused = !h.number ? ListErrorCode::TypeMismatch
                                : std::nearbyint(*h.number) < 1
                                    ? ListErrorCode::InvalidPropertyValue
                                    : 0;
            return expect(refused, [&] { list.RowHeight(h.value); });
        }
        case 18: {
            const int mode = in.pick(2);
            log(QStringLiteral("Mode %1").arg(mode));
            model.Mode(mode);
            return expect(0, [&] { list.Mode(int16_t(mode)); });
        }
        case 19: {
            const int height = in.pick(16) * 250;
            log(QStringLiteral("DropDownHeight %1").arg(height));
            return expect(0, [&] { list.DropDownHeight(int16_t(height)); });
        }
        case 20:
            log("GridLines, ToolTip, colours");
            list.GridLines(in.pick(2) == 0);
            list.ToolTip(in.pick(2) == 0);
            list.GridColor(in.pick(256) << in.pick(24));
            list.BackColor(in.pick(2) == 0 ? int32_t(0x8000000F) : in.pick(256) << 8);
            return list.forecolor(in.pick(256));
        default:
            log("List =, text =, Enabled");
            list.List(in.pick(5), Text(in, 3));
            list.text(Text(in, 3));
            return list.Enabled(in.pick(2) == 0);
        }
    }

    void Additem()
    {
        QString s = Text(in, 6);
        const int itemx = in.pick(count() + 5) - 2;
        const bool allFive = in.pick(4) != 0;
        int16_t ipic = allFive ? int16_t(in.pick(6) - 1) : int16_t(-1);
        QString font =
            allFive && in.pick(4) == 0 ? QStringLiteral("Font%1").arg(in.pick(3)) : QString();
        int32_t colour = allFive ? (in.pick(3) == 0 ? -1 : in.pick(256)) : -1;
        log(QStringLiteral("Additem \"%1\", %2, %3, \"%4\", %5")
                .arg(s)
                .arg(itemx)
                .arg(ipic)
                .arg(font)
                .arg(colour));
        int modelPic = ipic;
        int32_t modelColour = colour;
        if (allFive)
            expect(0, [&] { list.Additem(s, int16_t(itemx), ipic, font, colour); });
        else
            expect(0, [&] { list.Additem(s, int16_t(itemx)); });
        model.Additem(s, itemx, modelPic, font, modelColour);
        if (allFive && (ipic != modelPic || colour != modelColour))
            fail("Additem settled another picture or colour");
    }

    void update()
    {
        const Arg it = Index(in, count(), false);
        const int column = in.pick(5);
        const QString text = column == 3 ? QStringLiteral("Font%1").arg(in.pick(3)) : Text(in, 6);
        Arg value = Index(in, 300, false);
        // A colour is a plain 32-bit number: a text that is none arrives as 0.
        const int32_t colour = value.number ? int32_t(*value.number) : 0;
        if (column == 4)
            value.number = colour;
        log(QStringLiteral("Update column %1 of %2: \"%3\" %4")
                .arg(column)
                .arg(it.value.toText(), text, value.value.toText()));
        expect(model.update(it.number, column, text, value.number), [&] {
            switch (column) {
            case 0:
                return list.UpdateText(it.value, text);
            case 1:
                return list.UpdateItemData(it.value, value.value);
            case 2:
                return list.UpdateIcon(it.value, value.value);
            case 3:
                return list.UpdateFont(it.value, text);
            default:
                return list.UpdateForeColor(it.value, colour);
            }
        });
    }

    void Find()
    {
        const int sdir = in.pick(3);
        const int it = in.pick(count() + 3) - 1;
        const QString pattern = Text(in, 5);
        const int casen = in.pick(3);
        log(QStringLiteral("Find %1, %2, \"%3\", %4").arg(sdir).arg(it).arg(pattern).arg(casen));
        int refused = 0;
        const std::optional<int> expected = model.Find(sdir, it, pattern, casen, refused);
        AnyValue found;
        expect(refused,
               [&] { found = list.Find(int16_t(sdir), int16_t(it), pattern, int16_t(casen)); });
        if (!refused && found != (expected ? AnyValue(*expected) : AnyValue()))
            fail("Find gives " + found.toText().toStdString() + ", the model " +
                 (expected ? std::to_string(*expected) : std::string("nothing")));
    }

    void check()
    {
        const ListState& st = list.state();
        if (list.ListCount() != AnyValue(count()) || st.ItemCount != count())
            fail("the count differs from the model's " + std::to_string(count()));
        if (!st.Items.empty() && !st.Items[0].isEmpty())
            fail("entry 0 holds a record");
        if (st.Items.size() > size_t(count()) + 2 ||
            (count() > 0 && st.Items.size() < size_t(count()) + 1))
            fail("the store has the wrong number of entries");
        for (int i = 0; i < count(); ++i) {
            ListModel::Item& item = model.items[size_t(i)];
            const QString& record = st.Items[size_t(i) + 1];
            // The drawn width is the painter's business; everything before it is ours.
            item.width = record.section(QLatin1Char('\t'), 5);
            if (record != ListModel::record(item))
                fail("item " + std::to_string(i) + " is \"" + record.toStdString() +
                     "\", the model has \"" + ListModel::record(item).toStdString() + '"');
            if (list.List(i) != AnyValue(item.text))
                fail("List(" + std::to_string(i) + ") differs from the record's text");
        }
        if (list.ListIndex() != AnyValue(model.chosen.value_or(0)))
            fail("ListIndex " + list.ListIndex().toText().toStdString() + ", the model " +
                 std::to_string(model.chosen.value_or(0)));
        if (list.text() != AnyValue(model.shownText))
            fail("the head shows \"" + list.text().toText().toStdString() + "\", the model \"" +
                 model.shownText.toStdString() + '"');
    }

    FuzzInput& in;
    std::unique_ptr<UserControl1> owned;
    UserControl1& list;
    ListModel model;
    std::string calls;
};

int32_t SurfaceColour = 0;

// The colour a first item takes when given none: asked of a list once, since the
// model has no other way to know the surface's fore colour.
int32_t surfaceColourOfANewList()
{
    const std::unique_ptr<UserControl1> list(UserControl1::fromBlock(movesListBlock()));
    QString s = QStringLiteral("a");
    QString font;
    int16_t ipic = -1;
    int32_t colour = -1;
    list->Additem(s, 0, ipic, font, colour);
    return colour;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    // Lives for the whole run: every input gets a fresh list, never a fresh application.
    static QApplication app(*argc, *argv);
    SurfaceColour = surfaceColourOfANewList();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzInput in(data, size);
    ListRun(in, SurfaceColour).play();
    return 0;
}
