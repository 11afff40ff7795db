#include "common/twips.h"

#include <QGuiApplication>
#include <QScreen>

#include <gtest/gtest.h>

// An inch is 1440 twips on the primary screen. Pixels come back as they went in; halves
// go to the even pixel, and each side of a rectangle rounds on its own.
TEST(Twips, FifteenTwipsMakeAPixel)
{
    const float p = Twips::perPixel();
    EXPECT_FLOAT_EQ(p * static_cast<float>(QGuiApplication::primaryScreen()->logicalDotsPerInch()),
                    1440.0f);
    for (int pixels : {0, 1, 37, 530, -4})
        EXPECT_EQ(Twips::toPixels(Twips::fromPixels(static_cast<float>(pixels))), pixels);
    EXPECT_EQ(Twips::toPixels(1.5f * p), 2);
    EXPECT_EQ(Twips::toPixels(2.5f * p), 2);
    EXPECT_EQ(Twips::toPixels(2.6f * p), 3);
    EXPECT_EQ(Twips::toPixels(10 * p, 20.4f * p, 37 * p, 36.6f * p), QRect(10, 20, 37, 37));
}
