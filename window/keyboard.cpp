#include "window/form1.h"

#include "common/key_numbers.h"

#include <QApplication>
#include <QKeyEvent>

// The window sees every key press before the control that has the focus, and leaves
// the key to that control as well: at the start the arrows walk the selection and
// move the slider.
bool Form1::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    auto* target = qobject_cast<QWidget*>(watched);
    if (!target || target->window() != this)
        return false;
    // A key that the focused control passes up to its parents is the same press.
    QWidget* focus = QApplication::focusWidget();
    if (target != (focus && focus->window() == this ? focus : this))
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const int16_t before = m_game.state().KeyboardPot;
    m_game.Form_KeyDown(keyNumber(*key), 0);
    describeSelection(m_game.state().KeyboardPot != before);
    // F1 is the help key of every desktop; the walk has counted it like any key.
    if (key->key() == Qt::Key_F1 && !key->isAutoRepeat())
        Helpx_Click();
    return false;
}
