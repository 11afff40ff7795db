// The engine driven by any sequence of what a user can do in the window, nested inside
// the pause of a computer's move too, with the bead invariants checked after each step
// and every played move checked against the plain reading of the rules.
#include "fuzzinput.h"
#include "recording_screen.h"
#include "reference_rules.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <numeric>
#include <optional>
#include <string>
#include <tuple>

namespace {

// Enough for a few whole games; longer inputs only repeat themselves.
constexpr int MaxActions = 300;

class GameRun {
public:
    explicit GameRun(FuzzInput& in) : in(in)
    {
        screen.onPendingEvents = [this] { whilePaused(); };
        screen.onStartBeadsChange = [this] { game.StartBeads_Change(); };
        game.Form_Load();
        settle();
    }

    void play()
    {
        for (int n = 0; n < MaxActions && !in.done(); ++n) {
            const Board before = state.Beads;
            act(in.pick(12));
            check(before);
        }
    }

private:
    [[noreturn]] void fail(const std::string& what) const
    {
        std::fprintf(stderr, "%s after action %d: board %s, start %d\n", what.c_str(), actions,
                     formatBoard(state.Beads).c_str(), state.StartBeadCount);
        std::abort();
    }

    // The window lets a pot event through only from an enabled pot; the banks never are.
    bool takesEvents(int16_t s) const
    {
        if (isBank(s))
            return false;
        return isHumanPot(s) ? screen.potEnabled[s] : !state.GameFinished;
    }

    bool idle() const { return !game.busy() && !state.GameFinished && !state.PreviewActive; }

    void act(int kind)
    {
        ++actions;
        relaid = false;
        expectPlay = -1;
        expectForcedTurn = false;
        switch (kind) {
        case 0: {
            const auto s = static_cast<int16_t>(in.pick(SlotCount));
            if (!takesEvents(s))
                return;
            if (idle() && isHumanPot(s) && state.Beads[s] > 0)
                expectPlay = s;
            return game.Pots_MouseUp(s, 1, 0, 0, 0);
        }
        case 1: {
            const auto s = static_cast<int16_t>(in.pick(SlotCount));
            if (!takesEvents(s))
                return;
            game.Pots_MouseDown(s, 2, 0, 0, 0);
            return game.Pots_MouseUp(s, 2, 0, 0, 0);
        }
        case 2: {
            // Slots the window does not have: the engine turns them away itself.
            const int16_t bad[] = {-1, 14, 15, -32768, 32767, 100};
            return game.Pots_MouseUp(bad[in.pick(6)], static_cast<int16_t>(in.pick(4)), 0, 0, 0);
        }
        case 3:
            if (!screen.undoxEnabled || !screen.commandFrameEnabled)
                return;
            relaid = !game.busy() && !state.GameFinished;
            return game.Undox_Click();
        case 4:
            expectForcedTurn = idle() && screen.commandFrameEnabled;
            return game.TakeComp_Click();
        case 5:
            if (!state.HintActive)
                hintFrom = state.Beads;
            return game.GiveHint_MouseDown(1, 0, 0, 0);
        case 6:
            return game.GiveHint_MouseUp(1, 0, 0, 0);
        case 7:
            if (screen.commandFrameEnabled)
                game.Pausex_Click();
            return;
        case 8:
            return game.Form_KeyDown(in.word(), static_cast<int16_t>(in.pick(8)));
        case 9:
            if (idle() && isHumanPot(state.KeyboardPot) && state.Beads[state.KeyboardPot] > 0)
                expectPlay = state.KeyboardPot;
            return game.Form_KeyDown(KeyEnter, 0);
        case 10:
            return moveSlider(static_cast<int16_t>(2 + in.pick(98)));
        default:
            if (!screen.messEnabled)
                return;
            relaid = state.GameFinished;
            return game.Mess_Click();
        }
    }

    // The slider holds still under a running move; the game puts it back.
    void moveSlider(int16_t value)
    {
        if (!screen.startBeadsEnabled)
            return;
        if (!game.busy() && value != screen.startBeads) {
            relaid = true;
            // Nothing but a pot event locks the slider, so a game that forced turns
            // ended can take a fresh board while it waits for its restart.
            freshBoardAfterEnd = state.GameFinished;
        }
        screen.moveSlider(value);
    }

