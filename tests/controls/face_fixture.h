#pragma once

#include "controls/quillet.h"

#include <QPoint>
#include <QString>
#include <QWidget>

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

// One event a face raised, as its handler was given it.
struct Raised {
    QString event;
    int16_t Button = 0;
    int16_t Shift = 0;
    float X = 0;
    float Y = 0;
};

// The window's surface under the faces: it keeps the moves that reach it.
class Surface : public QWidget {
public:
    Surface();
    std::vector<QPoint> moves;

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
};

// Two faces side by side on a shown surface, every event they raise recorded in order.
class FaceFixture : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    void record(Quillet* face, std::vector<Raised>& into);
    // Where a point of a face lies, in twips within that face.
    static float twips(int pixels);

    Surface* surface = nullptr;
    Quillet* left = nullptr;
    Quillet* right = nullptr;
    std::vector<Raised> leftRaised;
    std::vector<Raised> rightRaised;
};
