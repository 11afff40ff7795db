#include "assets/pictures.h"

#include <QFile>
#include <QIcon>
#include <QImage>

#include <gtest/gtest.h>

#include <cmath>

namespace {

struct Named {
    QString path;
    int side;
};

const Named All[] = {
    {Pictures::Board, 32},           {Pictures::Hand, 32},
    {Pictures::Hand16, 16},          {Pictures::DiscGreenRaised, 32},
    {Pictures::DiscGreenSunken, 32}, {Pictures::DiscRedRaised, 32},
    {Pictures::DiscRedSunken, 32},   {Pictures::ArrowRed, 32},
    {Pictures::ArrowGreen, 32},
};

QString twiceAsLarge(const QString& path)
{
    QString large = path;
    return large.replace(".png", "@2x.png");
}

QImage at(const QString& path)
{
    return QImage(path).convertToFormat(QImage::Format_ARGB32);
}

// A point of a disc of radius 15 about the middle, given by its angle on the screen
// (0 to the right, 90 down) and its distance from the middle, at 1x.
QColor discAt(const QImage& image, double degrees, double distance)
{
    const double scale = image.width() / 32.0;
    const double radians = degrees * M_PI / 180.0;
    const int x = static_cast<int>(std::floor((16 + distance * std::cos(radians)) * scale));
    const int y = static_cast<int>(std::floor((16 + distance * std::sin(radians)) * scale));
    return image.pixelColor(x, y);
}

bool isEdge(const QColor& colour, std::initializer_list<QColor> edges)
{
    for (const QColor& edge : edges)
        if (colour == edge)
            return true;
    return false;
}

} // namespace

TEST(Pictures, EveryPictureIsLinkedInAtOneAndTwoTimes)
{
    for (const Named& picture : All) {
        SCOPED_TRACE(picture.path.toStdString());
        ASSERT_TRUE(QFile::exists(picture.path));
        const QImage small(picture.path);
        const QImage large(twiceAsLarge(picture.path));
        EXPECT_EQ(small.size(), QSize(picture.side, picture.side));
        EXPECT_EQ(large.size(), QSize(2 * picture.side, 2 * picture.side));
        EXPECT_TRUE(small.hasAlphaChannel());
    }
}

TEST(Pictures, EachHasAClearSurround)
{
    for (const Named& picture : All) {
        SCOPED_TRACE(picture.path.toStdString());
        for (const QImage& image : {at(picture.path), at(twiceAsLarge(picture.path))}) {
            const int last = image.width() - 1;
            int clear = 0;
            for (QPoint corner :
                 {QPoint(0, 0), QPoint(last, 0), QPoint(0, last), QPoint(last, last)})
                clear += image.pixelColor(corner).alpha() < 64;
            // The arrows reach into one corner with their heads.
            EXPECT_GE(clear, 3);
            EXPECT_EQ(image.pixelColor(0, last / 2).alpha() == 255 &&
                          image.pixelColor(last, last / 2).alpha() == 255 &&
                          image.pixelColor(last / 2, 0).alpha() == 255 &&
                          image.pixelColor(last / 2, last).alpha() == 255,
                      false);
        }
    }
}

TEST(Pictures, LoadPicksTheDrawingForTheScreensRatio)
{
    const QPixmap sharp = Pictures::load(Pictures::DiscGreenRaised, 2.0);
    EXPECT_EQ(sharp.size(), QSize(64, 64));
    EXPECT_EQ(sharp.devicePixelRatio(), 2.0);
    EXPECT_EQ(sharp.deviceIndependentSize(), QSizeF(32, 32));

    const QPixmap plain = Pictures::load(Pictures::DiscGreenRaised, 1.0);
    EXPECT_EQ(plain.size(), QSize(32, 32));
    EXPECT_EQ(plain.devicePixelRatio(), 1.0);

    EXPECT_TRUE(Pictures::load(":/assets/no_such_picture.png", 2.0).isNull());
}