    // Each turn of the pause's event loop runs one more action; only the click on the
    // message bar lets the computer go on. An event queued behind that click runs in
    // the same turn, still inside the computer's move.
    void whilePaused()
    {
        if (in.done() || paused || in.pick(4) == 0) {
            game.Mess_Click();
            if (!in.done() && !paused && in.pick(2) == 0)
                actInsideTheMove();
            return;
        }
        actInsideTheMove();
    }

    // Nothing run inside the computer's move may touch the board.
    void actInsideTheMove()
    {
        // The action inside must not disturb what the move around it expects.
        const auto outer = std::tuple(expectPlay, expectForcedTurn, relaid, hintFrom);
        paused = true;
        const Board before = state.Beads;
        act(in.pick(12));
        paused = false;
        std::tie(expectPlay, expectForcedTurn, relaid, hintFrom) = outer;
        // No bead count here: a capture is told between crediting the bank and clearing
        // the two pots, so a pause can hold a board with the captured beads counted twice.
        if (state.Beads != before)
            fail("an event inside the computer's move changed the board");
    }

    void checkBeads() const
    {
        for (const int16_t count : state.Beads)
            if (count < 0)
                fail("a negative count");
        if (std::accumulate(state.Beads.begin(), state.Beads.end(), 0) != 12 * state.StartBeadCount)
            fail("beads came or went");
    }

    static bool rowEmpty(const Board& b, int first)
    {
        for (int s = first; s < first + 6; ++s)
            if (b[s] > 0)
                return false;
        return true;
    }

    static ref::Ring toRing(const Board& b)
    {
        ref::Ring r{};
        std::copy(b.begin(), b.end(), r.begin());
        return r;
    }

    void checkAgainstRules(const Board& before) const
    {
        ref::Ring expected = toRing(before);
        if (expectPlay >= 0) {
            ref::playerMove(expected, expectPlay);
        } else if (expectForcedTurn) {
            ref::forcedTurn(expected);
        } else {
            return;
        }
        if (expected != toRing(state.Beads))
            fail("the move does not follow the rules from " + formatBoard(before));
    }

    void check(const Board& before)
    {
        checkBeads();
        if (state.WaitingForClick != 0)
            fail("a pause still waits after its handler returned");
        if (state.HintActive) {
            if (!state.BoardMirrored)
                fail("a held hint without the turned board");
            return;
        }
        if (state.BoardMirrored)
            fail("the board stays turned");
        if (hintFrom && state.Beads != *hintFrom)
            fail("the hint's release did not put the board back");
        hintFrom.reset();
        checkAgainstRules(before);
        checkBanks();
        const bool over = rowEmpty(state.Beads, 0) || rowEmpty(state.Beads, 7);
        if (!state.GameFinished)
            freshBoardAfterEnd = false;
        if (state.GameFinished != over && !freshBoardAfterEnd)
            fail(state.GameFinished ? "a game over with beads on both rows"
                                    : "a row is empty and the game goes on");
        if (screen.messEnabled != state.GameFinished)
            fail("the message bar takes clicks outside a pause and a game's end");
        if (state.RunningTotals[1] < 0 || state.RunningTotals[2] < 0)
            fail("a negative running total");
    }

    // Banks only grow; undo, a restart and the slider lay down a board of their own.
    void checkBanks()
    {
        if (!relaid && (state.Beads[HumanBank] < banks[0] || state.Beads[ComputerBank] < banks[1]))
            fail("a bank lost beads");
        relaid = false;
        banks = {state.Beads[HumanBank], state.Beads[ComputerBank]};
    }

    void settle() { banks = {state.Beads[HumanBank], state.Beads[ComputerBank]}; }

    FuzzInput& in;
    RecordingScreen screen;
    Game game{screen};
    GameState& state = game.stateForTests();
    int actions = 0;
    bool paused = false;
    int expectPlay = -1;
    bool expectForcedTurn = false;
    bool relaid = false;
    bool freshBoardAfterEnd = false;
    std::optional<Board> hintFrom;
    std::array<int16_t, 2> banks{};
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzInput in(data, size);
    GameRun(in).play();
    return 0;
}
