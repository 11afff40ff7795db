// Speed of a new log line on top with its repaint, against a stock QListWidget doing
// the same work (insert at row 0, repaint of its viewport), at several list sizes.
//
// A QListWidget lays its items out later, from the event loop: a repaint right after
// the insert paints no item at all. The second anchor lays them out first, which is
// what the view does before the user sees the new line.

#include "moveslist/usercontrol1.h"
#include "window/moveslistblock.h"

#include <QApplication>
#include <QListWidget>
#include <QTest>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

QString Line(int i)
{
    return QStringLiteral("%1 HUMAN  pot C: 4 beads, last in the bank").arg(i);
}

std::unique_ptr<UserControl1> filledMovesList(int count)
{
    std::unique_ptr<UserControl1> list(UserControl1::fromBlock(movesListBlock()));
    setUpMovesLog(*list);
    for (int i = 0; i < count; ++i) {
        QString s = Line(i);
        list->Additem(s);
    }
    list->show();
    // Until the window is on the screen a repaint paints nothing.
    if (!QTest::qWaitForWindowExposed(list.get()))
        return nullptr;
    return list;
}

// The list is kept at its size: the line at the bottom goes again outside the timing.
void BM_MovesListAdditemOnTop(benchmark::State& state)
{
    const auto count = static_cast<int>(state.range(0));
    auto list = filledMovesList(count);
    if (!list) {
        state.SkipWithError("the list never showed");
        return;
    }
    // The rows' canvas, as the viewport is the QListWidget's.
    QWidget* canvas = list->findChild<QWidget*>(QStringLiteral("Picture1"));
    int i = 0;
    for (auto _ : state) {
        QString s = Line(++i);
        int16_t ipic = -1;
        QString font;
        int32_t colour = 0x00008000;
        list->Additem(s, -1, ipic, font, colour);
        canvas->repaint();
        state.PauseTiming();
        list->RemoveItem(count);
        state.ResumeTiming();
    }
}

void insertOnTop(benchmark::State& state, bool layOutFirst)
{
    const auto count = static_cast<int>(state.range(0));
    QListWidget list;
    list.resize(379, 250);
    for (int i = 0; i < count; ++i)
        list.addItem(Line(i));
    list.show();
    if (!QTest::qWaitForWindowExposed(&list)) {
        state.SkipWithError("the list never showed");
        return;
    }
    int i = 0;
    for (auto _ : state) {
        list.insertItem(0, Line(++i));
        if (layOutFirst)
            list.doItemsLayout();
        list.viewport()->repaint();
        state.PauseTiming();
        delete list.takeItem(count);
        state.ResumeTiming();
    }
}

void BM_QListWidgetInsertOnTop(benchmark::State& state)
{
    insertOnTop(state, false);
}

void BM_QListWidgetInsertOnTopLaidOut(benchmark::State& state)
{
    insertOnTop(state, true);
}

void sizes(benchmark::internal::Benchmark* bench)
{
    for (const int count : {100, 1000, 10000, 32767})
        bench->Arg(count);
    bench->Unit(benchmark::kMicrosecond);
}

BENCHMARK(BM_MovesListAdditemOnTop)->Apply(sizes);
BENCHMARK(BM_QListWidgetInsertOnTop)->Apply(sizes);
BENCHMARK(BM_QListWidgetInsertOnTopLaidOut)->Apply(sizes);

} // namespace
