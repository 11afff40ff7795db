#pragma once

namespace moveslist {

// The program's one uniform source: the next single-precision value in [0, 1).
// It is never seeded, so a run draws the same values every time.
float rnd();

} // namespace moveslist
