#include "window/form1.h"

#include <QApplication>
#include <QPixmap>

#include <benchmark/benchmark.h>

namespace {

// From constructing the window to its first painted frame.
void BM_FirstFrame(benchmark::State& state)
{
    for (auto _ : state) {
        Form1 form;
        form.show();
        const QPixmap frame = form.grab();
        benchmark::DoNotOptimize(frame.cacheKey());
        state.PauseTiming();
        form.hide();
        state.ResumeTiming();
    }
    state.SetLabel("construct, Form_Load, show, paint");
}
BENCHMARK(BM_FirstFrame)->Unit(benchmark::kMillisecond);

// One human move with the computer's reply, the board shown and the log repainted.
void BM_HumanMoveWithReply(benchmark::State& state)
{
    Form1 form;
    form.show();
    QApplication::processEvents();
    Game& game = form.game();
    GameState& position = game.stateForTests();
    for (auto _ : state) {
        state.PauseTiming();
        position.Beads = {3, 3, 3, 3, 3, 3, 0, 3, 3, 3, 3, 3, 3, 0};
        game.UpdateBoard();
        position.LastEntryKey.clear();
        QApplication::processEvents();
        state.ResumeTiming();
        game.Pots_MouseUp(0, 1, 0, 0, 0);
        QApplication::processEvents();
    }
    state.SetLabel("move, reply, UpdateBoard, repaint");
}
BENCHMARK(BM_HumanMoveWithReply)->Unit(benchmark::kMicrosecond);

} // namespace
