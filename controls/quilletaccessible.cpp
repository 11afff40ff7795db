#include "controls/quilletaccessible.h"

#include "controls/quillet.h"

QuilletAccessible::QuilletAccessible(Quillet* face) : QAccessibleWidget(face) {}

Quillet* QuilletAccessible::face() const
{
    return static_cast<Quillet*>(widget());
}

// A bar is a button only while it takes clicks; a face that is off can be read but
// not pressed.
bool QuilletAccessible::pressable() const
{
    const Quillet::Access kind = face()->access();
    return kind == Quillet::Access::Button || (kind == Quillet::Access::Bar && face()->isEnabled());
}

QAccessible::Role QuilletAccessible::role() const
{
    switch (face()->access()) {
    case Quillet::Access::Button:
        return QAccessible::PushButton;
    case Quillet::Access::Label:
        return QAccessible::StaticText;
    case Quillet::Access::Bar:
        return face()->isEnabled() ? QAccessible::PushButton : QAccessible::StaticText;
    case Quillet::Access::Picture:
        break;
    }
    return QAccessible::Graphic;
}

QString QuilletAccessible::text(QAccessible::Text t) const
{
    if (t == QAccessible::Name && face()->accessibleName().isEmpty())
        return face()->caption();
    return QAccessibleWidget::text(t);
}

QStringList QuilletAccessible::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (pressable())
        names.prepend(pressAction());
    return names;
}

// The press comes after the reader's call has returned, as a button's animated click
// does: a move it starts may wait in a pause for the reader's next press.
void QuilletAccessible::doAction(const QString& actionName)
{
    if (actionName == pressAction()) {
        if (pressable())
            QMetaObject::invokeMethod(face(), &Quillet::press, Qt::QueuedConnection);
        return;
    }
    QAccessibleWidget::doAction(actionName);
}

QAccessibleInterface* QuilletAccessible::create(const QString& className, QObject* object)
{
    if (className != QLatin1String("Quillet"))
        return nullptr;
    auto* face = qobject_cast<Quillet*>(object);
    return face != nullptr ? new QuilletAccessible(face) : nullptr;
}
