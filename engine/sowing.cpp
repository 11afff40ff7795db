#include "engine/game.h"

#include "engine/number_text.h"

#include <utility>

std::string Game::PotLetter(int16_t Pot) const
{
    int code = Pot < 6 ? 65 + Pot : 77 - Pot;
    // On the turned board the halves have changed places; name each pot by the
    // letter it stands under on the screen.
    if (BoardMirrored)
        code = 135 - code;
    return std::string(1, static_cast<char>(code));
}

std::string Game::StrCount(int16_t N)
{
    std::string digits = Digits(N);
    if (digits.size() < 3)
        digits.insert(0, 3 - digits.size(), ' ');
    return digits;
}

void Game::SowPot(int16_t Pot)
{
    if (!IsSlot(Pot))
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
            slot = ClampCount(slot + laps);
    int slot = Pot;
    for (int k = 0; k < rest; ++k) {
        slot = (slot + 1) % SlotCount;
        Beads[slot] = ClampCount(Beads[slot] + 1);
    }
    CurrentPot = static_cast<int16_t>(rest == 0 ? Pot : slot);
}

// The last bead fell into an empty pot, on either row, and the pot opposite holds
// beads. Whose pot it is does not matter.
bool Game::CaptureHolds() const
{
    const int c = CurrentPot;
    if (c == ComputerBank || c == HumanBank || !IsSlot(c))
        return false;
    return Beads[c] == 1 && Beads[Opposite(c)] != 0;
}

// Credits the mover's bank with the opposite pot and the last bead; both pots still
// hold their beads so that the narration can tell what was taken.
int16_t Game::CreditCapture()
{
    const int16_t taken = Beads[Opposite(CurrentPot)];
    if (IsSlot(MoverBank))
        Beads[MoverBank] = ClampCount(Beads[MoverBank] + taken + 1);
    return taken;
}

void Game::ClearCapturedPots()
{
    Beads[CurrentPot] = 0;
    Beads[Opposite(CurrentPot)] = 0;
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
    if (holds(0, 5) && holds(7, 12))
        GameLive = true;
}

// A turn of the ring by seven slots, not a reflection: the order along the ring and
// the opposite pots stay as they were.
void Game::SwapSides()
{
    for (int i = 7; i <= 12; ++i)
        std::swap(Beads[i], Beads[i - 7]);
    std::swap(Beads[HumanBank], Beads[ComputerBank]);
}
