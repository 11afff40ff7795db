#include "game_fixture.h"

using Keyboard = GameTest;

constexpr int16_t KeyA = 65;

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
