#include "common/twips.h"
#include "controls/quillet.h"

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
        place(0, 0, 555, 555);
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

// Raised, each edge is one pixel of its own colour at ratio 1 and 2. Held down, the
// edges change places; turned off with the button still down, the face comes back up.
TEST(QuilletFace, EdgesSinkWhileHeld)
{
    QWidget surface;
    auto* pot = new Pot(&surface);
    for (int ratio : {1, 2}) {
        const QImage image = rendered(*pot, ratio);
        const int w = image.width(), h = image.height();
        EXPECT_EQ(image.pixelColor(w / 2, ratio - 1), TopEdge);
        EXPECT_EQ(image.pixelColor(ratio - 1, h / 2), LeftEdge);
        EXPECT_EQ(image.pixelColor(w - ratio, h / 2), RightEdge);
        EXPECT_EQ(image.pixelColor(w / 2, h - ratio), BottomEdge);
        EXPECT_EQ(image.pixelColor(w / 2, ratio), Face);
        EXPECT_EQ(image.pixelColor(w - 1 - ratio, h - 1 - ratio), Face);
        // The shadow edges own the two far corners, as on a raised key; the left edge
        // owns the near one.
        EXPECT_EQ(image.pixelColor(0, 0), LeftEdge);
        EXPECT_EQ(image.pixelColor(w - 1, 0), RightEdge);
        EXPECT_EQ(image.pixelColor(0, h - 1), BottomEdge);
    }
    surface.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&surface));
    QTest::mousePress(pot, Qt::LeftButton);
    const QImage held = rendered(*pot);
    EXPECT_EQ(held.pixelColor(pot->width() / 2, 0), BottomEdge);
    EXPECT_EQ(held.pixelColor(0, pot->height() / 2), RightEdge);
    pot->enabled(false);
    pot->enabled(true);
    EXPECT_EQ(rendered(*pot).pixelColor(pot->width() / 2, 0), TopEdge);
    QTest::mouseRelease(pot, Qt::LeftButton);
}

// The Tag is the caller's and leaves the face alone. A plain button greys its caption
// while off; a bank keeps its count readable.
TEST(QuilletFace, OnlyAPlainButtonGreysItsCaption)
{
    Pot bank;
    bank.picture(framedInClear(32, 2));
    const QImage bare = rendered(bank);
    bank.forecolor(Qt::black);
    bank.caption("48");
    const QImage numbered = rendered(bank);
    EXPECT_NE(numbered, bare);
    bank.Tag("12");
    EXPECT_EQ(bank.Tag(), "12");
    bank.enabled(false);
    EXPECT_EQ(rendered(bank), numbered);
    bank.caption("");
    EXPECT_EQ(rendered(bank), bare);

    // Without smoothing every pixel of the text is the caption's colour: off, it is
    // halfway between the text and the face.
    Quillet button;
    button.resize(120, 23);
    QFont plain = button.font();
    plain.setStyleStrategy(QFont::NoAntialias);
    button.setFont(plain);
    button.forecolor(QColor(0, 0, 0));
    button.backcolor(QColor(200, 100, 50));
    button.caption("Undo last move");
    const auto countOf = [](const QImage& image, const QColor& colour) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == colour;
        return count;
    };
    const int inked = countOf(rendered(button), Qt::black);
    ASSERT_GT(inked, 20);
    button.enabled(false);
    EXPECT_EQ(countOf(rendered(button), QColor(100, 50, 25)), inked);
}

// A picture read from one face can be set on another. The hand, 32 pixels on a face 25
// wide, lets its clear margin hang over the edges; only a larger visible part shrinks.
TEST(QuilletFace, PicturesShrinkOnlyWhenTheirVisiblePartIsTooLarge)
{
    Quillet hand, pot;
    hand.resize(25, 37);
    pot.picture(framedInClear(32, 6));
    hand.picture(pot.picture());
    EXPECT_EQ(hand.picture().cacheKey(), pot.picture().cacheKey());
    EXPECT_EQ(blueAcrossTheMiddle(rendered(hand)), 20);

    // A picture with no clear part at all fills the face it is too large for, up to
    // its one opaque edge, and stays in the middle of a taller face.
    pot.place(0, 0, 555, 555);
    pot.borderleft(Qt::transparent);
    pot.bordertop(Qt::transparent);
    pot.borderbottom(Qt::transparent);
    QPixmap solid(64, 64);
    solid.fill(Qt::blue);
    ASSERT_FALSE(solid.hasAlphaChannel());
    pot.picture(solid);
    EXPECT_EQ(blueAcrossTheMiddle(rendered(pot)), pot.width() - 1);
    for (const bool tall : {true, false}) {
        pot.resize(tall ? QSize(37, 50) : QSize(50, 37));
        const QImage face = rendered(pot);
        int first = 0;
        while (first < 50 &&
               face.pixelColor(tall ? QPoint(18, first) : QPoint(first, 18)) != Qt::blue)
            ++first;
        EXPECT_EQ(first, (50 - 37) / 2) << (tall ? "tall" : "wide");
    }
    pot.place(0, 0, 555, 555);
    // Visible only in its first column, or in a short stroke on its first or last row,
    // it still shrinks to bring that in, to the face's end (the clear edges let it show).
    for (const QRect line : {QRect(0, 0, 1, 64), QRect(24, 0, 16, 1), QRect(24, 63, 16, 1)}) {
        QImage edge(64, 64, QImage::Format_ARGB32);
        edge.fill(Qt::transparent);
        QPainter(&edge).fillRect(line, Qt::blue);
        pot.picture(QPixmap::fromImage(edge));
        const QImage face = rendered(pot);
        int bluish = 0;
        for (int y = 0; y < face.height(); ++y)
            for (int x = 0; x < face.width(); ++x) {
                const QColor c = face.pixelColor(x, y);
                bluish += c.blue() > c.red() + 40;
            }
        EXPECT_GT(bluish, 0) << line.x() << "," << line.y() << " " << line.width();
    }
}

// The hand goes where a letter stands, in twips that need not fall on a pixel; moved by
// pixels behind its back, it tells the twips of those pixels.
TEST(QuilletPlace, PlaceRoundTripsInTwips)
{
    Pot pot;
    pot.place(1530, 1785, 555, 555);
    EXPECT_EQ(pot.geometry(), Twips::toPixels(1530, 1785, 555, 555));
    pot.Left(1642);
    pot.Top(1075);
    EXPECT_FLOAT_EQ(pot.Left(), 1642);
    EXPECT_FLOAT_EQ(pot.Top(), 1075);
    EXPECT_EQ(pot.pos(), QPoint(Twips::toPixels(1642), Twips::toPixels(1075)));
    pot.move(10, 20);
    EXPECT_FLOAT_EQ(pot.Left(), Twips::fromPixels(10));
    EXPECT_FLOAT_EQ(pot.Top(), Twips::fromPixels(20));
}
