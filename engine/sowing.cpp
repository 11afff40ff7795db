#include "engine/game.h"

#include "common/numbers.h"

#include <utility>

std::string Game::PotLetter(int16_t Pot) const
{
    return std::string(1, potLetter(Pot, BoardMirrored));
}

std::string Game::StrCount(int16_t N)
{
    std::string text = digits(N);
    if (text.size() < 3)
        text.insert(0, 3 - text.size(), ' ');
    return text;
}

void Game::SowPot(int16_t Pot)
{
    if (!isSlot(Pot))
        return;
    const int n = Beads[Pot] > 0 ? Beads[Pot] : 0;
    Beads[Pot] = 0;
    CurrentPot = Pot;
    if (n == 0)
        return;
    // Whole laps first: each gives every slot one bead, the emptied source pot and
    // both banks included. Then the rest, one by one up the ring.
    const int laps = n / SlotCount;
    const int rest = n % SlotCount;
    if (laps > 0)
        for (auto& slot : Beads)
            slot = clampCount(slot + laps);
    int slot = Pot;
    for (int k = 0; k < rest; ++k) {
        slot = (slot + 1) % SlotCount;
        Beads[slot] = clampCount(Beads[slot] + 1);
    }
    CurrentPot = static_cast<int16_t>(rest == 0 ? Pot : slot);
}

// The last bead fell into an empty pot, on either row, and the pot opposite holds
// beads. Whose pot it is does not matter.
bool Game::captureHolds() const
{
    const int c = CurrentPot;
    if (isBank(c) || !isSlot(c))
        return false;
    return Beads[c] == 1 && Beads[opposite(c)] != 0;
}

// Credits the mover's bank with the opposite pot and the last bead; both pots still
// hold their beads so that the narration can tell what was taken.
int16_t Game::creditCapture()
{
    const int16_t taken = Beads[opposite(CurrentPot)];
    if (isSlot(MoverBank))
        Beads[MoverBank] = clampCount(Beads[MoverBank] + taken + 1);
    return taken;
}

void Game::clearCapturedPots()
{
    Beads[CurrentPot] = 0;
    Beads[opposite(CurrentPot)] = 0;
}

void Game::CheckRows()
{
    GameLive = false;
    auto holds = [this](int from, int to) {
        for (int s = from; s <= to; ++s)
            if (Beads[s] > 0)
                return true;
        return false;
    };
    if (holds(FirstHumanPot, LastHumanPot) && holds(FirstComputerPot, LastComputerPot))
        GameLive = true;
}

// A turn of the ring by seven slots, not a reflection: the order along the ring and
// the opposite pots stay as they were.
void Game::SwapSides()
{
    for (int i = FirstComputerPot; i <= LastComputerPot; ++i)
        std::swap(Beads[i], Beads[i - FirstComputerPot]);
    std::swap(Beads[HumanBank], Beads[ComputerBank]);
}
