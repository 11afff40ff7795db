#include "engine/game.h"

#include <benchmark/benchmark.h>

namespace {

// A screen that does nothing: the selection alone is measured.
class SilentScreen : public GameScreen {
public:
    void DrawPot(int16_t, const std::string&) override {}
    void DrawPotHot(int16_t, const std::string&) override {}
    std::string potTag(int16_t) const override { return {}; }
    void setPotEnabled(int16_t, bool) override {}
    void setMessCaption(const std::string&) override {}
    void setMessEnabled(bool) override {}
    void showMess() override {}
    void setUndoxEnabled(bool) override {}
    void setCommandFrameEnabled(bool) override {}
    void setPausexCaption(const std::string&) override {}
    void setStartBeadsEnabled(bool) override {}
    int16_t startBeadsValue() const override { return 3; }
    void setStartBeadsValue(int16_t) override {}
    void setLabel2Caption(const std::string&) override {}
    void setHandLeft(float) override {}
    void setHandTop(float) override {}
    void setHandVisible(bool) override {}
    bool handVisible() const override { return false; }
    float potNameLeft(int16_t) const override { return 0; }
    float potNameTop(int16_t) const override { return 0; }
    void setTotalBCaption(int16_t, const std::string&) override {}
    void setUpMovesList() override {}
    void movesListAdditem(std::string&, int16_t, int16_t&, std::string&, int32_t&) override {}
    void movesListAdditem(std::string&, int16_t) override {}
    void movesListClear() override {}
    void scoreWin(bool) override {}
    void scoreDraw(bool) override {}
    void runPendingEvents() override {}
};

Board startPosition(int16_t count)
{
    Board beads;
    beads.fill(count);
    beads[HumanBank] = 0;
    beads[ComputerBank] = 0;
    return beads;
}

// One pass of the selection: six try-outs, each with its threat scan and restore.
void BM_ComputerMoveSelection(benchmark::State& state)
{
    SilentScreen screen;
    Game game(screen);
    GameState& position = game.stateForTests();
    position.Beads = startPosition(static_cast<int16_t>(state.range(0)));
    position.SavedBeads = position.Beads;
    for (auto _ : state) {
        int best = -1000000;
        for (int16_t p = 7; p <= 12; ++p) {
            const int score = game.evaluatePot(p);
            if (score >= best)
                best = score;
        }
        benchmark::DoNotOptimize(best);
        benchmark::DoNotOptimize(position.Beads);
    }
    state.SetLabel("ns per pass");
}
BENCHMARK(BM_ComputerMoveSelection)->Arg(3)->Arg(99);

// A whole reply from the start position, narration to a silent screen included.
void BM_ComputerMoveWholeTurn(benchmark::State& state)
{
    SilentScreen screen;
    Game game(screen);
    GameState& position = game.stateForTests();
    for (auto _ : state) {
        position.Beads = startPosition(static_cast<int16_t>(state.range(0)));
        position.LastEntryKey.clear();
        game.ComputerMove();
        benchmark::DoNotOptimize(position.Beads);
    }
}
BENCHMARK(BM_ComputerMoveWholeTurn)->Arg(3)->Arg(99);

} // namespace
