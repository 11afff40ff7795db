#include "controls/quillet.h"
#include "controls/twips.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QTest>

#include <gtest/gtest.h>

namespace {

const QColor Face(212, 208, 200);
const QColor Top(255, 255, 255);
const QColor LeftEdge(250, 250, 0);
const QColor RightEdge(0, 0, 128);
const QColor Bottom(64, 64, 64);

// A pot: 555 twips square, its edges each in a colour of its own.
struct Pot {
    Pot()
    {
        face.Move(0, 0, 555, 555);
        face.backcolor(Face);
        face.bordertop(Top);
        face.borderleft(LeftEdge);
        face.borderright(RightEdge);
        face.borderbottom(Bottom);
    }
    Quillet face;
};

QImage rendered(QWidget& widget, qreal ratio = 1.0)
{
    QImage image(widget.size() * ratio, QImage::Format_ARGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    widget.render(&image);
    return image;
}

// One device pixel in each colour, in turn: any smoothing mixes them and shows.
QPixmap checkered(int side, qreal ratio)
{
    QImage image(side, side, QImage::Format_ARGB32);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            image.setPixelColor(x, y, (x + y) % 2 ? Qt::black : Qt::yellow);
    QPixmap picture = QPixmap::fromImage(image);
    picture.setDevicePixelRatio(ratio);
    return picture;
}

// A picture with a clear margin round an opaque middle.
QPixmap framedInClear(int side, int margin, const QColor& middle)
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.fillRect(margin, margin, side - 2 * margin, side - 2 * margin, middle);
    painter.end();
    return QPixmap::fromImage(image);
}

int widthOfColour(const QImage& image, int y, const QColor& colour)
{
    int count = 0;
    for (int x = 0; x < image.width(); ++x)
        count += image.pixelColor(x, y) == colour;
    return count;
}

} // namespace

TEST(QuilletFace, EachEdgeShowsItsOwnColourRoundTheBackColour)
{
    Pot pot;
    const QImage image = rendered(pot.face);
    const int w = image.width(), h = image.height();

    EXPECT_EQ(image.pixelColor(w / 2, 0), Top);
    EXPECT_EQ(image.pixelColor(0, h / 2), LeftEdge);
    EXPECT_EQ(image.pixelColor(w - 1, h / 2), RightEdge);
    EXPECT_EQ(image.pixelColor(w / 2, h - 1), Bottom);
    EXPECT_EQ(image.pixelColor(1, 1), Face);
    EXPECT_EQ(image.pixelColor(w - 2, h - 2), Face);
}

TEST(QuilletFace, EdgesAreOnePixelWideAtRatioTwo)
{
    Pot pot;
    const QImage image = rendered(pot.face, 2.0);

    EXPECT_EQ(image.pixelColor(image.width() / 2, 1), Top);
    EXPECT_EQ(image.pixelColor(image.width() / 2, 2), Face);
    EXPECT_EQ(image.pixelColor(image.width() - 2, image.height() / 2), RightEdge);
    EXPECT_EQ(image.pixelColor(image.width() - 3, image.height() / 2), Face);
}

TEST(QuilletFace, PressedFaceSinksAndComesBackRaisedWhenTurnedOff)
{
    QWidget surface;
    surface.resize(100, 100);
    auto* face = new Quillet(&surface);
    face->Move(0, 0, 555, 555);
    face->bordertop(Top);
    face->borderbottom(Bottom);
    surface.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&surface));

    QTest::mousePress(face, Qt::LeftButton);
    EXPECT_EQ(rendered(*face).pixelColor(face->width() / 2, 0), Bottom);
    face->enabled(false);
    face->enabled(true);
    EXPECT_EQ(rendered(*face).pixelColor(face->width() / 2, 0), Top);
    QTest::mouseRelease(face, Qt::LeftButton);
}

TEST(QuilletFace, CaptionShowsAtOnceAndEmptyShowsNone)
{
    Pot pot;
    const QImage bare = rendered(pot.face);
    pot.face.forecolor(Qt::black);
    pot.face.caption("7");
    const QImage numbered = rendered(pot.face);
    pot.face.caption("");
    const QImage blanked = rendered(pot.face);

    EXPECT_EQ(pot.face.caption(), "");
    EXPECT_NE(numbered, bare);
    EXPECT_EQ(blanked, bare);
    int dark = 0;
    for (int x = 0; x < numbered.width(); ++x)
        dark += numbered.pixelColor(x, numbered.height() / 2).value() < 128;
    EXPECT_GT(dark, 0);
}

TEST(QuilletFace, TagIsKeptAndLeavesTheFaceAlone)
{
    Pot pot;
    pot.face.caption("3");
    const QImage before = rendered(pot.face);
    pot.face.Tag("12");

    EXPECT_EQ(pot.face.Tag(), "12");
    EXPECT_EQ(pot.face.caption(), "3");
    EXPECT_EQ(rendered(pot.face), before);
}

