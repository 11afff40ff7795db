#pragma once

#include <cstddef>
#include <cstdint>

// The fuzzer's bytes read one at a time; past the end every read gives 0, so that a
// short input still makes a whole, if dull, run.
class FuzzInput {
public:
    FuzzInput(const uint8_t* data, size_t size) : m_data(data), m_size(size) {}

    bool done() const { return m_at >= m_size; }
    uint8_t byte() { return m_at < m_size ? m_data[m_at++] : 0; }
    // A number from 0 to count - 1.
    int pick(int count) { return byte() % count; }
    int16_t word() { return static_cast<int16_t>(byte() | byte() << 8); }

private:
    const uint8_t* m_data;
    size_t m_size;
    size_t m_at = 0;
};
