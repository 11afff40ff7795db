#pragma once

#include <cstdint>

// The game's key codes: 13 Enter, 27 Escape, 33..40 paging, ends and arrows, 48..57
// digits, 65..90 letters. A key with no code of its own gives 0; it still counts as a
// key press.
int16_t GameKeyCode(int qtKey);

// The other way, for tools that press keys by the game's codes; 0 when there is none.
int QtKeyFor(int16_t code);