TEST(QuilletFace, PictureReadFromOneFaceIsSharedByAnother)
{
    Pot bank, pot;
    bank.face.picture(framedInClear(32, 2, Qt::green));
    pot.face.picture(bank.face.picture());

    EXPECT_EQ(pot.face.picture().cacheKey(), bank.face.picture().cacheKey());
    EXPECT_EQ(rendered(pot.face), rendered(bank.face));
}

TEST(QuilletFace, PictureSitsCentredAndUnsmoothedAtRatioTwo)
{
    Pot pot;
    const QPixmap picture = checkered(64, 2.0);
    pot.face.picture(picture);
    const QImage image = rendered(pot.face, 2.0);
    const QImage source = picture.toImage();

    const int offset = 2 * ((pot.face.width() - 32) / 2);
    int mismatches = 0;
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            mismatches += image.pixelColor(offset + x, offset + y) != source.pixelColor(x, y);
    EXPECT_EQ(mismatches, 0);
}

TEST(QuilletFace, PictureThatFitsIsDrawnAtItsOwnSize)
{
    Pot pot;
    pot.face.picture(framedInClear(32, 6, Qt::blue));
    const QImage image = rendered(pot.face);

    EXPECT_EQ(widthOfColour(image, image.height() / 2, Qt::blue), 20);
}

TEST(QuilletFace, ClearMarginMayHangOverANarrowFace)
{
    // The hand: a 32 pixel picture on a face 25 pixels wide.
    Quillet hand;
    hand.resize(25, 37);
    hand.picture(framedInClear(32, 6, Qt::blue));
    const QImage image = rendered(hand);

    EXPECT_EQ(widthOfColour(image, image.height() / 2, Qt::blue), 20);
}

TEST(QuilletFace, PictureTooLargeForTheFaceShrinksToFit)
{
    Pot pot;
    pot.face.picture(framedInClear(64, 0, Qt::blue));
    const QImage image = rendered(pot.face);

    const int across = widthOfColour(image, image.height() / 2, Qt::blue);
    EXPECT_GE(across, pot.face.width() - 2);
    EXPECT_LE(across, pot.face.width());
}

TEST(QuilletFace, PlainButtonGreysItsCaptionWhileOffButAPotKeepsItsCount)
{
    Quillet button;
    button.resize(120, 23);
    button.backcolor(Face);
    button.forecolor(Qt::black);
    button.caption("Undo last move");
    const QImage on = rendered(button);
    button.enabled(false);
    EXPECT_NE(rendered(button), on);

    Pot bank;
    bank.face.picture(framedInClear(32, 2, Qt::green));
    bank.face.forecolor(Qt::white);
    bank.face.caption("48");
    const QImage enabledBank = rendered(bank.face);
    bank.face.enabled(false);
    EXPECT_EQ(rendered(bank.face), enabledBank);
}

TEST(QuilletPlace, MoveTakesTwipsAndLeftTopGiveThemBack)
{
    QWidget surface;
    Quillet pot(&surface);
    pot.Move(1530, 1785, 555, 555);

    EXPECT_EQ(pot.geometry(), Twips::toPixels(1530, 1785, 555, 555));
    EXPECT_FLOAT_EQ(pot.Left(), 1530);
    EXPECT_FLOAT_EQ(pot.Top(), 1785);

    // The hand goes where a letter stands, in twips that need not fall on a pixel.
    pot.Left(1642);
    pot.Top(1075);
    EXPECT_FLOAT_EQ(pot.Left(), 1642);
    EXPECT_FLOAT_EQ(pot.Top(), 1075);
    EXPECT_EQ(pot.pos(), QPoint(Twips::toPixels(1642), Twips::toPixels(1075)));
    EXPECT_EQ(pot.size(), QSize(Twips::toPixels(555), Twips::toPixels(555)));
}

TEST(QuilletPlace, PlacedByPixelsItTellsTheTwipsOfThePixels)
{
    QWidget surface;
    Quillet pot(&surface);
    pot.Move(1530, 1785, 555, 555);
    pot.move(10, 20);

    EXPECT_FLOAT_EQ(pot.Left(), Twips::fromPixels(10));
    EXPECT_FLOAT_EQ(pot.Top(), Twips::fromPixels(20));
}

TEST(QuilletPlace, VisibleIsTheFacesOwnSettingEvenOnAHiddenWindow)
{
    QWidget surface;
    Quillet hand(&surface);

    EXPECT_TRUE(hand.Visible());
    hand.Visible(false);
    EXPECT_FALSE(hand.Visible());
    surface.show();
    EXPECT_FALSE(hand.isVisible());
    hand.Visible(true);
    EXPECT_TRUE(hand.isVisible());
}
