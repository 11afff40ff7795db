#include "game_fixture.h"

using Keyboard = GameTest;

constexpr int16_t KeyA = 65;

TEST_F(Keyboard, TheWalkVisitsOnlyPotsWithBeads)
{
    setBoard("3 0 0 3 0 3 |0| 3 3 3 3 3 3 |0");
    state.KeyboardPot = 0;
    for (int16_t expected : {3, 5, 0}) {
        key(KeyA);
        EXPECT_EQ(state.KeyboardPot, expected);
    }
    // Enter on an empty pot walks on like any key.
    state.KeyboardPot = 1;
    key(KeyEnter);
    EXPECT_EQ(state.KeyboardPot, 3);
    EXPECT_TRUE(moves().empty());

    // With the whole row empty the walk gives up one step further on.
    setBoard("0 0 0 0 0 0 |0| 3 3 3 3 3 3 |0");
    state.KeyboardPot = 2;
    key(KeyA);
    EXPECT_EQ(state.KeyboardPot, 3);
}

// The walk goes on during a pause; only Enter's move waits for the computer.
TEST_F(Keyboard, KeysWalkDuringAPauseButEnterPlaysNothing)
{
    game.Pausex_Click();
    std::vector<int16_t> selected;
    screen.onPendingEvents = [&] {
        if (selected.empty())
            for (int16_t code : {KeyA, KeyA, KeyEnter}) {
                key(code);
                selected.push_back(state.KeyboardPot);
            }
        game.Mess_Click();
    };
    click(1);
    EXPECT_EQ(selected, (std::vector<int16_t>{0, 2, 2}));
    const auto green = std::count_if(screen.log.begin(), screen.log.end(),
                                     [](const auto& line) { return line.color == HumanGreen; });
    EXPECT_EQ(green, 2) << "the opening line and the one move";
}
