#include "game_fixture.h"
#include "reference_rules.h"

#include <numeric>
#include <random>

// Whole games with random picks, undos, forced turns and hints, checked after every
// action against the plain reading of the rules and the board's invariants.
TEST(RandomGames, FollowThePlainReadingOfTheRules)
{
    std::mt19937 random(1234);
    RecordingScreen screen;
    Game game(screen);
    GameState& state = game.stateForTests();
    screen.onPendingEvents = [&] { game.Mess_Click(); };
    screen.onStartBeadsChange = [&] { game.StartBeads_Change(); };
    game.Form_Load();

    for (int g = 0; g < 300; ++g) {
        const int start = 2 + static_cast<int>(random() % 12);
        screen.moveSlider(static_cast<int16_t>(start));
        if (random() % 2 == 0)
            game.Pausex_Click();
        ref::Ring expected{};
        std::copy(state.Beads.begin(), state.Beads.end(), expected.begin());
        int lowBank = 0, highBank = 0;

        for (int action = 0; !state.GameFinished; ++action) {
            ASSERT_LT(action, 2000) << "game " << g << " never ended";
            const int kind = static_cast<int>(random() % 20);
            if (kind == 0) {
                game.GiveHint_MouseDown(1, 0, 0, 0);
                game.GiveHint_MouseUp(1, 0, 0, 0);
            } else if (kind == 1 && screen.undoxEnabled) {
                game.Undox_Click();
                std::copy(state.Beads.begin(), state.Beads.end(), expected.begin());
                lowBank = expected[6];
                highBank = expected[13];
            } else if (kind == 2) {
                game.TakeComp_Click();
                ref::forcedTurn(expected);
            } else {
                const int16_t pot = static_cast<int16_t>(random() % 6);
                if (expected[pot] == 0)
                    continue;
                game.Pots_MouseUp(pot, 1, 0, 0, 0);
                ref::playerMove(expected, pot);
            }
            for (int s = 0; s < SlotCount; ++s)
                ASSERT_EQ(state.Beads[s], expected[s]) << "game " << g << " slot " << s;
            ASSERT_EQ(std::accumulate(state.Beads.begin(), state.Beads.end(), 0), 12 * start);
            for (int16_t count : state.Beads)
                ASSERT_GE(count, 0);
            ASSERT_GE(state.Beads[6], lowBank);
            ASSERT_GE(state.Beads[13], highBank);
            lowBank = state.Beads[6];
            highBank = state.Beads[13];
            ASSERT_FALSE(state.BoardMirrored);
            ASSERT_FALSE(state.HintActive);
            ASSERT_EQ(state.WaitingForClick, 0);
        }
        ASSERT_EQ(ref::live(expected), false);
        game.Mess_Click();
    }
}
