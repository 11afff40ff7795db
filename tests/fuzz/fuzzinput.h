#pragma once

#include <cstddef>
#include <cstdint>

// The fuzzer's bytes read one at a time; past the end every read gives 0, so that a
// short input still makes a whole, if dull, run.
class FuzzInput {
public:
    FuzzInput(const uint8_t* data, size_t size) : data(data), size(size) {}

    bool done() const { return at >= size; }
    uint8_t byte() { return at < size ? data[at++] : 0; }
    // A number from 0 to count - 1.
    int pick(int count) { return byte() % count; }
    int16_t word() { return static_cast<int16_t>(byte() | byte() << 8); }

private:
    const uint8_t* data;
    size_t size;
    size_t at = 0;
};
