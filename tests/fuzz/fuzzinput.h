#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

// The fuzzer's bytes read one at a time; past the end every read gives 0, so that a
// short input still makes a whole, if dull, run.
struct FuzzInput {
    const uint8_t* data;
    size_t size;
    size_t at = 0;

    bool done() const { return at >= size; }
    uint8_t byte() { return at < size ? data[at++] : 0; }
    // A number from 0 to count - 1.
    int pick(int count) { return byte() % count; }
    int16_t word() { return static_cast<int16_t>(byte() | byte() << 8); }
};

// A broken rule: told on stderr, and the run stops so that libFuzzer keeps the input.
[[noreturn]] inline void fail(const std::string& what)
{
    std::fprintf(stderr, "%s\n", what.c_str());
    std::abort();
}

#ifdef QT_WIDGETS_LIB
#include <QApplication>

// One offscreen application for the whole run of a target that builds widgets.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    static QApplication app(*argc, *argv);
    return 0;
}
#endif
