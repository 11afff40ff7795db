#include "moveslist/listrowaccessible.h"

#include "moveslist/usercontrol1.h"

#include <QWidget>
#include <QWindow>

ListRowAccessible::ListRowAccessible(UserControl1* list, int32_t item) : list(list), row(item) {}

bool ListRowAccessible::isValid() const
{
    return list != nullptr && row <= list->state().ItemCount;
}

QWindow* ListRowAccessible::window() const
{
    return list != nullptr ? list->window()->windowHandle() : nullptr;
}

QAccessibleInterface* ListRowAccessible::parent() const
{
    return list != nullptr ? QAccessible::queryAccessibleInterface(list.data()) : nullptr;
}

QString ListRowAccessible::text(QAccessible::Text t) const
{
    if (t != QAccessible::Name || !isValid())
        return {};
    return list->rowAccessibleName(row);
}

QRect ListRowAccessible::rect() const
{
    if (!isValid())
        return {};
    const QRect local = list->itemRect(row);
    return local.isEmpty() ? QRect() : QRect(list->mapToGlobal(local.topLeft()), local.size());
}

QAccessible::State ListRowAccessible::state() const
{
    QAccessible::State state;
    state.selectable = true;
    if (!isValid() || list->itemRect(row).isEmpty()) {
        state.invisible = true;
        state.offscreen = true;
    }
    return state;
}
