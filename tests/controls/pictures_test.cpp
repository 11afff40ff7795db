#include "assets/pictures.h"

#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

#include <cmath>

namespace {

QString twiceAsLarge(QString path)
{
    return path.replace(".png", "@2x.png");
}

QImage at(const QString& path)
{
    return QImage(path).convertToFormat(QImage::Format_ARGB32);
}

// The pixel of a disc at an angle on the screen (0 right, 90 down) and a distance
// from the middle, in 1x pixels.
QColor discAt(const QImage& image, double degrees, double distance)
{
    const double scale = image.width() / 32.0, radians = degrees * M_PI / 180.0;
    return image.pixelColor(static_cast<int>((16 + distance * std::cos(radians)) * scale),
                            static_cast<int>((16 + distance * std::sin(radians)) * scale));
}

struct Disc {
    QString raised, sunken;
    QColor body, light, dark, darkest;
};

const Disc Discs[] = {
    {Pictures::DiscGreenRaised,
     Pictures::DiscGreenSunken,
     {0, 187, 0},
     {0, 255, 0},
     {0, 136, 0},
     {0, 85, 0}},
    {Pictures::DiscRedRaised,
     Pictures::DiscRedSunken,
     {255, 0, 0},
     {255, 0, 51},
     {170, 0, 0},
     {119, 0, 0}},
};

} // namespace

TEST(Pictures, EachIsLinkedInAtOneAndTwoTimesWithAClearSurround)
{
    const std::pair<QString, int> all[] = {
        {Pictures::Board, 32},           {Pictures::Hand, 32},
        {Pictures::Hand16, 16},          {Pictures::DiscGreenRaised, 32},
        {Pictures::DiscGreenSunken, 32}, {Pictures::DiscRedRaised, 32},
        {Pictures::DiscRedSunken, 32},   {Pictures::ArrowRed, 32},
        {Pictures::ArrowGreen, 32},
    };
    for (const auto& [path, side] : all) {
        SCOPED_TRACE(path.toStdString());
        ASSERT_TRUE(QFile::exists(path));
        for (int scale : {1, 2}) {
            const QImage image = at(scale == 1 ? path : twiceAsLarge(path));
            ASSERT_EQ(image.size(), QSize(side, side) * scale);
            const int end = image.width() - 1;
            int clear = 0;
            for (QPoint corner : {QPoint(0, 0), QPoint(end, 0), QPoint(0, end), QPoint(end, end)})
                clear += image.pixelColor(corner).alpha() < 64;
            // An arrow's head may reach into one corner.
            EXPECT_GE(clear, 3);
        }
    }
}

TEST(Pictures, LoadPicksTheDrawingForTheRatio)
{
    const QPixmap sharp = Pictures::load(Pictures::DiscGreenRaised, 2.0);
    EXPECT_EQ(sharp.size(), QSize(64, 64));
    EXPECT_EQ(sharp.deviceIndependentSize(), QSizeF(32, 32));
    const QPixmap plain = Pictures::load(Pictures::DiscGreenRaised, 1.0);
    EXPECT_EQ(plain.size(), QSize(32, 32));
    EXPECT_EQ(plain.devicePixelRatio(), 1.0);
    EXPECT_TRUE(Pictures::load(":/assets/no_such_picture.png", 2.0).isNull());
}

TEST(Pictures, DiscsHoldOnlyTheirOwnColoursInsideABlackRim)
{
    for (const Disc& disc : Discs) {
        for (const QString& path :
             {disc.raised, disc.sunken, twiceAsLarge(disc.raised), twiceAsLarge(disc.sunken)}) {
            SCOPED_TRACE(path.toStdString());
            const QImage image = at(path);
            int strays = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const QColor c = image.pixelColor(x, y);
                    const QRgb rgb = c.rgb();
                    // Only the rim's outer edge is smoothed, and it is black.
                    if (c.alpha() == 0 || rgb == qRgb(0, 0, 0))
                        continue;
                    strays +=
                        c.alpha() != 255 || (rgb != disc.body.rgb() && rgb != disc.light.rgb() &&
                                             rgb != disc.dark.rgb() && rgb != disc.darkest.rgb());
                }
            }
            EXPECT_EQ(strays, 0);
            EXPECT_EQ(discAt(image, 0, 0), disc.body);
            for (double degrees : {0, 90, 180, 270})
                EXPECT_EQ(discAt(image, degrees, 14.5), QColor(Qt::black)) << degrees;
        }
    }
}

TEST(Pictures, RaisedDiscsAreLitFromTheUpperLeftAndSunkenOnesTheOtherWay)
{
    const double upperLeft = 225, lowerRight = 45;
    for (const Disc& disc : Discs) {
        for (int scale : {1, 2}) {
            SCOPED_TRACE(disc.raised.toStdString() + " at " + std::to_string(scale));
            const QImage raised = at(scale == 1 ? disc.raised : twiceAsLarge(disc.raised));
            const QImage sunken = at(scale == 1 ? disc.sunken : twiceAsLarge(disc.sunken));
            // Just inside the rim, where the edges are widest: the outer dark tone
            // along the rim, the other inside it.
            EXPECT_EQ(discAt(raised, upperLeft, 12.5), disc.light);
            EXPECT_EQ(discAt(raised, lowerRight, 13.2), disc.darkest);
            EXPECT_EQ(discAt(raised, lowerRight, 11.8), disc.dark);
            EXPECT_EQ(discAt(sunken, lowerRight, 12.5), disc.light);
            EXPECT_EQ(discAt(sunken, upperLeft, 13.2), disc.darkest);
            EXPECT_EQ(discAt(sunken, upperLeft, 11.8), disc.dark);
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
