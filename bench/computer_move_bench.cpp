#include "engine/game.h"

#include <benchmark/benchmark.h>

namespace {

// A screen that does nothing: the selection alone is measured.
class SilentScreen : public GameScreen {
public:
    void RefreshPot(int16_t) override {}
    std::string PotTag(int16_t) const override { return {}; }
    void SetPotEnabled(int16_t, bool) override {}
    void SetMessCaption(const std::string&) override {}
    void SetMessEnabled(bool) override {}
    void ShowMess() override {}
    void SetUndoxEnabled(bool) override {}
    void SetCommandFrameEnabled(bool) override {}
    void SetStartBeadsEnabled(bool) override {}
    void SetHandLeft(float) override {}
    void SetHandTop(float) override {}
    void SetHandVisible(bool) override {}
    bool HandVisible() const override { return false; }
    float PotNameLeft(int16_t) const override { return 0; }
    float PotNameTop(int16_t) const override { return 0; }
    void SetTotalBCaption(int16_t, const std::string&) override {}
    void MovesList_Additem(std::string&, int16_t, int16_t&, std::string&, int32_t&) override {}
    void MovesList_Additem(std::string&, int16_t) override {}
    void MovesList_Clear() override {}
    void Score1_ScoreWin(bool) override {}
    void Score1_ScoreDraw(bool) override {}
    void DoEvents() override {}
};

// One pass of the selection: six try-outs, each with its threat scan and restore.
void BM_ComputerMoveSelection(benchmark::State& state)
{
    SilentScreen screen;
    Game game(screen);
    game.LayOutBoard(static_cast<int16_t>(state.range(0)));
    game.SavedBeads = game.Beads;
    for (auto _ : state) {
        int best = -1000000;
        for (int16_t p = 7; p <= 12; ++p) {
            const int score = game.EvaluatePot(p);
            if (score >= best)
                best = score;
        }
        benchmark::DoNotOptimize(best);
        benchmark::DoNotOptimize(game.Beads);
    }
    state.SetLabel("ns per pass");
}
BENCHMARK(BM_ComputerMoveSelection)->Arg(3)->Arg(99);

// A whole reply from the start position, narration to a silent screen included.
void BM_ComputerMoveWholeTurn(benchmark::State& state)
{
    SilentScreen screen;
    Game game(screen);
    for (auto _ : state) {
        game.LayOutBoard(static_cast<int16_t>(state.range(0)));
        game.LastEntryKey.clear();
        game.ComputerMove();
        benchmark::DoNotOptimize(game.Beads);
    }
}
BENCHMARK(BM_ComputerMoveWholeTurn)->Arg(3)->Arg(99);

} // namespace
