#include "moveslist/uniformsource.h"

#include <random>

namespace moveslist {

float rnd()
{
    static std::mt19937 source;
    // 24 random bits make every value a float can hold below 1, and never 1 itself.
    return static_cast<float>(source() >> 8) * (1.0f / 16777216.0f);
}

} // namespace moveslist
