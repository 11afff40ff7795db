#include "controls/quillet.h"
#include "controls/twips.h"

#include <QImage>
#include <QPainter>
#include <QTest>

#include <gtest/gtest.h>

namespace {

const QColor Face(212, 208, 200), TopEdge(255, 255, 255), LeftEdge(250, 250, 0),
    RightEdge(0, 0, 128), BottomEdge(64, 64, 64);

// A pot, 555 twips square, each edge in a colour of its own.
struct Pot : Quillet {
    explicit Pot(QWidget* parent = nullptr) : Quillet(parent)
    {
        Move(0, 0, 555, 555);
        backcolor(Face);
        bordertop(TopEdge);
        borderleft(LeftEdge);
        borderright(RightEdge);
        borderbottom(BottomEdge);
    }
};

QImage rendered(QWidget& widget, qreal ratio = 1.0)
{
    QImage image(widget.size() * ratio, QImage::Format_ARGB32);
    image.setDevicePixelRatio(ratio);
    widget.render(&image);
    return image;
}

// A clear margin round an opaque middle.
QPixmap framedInClear(int side, int margin)
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter(&image).fillRect(margin, margin, side - 2 * margin, side - 2 * margin, Qt::blue);
    return QPixmap::fromImage(image);
}

int blueAcrossTheMiddle(const QImage& image)
{
    int count = 0;
    for (int x = 0; x < image.width(); ++x)
        count += image.pixelColor(x, image.height() / 2) == QColor(Qt::blue);
    return count;
}

} // namespace

TEST(QuilletFace, EachEdgeIsOnePixelOfItsOwnColourAtRatioOneAndTwo)
{
    Pot pot;
    for (int ratio : {1, 2}) {
        const QImage image = rendered(pot, ratio);
        const int w = image.width(), h = image.height();
        EXPECT_EQ(image.pixelColor(w / 2, ratio - 1), TopEdge);
        EXPECT_EQ(image.pixelColor(ratio - 1, h / 2), LeftEdge);
        EXPECT_EQ(image.pixelColor(w - ratio, h / 2), RightEdge);
        EXPECT_EQ(image.pixelColor(w / 2, h - ratio), BottomEdge);
        EXPECT_EQ(image.pixelColor(w / 2, ratio), Face);
        EXPECT_EQ(image.pixelColor(w - 1 - ratio, h - 1 - ratio), Face);
    }
}

TEST(QuilletFace, HeldDownItSinksAndTurnedOffItComesBackRaised)
{
    QWidget surface;
    auto* pot = new Pot(&surface);
    surface.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&surface));

    QTest::mousePress(pot, Qt::LeftButton);
    EXPECT_EQ(rendered(*pot).pixelColor(pot->width() / 2, 0), BottomEdge);
    pot->enabled(false);
    pot->enabled(true);
    EXPECT_EQ(rendered(*pot).pixelColor(pot->width() / 2, 0), TopEdge);
    QTest::mouseRelease(pot, Qt::LeftButton);
}

TEST(QuilletFace, CaptionShowsAtOnceTagLeavesTheFaceAloneAndPicturesAreShared)
{
    Pot pot, bank;
    bank.picture(framedInClear(32, 2));
    pot.picture(bank.picture());
    EXPECT_EQ(pot.picture().cacheKey(), bank.picture().cacheKey());

    const QImage bare = rendered(pot);
    pot.forecolor(Qt::black);
    pot.caption("7");
    const QImage numbered = rendered(pot);
    pot.Tag("12");
    EXPECT_EQ(rendered(pot), numbered);
    EXPECT_EQ(pot.Tag(), "12");
    pot.caption("");

    EXPECT_NE(numbered, bare);
    EXPECT_EQ(rendered(pot), bare);
}

TEST(QuilletFace, PictureSitsCentredWithoutSmoothingAtRatioTwo)
{
    // One device pixel in each colour by turns: any smoothing would mix them.
    QImage checks(64, 64, QImage::Format_ARGB32);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            checks.setPixelColor(x, y, (x + y) % 2 ? Qt::black : Qt::yellow);
    QPixmap picture = QPixmap::fromImage(checks);
    picture.setDevicePixelRatio(2.0);
    Pot pot;
    pot.picture(picture);
    const QImage image = rendered(pot, 2.0);

    const int offset = 2 * ((pot.width() - 32) / 2);
    int mismatches = 0;
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            mismatches += image.pixelColor(offset + x, offset + y) != checks.pixelColor(x, y);
    EXPECT_EQ(mismatches, 0);
}

TEST(QuilletFace, OnlyAPictureWhoseVisiblePartIsTooLargeShrinks)
{
    Pot pot;
    pot.picture(framedInClear(32, 6));
    EXPECT_EQ(blueAcrossTheMiddle(rendered(pot)), 20);

    // The hand: 32 pixels on a face 25 wide, its clear margin hanging over the edges.
    Quillet hand;
    hand.resize(25, 37);
    hand.picture(framedInClear(32, 6));
    EXPECT_EQ(blueAcrossTheMiddle(rendered(hand)), 20);

    pot.picture(framedInClear(64, 0));
    const int across = blueAcrossTheMiddle(rendered(pot));
    EXPECT_GE(across, pot.width() - 2);
    EXPECT_LE(across, pot.width());
}

TEST(QuilletFace, PlainButtonGreysItsCaptionWhileOffButABankKeepsItsCount)
{
    Quillet button;
    button.resize(120, 23);
    button.caption("Undo last move");
    const QImage on = rendered(button);
    button.enabled(false);
    EXPECT_NE(rendered(button), on);

    Pot bank;
    bank.picture(framedInClear(32, 2));
    bank.forecolor(Qt::white);
    bank.caption("48");
    const QImage enabledBank = rendered(bank);
    bank.enabled(false);
    EXPECT_EQ(rendered(bank), enabledBank);
}

TEST(QuilletPlace, TwipsInAndTheSameTwipsOut)
{
    QWidget surface;
    Pot pot(&surface);
    pot.Move(1530, 1785, 555, 555);
    EXPECT_EQ(pot.geometry(), Twips::toPixels(1530, 1785, 555, 555));

    // The hand goes where a letter stands, in twips that need not fall on a pixel.
    pot.Left(1642);
    pot.Top(1075);
    EXPECT_FLOAT_EQ(pot.Left(), 1642);
    EXPECT_FLOAT_EQ(pot.Top(), 1075);
    EXPECT_EQ(pot.pos(), QPoint(Twips::toPixels(1642), Twips::toPixels(1075)));

    // Moved by pixels behind its back, it tells the twips of those pixels.
    pot.move(10, 20);
    EXPECT_FLOAT_EQ(pot.Left(), Twips::fromPixels(10));
    EXPECT_FLOAT_EQ(pot.Top(), Twips::fromPixels(20));
}
