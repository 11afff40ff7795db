#include "list_events.h"

#include "list_probe.h"

ListEvents::ListEvents(UserControl1& list)
{
    QObject::connect(&list, &UserControl1::MouseUp,
                     [this](int16_t& b, int16_t& s, float& x, float& y) {
                         MouseUp.push_back({b, s, x, y});
                         // A host may write to what it is given; the list must not care.
                         b = s = 99;
                     });
    QObject::connect(&list, &UserControl1::MouseMove,
                     [this](int16_t& b, int16_t& s, float& x, float& y) {
                         MouseMove.push_back({b, s, x, y});
                         b = s = 99;
                     });
    QObject::connect(&list, &UserControl1::KeyDown, [this](int16_t& k, int16_t& s) {
        KeyDown.push_back({k, s});
        k = 0;
    });
    QObject::connect(&list, &UserControl1::KeyPress, [this](int16_t& k) { KeyPress.push_back(k); });
    QObject::connect(&list, &UserControl1::KeyUp, [this](int16_t& k, int16_t& s) {
        KeyUp.push_back({k, s});
    });
    QObject::connect(&list, &UserControl1::Click, [this] { ++Click; });
    QObject::connect(&list, &UserControl1::MouseDown,
                     [this](int16_t&, int16_t&, float&, float&) { ++MouseDown; });
}

QPoint rowPoint(const UserControl1& list, int row)
{
    return QPoint(30, pixelsDown((row + 0.5) * list.state().RowTwips));
}
