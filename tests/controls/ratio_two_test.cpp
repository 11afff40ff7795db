#include "assets/pictures.h"
#include "controls/quillet.h"

#include <QGuiApplication>
#include <QIcon>
#include <QTest>

#include <gtest/gtest.h>

// These run again on a screen of ratio 2 (see CMakeLists.txt); on a plain screen they
// have nothing to look at.
class AtRatioTwo : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (qGuiApp->devicePixelRatio() != 2.0)
            GTEST_SKIP() << "the screen is not at ratio 2";
    }
};

TEST_F(AtRatioTwo, TheWindowIconFindsItsLargeDrawing)
{
    const QIcon icon(Pictures::Board);
    const QPixmap pixmap = icon.pixmap(QSize(32, 32));
    EXPECT_EQ(pixmap.size(), QSize(64, 64));
}

TEST_F(AtRatioTwo, APotShowsItsDiscPixelForPixel)
{
    QWidget surface;
    surface.resize(100, 100);
    auto* pot = new Quillet(&surface);
    pot->place(0, 0, 555, 555);
    const QPixmap disc = Pictures::load(Pictures::DiscGreenRaised);
    pot->picture(disc);
    surface.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&surface));

    const QImage face = pot->grab().toImage().convertToFormat(QImage::Format_ARGB32);
    const QImage source = disc.toImage().convertToFormat(QImage::Format_ARGB32);
    ASSERT_EQ(face.devicePixelRatio(), 2.0);
    const int offset = 2 * ((pot->width() - 32) / 2);
    int mismatches = 0;
    for (int y = 0; y < source.height(); ++y)
        for (int x = 0; x < source.width(); ++x)
            if (source.pixelColor(x, y).alpha() == 255)
                mismatches += face.pixelColor(offset + x, offset + y) != source.pixelColor(x, y);
    EXPECT_EQ(mismatches, 0);
}
