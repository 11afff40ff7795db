#include "moveslist/usercontrol1.h"

#include "common/key_numbers.h"
#include "common/mouse_numbers.h"
#include "moveslist/picturebox.h"

#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>

namespace {

// A handler that fails ends there: the failure goes no further than the event.
template <typename Handler> void guarded(Handler&& handler)
{
    try {
        handler();
    } catch (const std::exception&) {
    }
}

bool isTab(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
}

} // namespace

// The children's events reach the handlers here. Moves over the canvas, the text box
// and the scroll bar go no further: only the button and the bare surface pass theirs
// on to the host.
void UserControl1::wireEvents()
{
    setMouseTracking(true);
    Picture1->setMouseTracking(true);
    command1->setMouseTracking(true);
    for (QWidget* child : {static_cast<QWidget*>(Picture1), static_cast<QWidget*>(Text1),
                           static_cast<QWidget*>(VScroll1), static_cast<QWidget*>(command1)})
        child->setAttribute(Qt::WA_NoMousePropagation);
    // Working the bar of an open drop-down leaves the focus, and so the list, where
    // they are.
    VScroll1->setFocusPolicy(Qt::NoFocus);
    Picture1->installEventFilter(this);
    command1->installEventFilter(this);
    Text1->installEventFilter(this);
}

bool UserControl1::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == Picture1)
        return picture1Event(event);
    if (watched == command1)
        return command1Event(event);
    if (watched == Text1 && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        int16_t KeyCode = keyNumber(*key);
        int16_t Shift = shiftNumber(key->modifiers());
        guarded([&] { Text1_KeyDown(KeyCode, Shift); });
    }
    return QWidget::eventFilter(watched, event);
}

bool UserControl1::picture1Event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonRelease: {
        MouseArguments a = mouseArguments(*static_cast<QMouseEvent*>(event), false);
        guarded([&] { Picture1_MouseUp(a.Button, a.Shift, a.X, a.Y); });
        return true;
    }
    case QEvent::MouseMove: {
        MouseArguments a = mouseArguments(*static_cast<QMouseEvent*>(event), true);
        guarded([&] { Picture1_MouseMove(a.Button, a.Shift, a.X, a.Y); });
        return true;
    }
    case QEvent::KeyPress: {
        const auto* key = static_cast<QKeyEvent*>(event);
        int16_t KeyCode = keyNumber(*key);
        int16_t Shift = shiftNumber(key->modifiers());
        guarded([&] { Picture1_KeyDown(KeyCode, Shift); });
        if (std::optional<int16_t> ascii = keyAscii(*key))
            guarded([&] { Picture1_KeyPress(*ascii); });
        // Tab is a key like any other for the host, as on the head, and then moves the
        // focus on as it does everywhere.
        return !isTab(*key);
    }
    case QEvent::KeyRelease: {
        const auto* key = static_cast<QKeyEvent*>(event);
        // A held key goes down again and again, and comes up once.
        if (key->isAutoRepeat())
            return true;
        int16_t KeyCode = keyNumber(*key);
        int16_t Shift = shiftNumber(key->modifiers());
        guarded([&] { Picture1_KeyUp(KeyCode, Shift); });
        return true;
    }
    case QEvent::FocusOut: {
        // Another window taking over, or a pop-up, is no loss to another control: the
        // open list part stays open until the focus goes elsewhere in this window.
        const Qt::FocusReason why = static_cast<QFocusEvent*>(event)->reason();
        if (why != Qt::ActiveWindowFocusReason && why != Qt::PopupFocusReason)
            guarded([&] { Picture1_LostFocus(); });
        return false;
    }
    default:
        return false;
    }
}

bool UserControl1::command1Event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonRelease: {
        MouseArguments a = mouseArguments(*static_cast<QMouseEvent*>(event), false);
        guarded([&] { command1_MouseUp(a.Button, a.Shift, a.X, a.Y); });
        return true;
    }
    case QEvent::MouseMove: {
        MouseArguments a = mouseArguments(*static_cast<QMouseEvent*>(event), true);
        guarded([&] { command1_MouseMove(a.Button, a.Shift, a.X, a.Y); });
        return true;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return true;
    default:
        return false;
    }
}

void UserControl1::mouseMoveEvent(QMouseEvent* event)
{
    MouseArguments a = mouseArguments(*event, true);
    // The surface's own coordinates start inside its border.
    a.X = float((event->position().x() - borderPixels()) * screenTwipsX());
    a.Y = float((event->position().y() - borderPixels()) * screenTwipsY());
    guarded([&] { UserControl_MouseMove(a.Button, a.Shift, a.X, a.Y); });
}

// X and Y in twips, in the coordinates of the widget that got the event. A move gives
// every button held, a release the one let go.
UserControl1::MouseArguments UserControl1::mouseArguments(const QMouseEvent& event, bool move) const
{
    return {buttonNumber(move ? event.buttons() : Qt::MouseButtons(event.button())),
            shiftNumber(event.modifiers()), float(event.position().x() * screenTwipsX()),
            float(event.position().y() * screenTwipsY())};
}
