#include "controls/twips.h"

#include <QGuiApplication>
#include <QScreen>

#include <gtest/gtest.h>

TEST(Twips, AnInchIs1440TwipsOnThePrimaryScreen)
{
    const qreal dpi = QGuiApplication::primaryScreen()->logicalDotsPerInch();
    EXPECT_FLOAT_EQ(Twips::perPixel() * static_cast<float>(dpi), 1440.0f);
    for (int pixels : {0, 1, 37, 530, -4})
        EXPECT_EQ(Twips::toPixels(Twips::fromPixels(static_cast<float>(pixels))), pixels);
}

TEST(Twips, HalvesGoToTheEvenPixelAndEachSideRoundsOnItsOwn)
{
    const float p = Twips::perPixel();
    EXPECT_EQ(Twips::toPixels(1.5f * p), 2);
    EXPECT_EQ(Twips::toPixels(2.5f * p), 2);
    EXPECT_EQ(Twips::toPixels(2.6f * p), 3);
    EXPECT_EQ(Twips::toPixels(10 * p, 20.4f * p, 37 * p, 36.6f * p), QRect(10, 20, 37, 37));
}
