#pragma once

// A second, deliberately plain reading of the rules, one bead at a time, in ints.
// The engine is checked against it; it shares no code with the engine.

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace ref {

using Ring = std::array<int, 14>;

inline int sow(Ring& b, int pot)
{
    int n = b[pot];
    b[pot] = 0;
    int at = pot;
    while (n-- > 0) {
        at = at == 13 ? 0 : at + 1;
        b[at] += 1;
    }
    return at;
}

// Returns the beads taken from the opposite pot, or -1 when nothing is captured.
inline int capture(Ring& b, int last, int bank)
{
    if (last == 6 || last == 13 || b[last] != 1 || b[12 - last] == 0)
        return -1;
    const int taken = b[12 - last];
    b[bank] += taken + 1;
    b[last] = 0;
    b[12 - last] = 0;
    return taken;
}

inline bool live(const Ring& b)
{
    const auto holds = [&b](int from) {
        return std::any_of(b.begin() + from, b.begin() + from + 6, [](int n) { return n > 0; });
    };
    return holds(0) && holds(7);
}

inline int score(Ring b, int pot)
{
    const int last = sow(b, pot);
    capture(b, last, 13);
    int g = 0;
    for (int k = 0; k < 6; ++k) {
        if (b[k] == 0)
            continue;
        int l = k + b[k], w = 0;
        while (l > 13) {
            l -= 14;
            w = 1;
        }
        const int v = (b[l] == 0 && l != 6 && l != 13) ? b[12 - l] + w : w;
        if (v > g)
            g = v;
    }
    return b[13] - b[6] - g;
}

// The pot the computer plays, or -1 when its row is empty.
inline int choose(const Ring& b)
{
    int best = 0, chosen = -1;
    for (int p = 7; p <= 12; ++p) {
        if (b[p] == 0)
            continue;
        const int s = score(b, p);
        if (chosen == -1 || s >= best) {
            best = s;
            chosen = p;
        }
    }
    return chosen;
}

// A whole turn for the side in slots 7..13, extra moves included.
inline void computerTurn(Ring& b)
{
    for (;;) {
        const int pot = choose(b);
        if (pot < 0)
            return;
        const int last = sow(b, pot);
        capture(b, last, 13);
        if (last != 13)
            return;
    }
}

inline Ring turned(const Ring& b)
{
    Ring t{};
    for (int s = 0; s < 14; ++s)
        t[(s + 7) % 14] = b[s];
    return t;
}

// The player's pot sown, and the computer's reply unless the last bead earned another go.
inline void playerMove(Ring& b, int pot)
{
    const int last = sow(b, pot);
    capture(b, last, 6);
    if (live(b) && last != 6)
        computerTurn(b);
}

// A forced turn: the computer plays the player's side, then its own.
inline void forcedTurn(Ring& b)
{
    b = turned(b);
    computerTurn(b);
    b = turned(b);
    if (live(b))
        computerTurn(b);
}

} // namespace ref
