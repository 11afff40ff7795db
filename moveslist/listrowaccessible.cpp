#include "moveslist/listrowaccessible.h"

#include "moveslist/usercontrol1.h"

#include <QWidget>
#include <QWindow>

ListRowAccessible::ListRowAccessible(UserControl1* list, int32_t item) : m_list(list), m_row(item)
{}

bool ListRowAccessible::isValid() const
{
    return m_list != nullptr && m_row <= m_list->state().ItemCount;
}

QWindow* ListRowAccessible::window() const
{
    return m_list != nullptr ? m_list->window()->windowHandle() : nullptr;
}

QAccessibleInterface* ListRowAccessible::parent() const
{
    return m_list != nullptr ? QAccessible::queryAccessibleInterface(m_list.data()) : nullptr;
}

QString ListRowAccessible::text(QAccessible::Text t) const
{
    if (t != QAccessible::Name || !isValid())
        return {};
    return m_list->rowAccessibleName(m_row);
}

QRect ListRowAccessible::rect() const
{
    if (!isValid())
        return {};
    const QRect local = m_list->itemRect(m_row);
    return local.isEmpty() ? QRect() : QRect(m_list->mapToGlobal(local.topLeft()), local.size());
}

QAccessible::State ListRowAccessible::state() const
{
    QAccessible::State state;
    state.selectable = true;
    if (!isValid() || m_list->itemRect(m_row).isEmpty()) {
        state.invisible = true;
        state.offscreen = true;
    }
    return state;
}
