#pragma once

#include "moveslist/usercontrol1.h"

#include <QPoint>

#include <vector>

// What a host hears from a list: every event with its arguments, in order.
class ListEvents {
public:
    struct Mouse {
        int Button;
        int Shift;
        float X;
        float Y;
    };
    struct Key {
        int KeyCode;
        int Shift;
    };

    explicit ListEvents(UserControl1& list);

    std::vector<Mouse> MouseUp;
    std::vector<Mouse> MouseMove;
    std::vector<Key> KeyDown;
    std::vector<int> KeyPress;
    std::vector<Key> KeyUp;
    int Click = 0;
    int MouseDown = 0;
};

// The middle of canvas row `row`, 30 pixels in.
QPoint rowPoint(const UserControl1& list, int row);
