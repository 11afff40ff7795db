// The engine driven by any sequence of what a user can do in the window, also in batches
// inside the pause of a computer's move, before and after the click that releases it.
// After each step the board is the one the rules give, no bead came or went, and the
// faces, the bar, the slider and the game's end agree with it.
#include "fuzzinput.h"
#include "recording_screen.h"
#include "reference_rules.h"

#include <algorithm>
#include <numeric>
#include <optional>

namespace {

// Enough for a few whole games; longer inputs only repeat themselves.
constexpr int MaxActions = 300;

struct GameRun {
    explicit GameRun(FuzzInput& input) : in(input)
    {
        screen.onPendingEvents = [this] { whilePaused(); };
        screen.onStartBeadsChange = [this] { game.StartBeads_Change(); };
        game.Form_Load();
    }

    bool canMove() const { return !game.busy() && !state.GameFinished; }

    // The board the action must leave; none after undo, which lays down its own.
    std::optional<ref::Ring> act(int kind)
    {
        ref::Ring r{};
        std::copy(state.Beads.begin(), state.Beads.end(), r.begin());
        // A pot with beads is played, with the computer's reply, unless something runs.
        const auto playing = [&](int s) {
            if (canMove() && isHumanPot(s) && state.Beads[s] > 0)
                ref::playerMove(r, s);
        };
        const auto fresh = [&](int16_t count) {
            r.fill(count);
            r[HumanBank] = r[ComputerBank] = 0;
        };
        // Kinds 0 and 2 are left clicks, 1 a right one. The window lets a pot event through
        // only from an enabled pot; the right button's preview only shows the sowing.
        // Undo, the forced turn and the hint come also while their frame is shut: the
        // game must turn them away itself during a computer's move.
        const auto s = static_cast<int16_t>(kind < 3 ? in.pick(SlotCount) : 0);
        if (kind < 3 && (isBank(s) || (isHumanPot(s) ? !screen.potEnabled[s] : state.GameFinished)))
            return r;
        if (kind == 1) {
            game.Pots_MouseDown(s, 2, 0, 0, 0);
            game.Pots_MouseUp(s, 2, 0, 0, 0);
        } else if (kind < 3) {
            playing(s);
            game.Pots_MouseUp(s, 1, 0, 0, 0);
        } else if (kind == 3 && screen.undoxEnabled) {
            const bool undone = canMove();
            game.Undox_Click();
            if (undone)
                return std::nullopt;
        } else if (kind == 4) {
            if (canMove())
                ref::forcedTurn(r);
            game.TakeComp_Click();
        } else if (kind == 5) {
            // The held hint shows the computer's turn played for the human, board turned.
            if (canMove()) {
                hintFrom = r;
                r = ref::turned(r);
                ref::computerTurn(r);
            }
            game.GiveHint_MouseDown(1, 0, 0, 0);
        } else if (kind == 6) {
            if (state.HintActive)
                r = hintFrom;
            game.GiveHint_MouseUp(1, 0, 0, 0);
        } else if (kind == 7 && screen.commandFrameEnabled) {
            game.Pausex_Click();
        } else if (kind == 8 || kind == 9) {
            const int16_t key = kind == 8 ? in.word() : KeyEnter;
            if (key == KeyEnter)
                playing(state.KeyboardPot);
            game.Form_KeyDown(key, static_cast<int16_t>(kind == 8 ? in.pick(8) : 0));
        } else if (kind == 10 && screen.startBeadsEnabled) {
            // The slider holds still under a running move. Only a pot event locks it, so
            // a game that forced turns to its end can take a fresh board before its restart.
            const auto value = static_cast<int16_t>(2 + in.pick(98));
            if (!game.busy() && value != screen.startBeads) {
                fresh(value);
                freshAfterEnd = state.GameFinished;
            }
            screen.moveSlider(value);
        } else if (kind == 11 && screen.messEnabled) {
            if (state.GameFinished)
                fresh(state.StartBeadCount);
            game.Mess_Click();
        }
        return r;
    }

    // Each turn of the pause's event loop delivers a batch of what queued up meanwhile.
    // The click on the message bar, the likeliest of them, lets the computer go on, and
    // what is queued behind it runs at once, still inside the computer's move. No bead
    // count in here: a capture is told between crediting the bank and clearing the pots.
    void whilePaused()
    {
        const Board before = state.Beads;
        for (int n = nested ? 0 : 1 + in.pick(4); n > 0 && !in.done(); --n) {
            nested = true;
            act(std::min(in.pick(16), 11));
            nested = false;
        }
        if (in.done() || nested)
            game.Mess_Click();
        if (state.Beads != before)
            fail("an event inside the computer's move changed the board");
    }

    void check(const std::optional<ref::Ring>& expected)
    {
        const Board& now = state.Beads;
        if (expected && !std::equal(now.begin(), now.end(), expected->begin()))
            fail("a board the rules do not give");
        if (std::any_of(now.begin(), now.end(), [](int n) { return n < 0; }) ||
            std::accumulate(now.begin(), now.end(), 0) != 12 * state.StartBeadCount)
            fail("beads came or went");
        if (state.WaitingForClick != 0 || state.HintActive != state.BoardMirrored ||
            screen.startBeads != state.StartBeadCount)
            fail("a pause waits after its handler returned, the board is turned wrongly, "
                 "or the slider shows another count than the game's");
        if (state.HintActive)
            return;
        for (int s = 0; s < SlotCount; ++s)
            if (std::atoi(screen.tags[s].c_str()) != now[s])
                fail("a face differs from the board");
        const bool over = std::count(&now[FirstHumanPot], &now[HumanBank], 0) == PotsPerRow ||
                          std::count(&now[FirstComputerPot], &now[ComputerBank], 0) == PotsPerRow;
        freshAfterEnd = freshAfterEnd && state.GameFinished;
        if ((state.GameFinished != over && !freshAfterEnd) ||
            screen.messEnabled != state.GameFinished)
            fail("the game's end, the rows and the message bar disagree");
    }

    FuzzInput& in;
    RecordingScreen screen;
    Game game{screen};
    GameState& state = game.stateForTests();
    ref::Ring hintFrom{};
    bool nested = false;
    bool freshAfterEnd = false;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzInput in{data, size};
    GameRun run(in);
    for (int n = 0; n < MaxActions && !in.done(); ++n)
        run.check(run.act(in.pick(12)));
    return 0;
}