TEST(Pictures, DiscsHaveTheirBodyColourAndABlackRim)
{
    const struct {
        QString path;
        QColor body;
    } discs[] = {
        {Pictures::DiscGreenRaised, QColor(0, 187, 0)},
        {Pictures::DiscGreenSunken, QColor(0, 187, 0)},
        {Pictures::DiscRedRaised, QColor(255, 0, 0)},
        {Pictures::DiscRedSunken, QColor(255, 0, 0)},
    };
    for (const auto& disc : discs) {
        SCOPED_TRACE(disc.path.toStdString());
        for (const QImage& image : {at(disc.path), at(twiceAsLarge(disc.path))}) {
            EXPECT_EQ(discAt(image, 0, 0), disc.body);
            EXPECT_EQ(discAt(image, 0, 5), disc.body);
            for (double degrees : {0.0, 90.0, 180.0, 270.0})
                EXPECT_EQ(discAt(image, degrees, 14.5), QColor(Qt::black)) << degrees;
            EXPECT_EQ(discAt(image, 45, 15.8).alpha(), 0);
        }
    }
}

TEST(Pictures, RaisedDiscsAreLitFromTheUpperLeftAndSunkenOnesTheOtherWay)
{
    const struct {
        QString raised, sunken;
        QColor light, dark, darkest;
    } pairs[] = {
        {Pictures::DiscGreenRaised, Pictures::DiscGreenSunken, QColor(0, 255, 0), QColor(0, 136, 0),
         QColor(0, 85, 0)},
        {Pictures::DiscRedRaised, Pictures::DiscRedSunken, QColor(255, 0, 51), QColor(170, 0, 0),
         QColor(119, 0, 0)},
    };
    const double upperLeft = 225, lowerRight = 45;
    for (const auto& pair : pairs) {
        SCOPED_TRACE(pair.raised.toStdString());
        for (bool large : {false, true}) {
            const QImage raised = at(large ? twiceAsLarge(pair.raised) : pair.raised);
            const QImage sunken = at(large ? twiceAsLarge(pair.sunken) : pair.sunken);
            // Just inside the rim, where the edges are widest.
            EXPECT_EQ(discAt(raised, upperLeft, 13.2), pair.light);
            EXPECT_TRUE(isEdge(discAt(raised, lowerRight, 13.2), {pair.dark, pair.darkest}));
            EXPECT_EQ(discAt(sunken, lowerRight, 13.2), pair.light);
            EXPECT_TRUE(isEdge(discAt(sunken, upperLeft, 13.2), {pair.dark, pair.darkest}));
            // Both dark tones lie along the shaded side.
            EXPECT_EQ(discAt(raised, lowerRight, 13.6), pair.darkest);
            EXPECT_EQ(discAt(raised, lowerRight, 11.8), pair.dark);
        }
    }
}

TEST(Pictures, DiscsHoldOnlyTheirOwnColoursAndASmoothedBlackOutline)
{
    const struct {
        QString path;
        std::initializer_list<QColor> colours;
    } discs[] = {
        {Pictures::DiscGreenRaised, {Qt::black, {0, 187, 0}, {0, 255, 0}, {0, 136, 0}, {0, 85, 0}}},
        {Pictures::DiscGreenSunken, {Qt::black, {0, 187, 0}, {0, 255, 0}, {0, 136, 0}, {0, 85, 0}}},
        {Pictures::DiscRedRaised, {Qt::black, {255, 0, 0}, {255, 0, 51}, {170, 0, 0}, {119, 0, 0}}},
        {Pictures::DiscRedSunken, {Qt::black, {255, 0, 0}, {255, 0, 51}, {170, 0, 0}, {119, 0, 0}}},
    };
    for (const auto& disc : discs) {
        SCOPED_TRACE(disc.path.toStdString());
        for (const QImage& image : {at(disc.path), at(twiceAsLarge(disc.path))}) {
            int strays = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    QColor colour = image.pixelColor(x, y);
                    if (colour.alpha() == 0)
                        continue;
                    if (colour.alpha() < 255 && colour.rgb() != QColor(Qt::black).rgb())
                        ++strays;
                    colour.setAlpha(255);
                    strays += !isEdge(colour, disc.colours);
                }
            }
            EXPECT_EQ(strays, 0);
        }
    }
}
