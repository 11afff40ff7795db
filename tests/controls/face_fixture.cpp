#include "face_fixture.h"

#include "controls/twips.h"

#include <QMouseEvent>
#include <QTest>

Surface::Surface()
{
    setMouseTracking(true);
}

void Surface::mouseMoveEvent(QMouseEvent* event)
{
    moves.push_back(event->position().toPoint());
}

void FaceFixture::SetUp()
{
    surface = new Surface;
    surface->resize(Twips::toPixels(3000), Twips::toPixels(1500));
    left = new Quillet(surface);
    left->Move(300, 300, 555, 555);
    right = new Quillet(surface);
    right->Move(1200, 300, 555, 555);
    record(left, leftRaised);
    record(right, rightRaised);
    surface->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(surface));
}

void FaceFixture::TearDown()
{
    delete surface;
}

void FaceFixture::record(Quillet* face, std::vector<Raised>& into)
{
    const auto keep = [&into](const char* event) {
        return [&into, event](int16_t Button, int16_t Shift, float X, float Y) {
            into.push_back({event, Button, Shift, X, Y});
        };
    };
    QObject::connect(face, &Quillet::MouseDown, face, keep("MouseDown"));
    QObject::connect(face, &Quillet::MouseUp, face, keep("MouseUp"));
    QObject::connect(face, &Quillet::MouseMove, face, keep("MouseMove"));
    QObject::connect(face, &Quillet::Click, face, [&into] {
        into.push_back({"Click", 0, 0, 0, 0});
    });
}

float FaceFixture::twips(int pixels)
{
    return static_cast<float>(pixels) * Twips::perPixel();
}
