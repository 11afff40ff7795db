#include "game_fixture.h"

using Controller = GameTest;

TEST_F(Controller, BadPicksChangeNothing)
{
    setBoard("3 0 3 3 3 3 |0| 3 3 3 3 3 3 |0");
    const auto board = state.Beads;
    for (const char* pick : {"0", "7", "-1", "", "abc", "99999", "1e9", "2"}) {
        state.Text1 = pick;
        int16_t result = 0;
        game.HumanMove(result);
        EXPECT_EQ(result, -1) << "pick '" << pick << "'";
    }
    for (int16_t index : {-1, 14, 200, -32768})
        for (int16_t button : {1, 2})
            game.Pots_MouseUp(index, button, 0, 0, 0);
    screen.tags[3] = "";
    click(3); // a pot whose face shows nothing takes no move
    EXPECT_EQ(state.Beads, board);
    EXPECT_TRUE(moves().empty());
    EXPECT_FALSE(screen.undoxEnabled);

    // A pick may come with blanks before it, as any number read by the game.
    state.Text1 = " 3";
    int16_t result = -1;
    game.HumanMove(result);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(moves().front(), "#001>Move   3 from C");
}
