#include "assets/pictures.h"

#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

#include <cmath>

namespace {

QImage at(const QString& path, int scale)
{
    QString file = path;
    if (scale == 2)
        file.replace(".png", "@2x.png");
    return QImage(file).convertToFormat(QImage::Format_ARGB32);
}

// The pixel of a disc at an angle on the screen (0 right, 90 down) and a distance
// from the middle, in 1x pixels.
QColor discAt(const QImage& image, double degrees, double distance)
{
    const double scale = image.width() / 32.0, radians = degrees * M_PI / 180.0;
    return image.pixelColor(static_cast<int>((16 + distance * std::cos(radians)) * scale),
                            static_cast<int>((16 + distance * std::sin(radians)) * scale));
}

} // namespace

TEST(Pictures, EachIsLinkedInAtBothScales)
{
    const std::pair<QString, int> all[] = {
        {Pictures::Board, 32},           {Pictures::Hand, 32},
        {Pictures::Hand16, 16},          {Pictures::DiscGreenRaised, 32},
        {Pictures::DiscGreenSunken, 32}, {Pictures::DiscRedRaised, 32},
        {Pictures::DiscRedSunken, 32},   {Pictures::ArrowRed, 40},
        {Pictures::ArrowGreen, 40},
    };
    for (const auto& [path, side] : all) {
        for (int scale : {1, 2}) {
            SCOPED_TRACE(path.toStdString() + " at " + std::to_string(scale));
            const QImage image = at(path, scale);
            ASSERT_EQ(image.size(), QSize(side, side) * scale);
            const int end = image.width() - 1;
            int clear = 0;
            for (QPoint corner : {QPoint(0, 0), QPoint(end, 0), QPoint(0, end), QPoint(end, end)})
                clear += image.pixelColor(corner).alpha() < 64;
            EXPECT_GE(clear, 3) << "an arrow's head may reach into one corner";
        }
    }
    EXPECT_EQ(Pictures::load(Pictures::Hand, 2.0).size(), QSize(64, 64));
    EXPECT_EQ(Pictures::load(Pictures::Hand, 2.0).deviceIndependentSize(), QSizeF(32, 32));
    EXPECT_EQ(Pictures::load(Pictures::Hand, 1.0).size(), QSize(32, 32));
}

// A raised disc is lit from the upper left, a sunken one from the lower right; inside
// the black rim there are only the disc's four colours.
TEST(Pictures, DiscsHoldTheirOwnColoursLitFromTheirOwnSide)
{
    struct Disc {
        QString raised, sunken;
        QRgb body, light, dark, darkest;
    };
    const Disc discs[] = {
        {Pictures::DiscGreenRaised, Pictures::DiscGreenSunken, qRgb(0, 187, 0), qRgb(0, 255, 0),
         qRgb(0, 136, 0), qRgb(0, 85, 0)},
        {Pictures::DiscRedRaised, Pictures::DiscRedSunken, qRgb(255, 0, 0), qRgb(255, 0, 51),
         qRgb(170, 0, 0), qRgb(119, 0, 0)},
    };
    for (const Disc& disc : discs) {
        for (int scale : {1, 2}) {
            for (bool raised : {true, false}) {
                const QString path = raised ? disc.raised : disc.sunken;
                SCOPED_TRACE(path.toStdString() + " at " + std::to_string(scale));
                const QImage image = at(path, scale);
                int strays = 0;
                for (int y = 0; y < image.height(); ++y) {
                    for (int x = 0; x < image.width(); ++x) {
                        const QColor c = image.pixelColor(x, y);
                        const QRgb rgb = c.rgb();
                        // Only the rim's outer edge is smoothed, and it is black.
                        if (c.alpha() == 0 || rgb == qRgb(0, 0, 0))
                            continue;
                        strays += c.alpha() != 255 || (rgb != disc.body && rgb != disc.light &&
                                                       rgb != disc.dark && rgb != disc.darkest);
                    }
                }
                EXPECT_EQ(strays, 0);
                EXPECT_EQ(discAt(image, 0, 0).rgb(), disc.body);
                EXPECT_EQ(discAt(image, 90, 14.5).rgb(), qRgb(0, 0, 0));
                // Just inside the rim, where the edges are widest: the outer dark tone
                // along the rim, the other inside it.
                const double lit = raised ? 225 : 45, shaded = raised ? 45 : 225;
                EXPECT_EQ(discAt(image, lit, 12.5).rgb(), disc.light);
                EXPECT_EQ(discAt(image, shaded, 13.2).rgb(), disc.darkest);
                EXPECT_EQ(discAt(image, shaded, 11.8).rgb(), disc.dark);
            }
        }
    }
}

TEST(MissingPicture, IsSaidOnceOnStandardError)
{
    const QString path = QStringLiteral(":/assets/lost_on_the_way.png");
    ::testing::internal::CaptureStderr();
    EXPECT_TRUE(Pictures::load(path, 1.0).isNull());
    EXPECT_TRUE(Pictures::load(path, 2.0).isNull());
    const std::string said = ::testing::internal::GetCapturedStderr();
    const auto first = said.find("lost_on_the_way.png");
    ASSERT_NE(first, std::string::npos) << said;
    EXPECT_EQ(said.find("lost_on_the_way.png", first + 1), std::string::npos) << said;
}
