#include "common/key_numbers.h"

#include <QKeyEvent>

#include <gtest/gtest.h>

namespace {

int16_t numberOf(int qtKey, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const QKeyEvent press(QEvent::KeyPress, qtKey, modifiers);
    return keyNumber(press);
}

} // namespace

// The trace tool presses keys by their numbers and the game hears them back: every
// number a key has must come back as itself.
TEST(KeyNumbers, EveryNumberATraceCanPressComesBackAsItself)
{
    int pressable = 0;
    for (int code = 1; code < 256; ++code) {
        const int key = QtKeyFor(int16_t(code));
        if (key == 0)
            continue;
        ++pressable;
        EXPECT_EQ(numberOf(key), code) << "code " << code;
    }
    // Letters, digits, function keys and the named keys, at least.
    EXPECT_GT(pressable, 26 + 10 + 12 + 20);
}

TEST(KeyNumbers, SpecialKeysHaveTheirOwnReading)
{
    EXPECT_EQ(numberOf(Qt::Key_Enter, Qt::KeypadModifier), key::Return);
    EXPECT_EQ(numberOf(Qt::Key_Return), key::Return);
    EXPECT_EQ(numberOf(Qt::Key_5, Qt::KeypadModifier), 101);
    EXPECT_EQ(numberOf(Qt::Key_5), 53);
    EXPECT_EQ(numberOf(Qt::Key_Backtab, Qt::ShiftModifier), 9);
    EXPECT_EQ(numberOf(Qt::Key_A, Qt::ShiftModifier), 65);
    EXPECT_EQ(numberOf(Qt::Key_Up), key::Up);
    EXPECT_EQ(numberOf(Qt::Key_F1), 112);
    EXPECT_EQ(numberOf(Qt::Key_VolumeUp), 0);
}

TEST(KeyNumbers, WhatAKeyTypesIsItsCharacterOrNothing)
{
    const QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::ShiftModifier, QStringLiteral("A"));
    EXPECT_EQ(keyAscii(letter), std::optional<int16_t>(65));
    const QKeyEvent arrow(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
    EXPECT_EQ(keyAscii(arrow), std::nullopt);
}
