#include "moveslist/listaccessible.h"

#include "moveslist/listrowaccessible.h"
#include "moveslist/usercontrol1.h"

ListAccessible::ListAccessible(UserControl1* list) : QAccessibleWidget(list, QAccessible::List) {}

ListAccessible::~ListAccessible()
{
    for (const auto& [item, id] : m_rows)
        QAccessible::deleteAccessibleInterface(id);
}

UserControl1* ListAccessible::list() const
{
    return static_cast<UserControl1*>(widget());
}

int ListAccessible::childCount() const
{
    return list()->state().ItemCount;
}

QAccessibleInterface* ListAccessible::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    const int32_t item = index + 1;
    const auto found = m_rows.find(item);
    if (found != m_rows.end())
        return QAccessible::accessibleInterface(found->second);
    const QAccessible::Id id =
        QAccessible::registerAccessibleInterface(new ListRowAccessible(list(), item));
    m_rows.emplace(item, id);
    return QAccessible::accessibleInterface(id);
}

int ListAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    // Only our own rows are items with this list as their parent; the child widgets
    // have other roles.
    if (child == nullptr || child->role() != QAccessible::ListItem || child->parent() != this ||
        !child->isValid())
        return -1;
    return static_cast<const ListRowAccessible*>(child)->item() - 1;
}

QAccessibleInterface* ListAccessible::childAt(int x, int y) const
{
    const int32_t item = list()->itemAt(list()->mapFromGlobal(QPoint(x, y)));
    return item > 0 ? child(item - 1) : nullptr;
}

void ListAccessible::itemInserted(int32_t item)
{
    std::unordered_map<int32_t, QAccessible::Id> moved;
    for (const auto& [row, id] : m_rows) {
        const int32_t now = row >= item ? row + 1 : row;
        static_cast<ListRowAccessible*>(QAccessible::accessibleInterface(id))->setItem(now);
        moved.emplace(now, id);
    }
    m_rows = std::move(moved);
}

void ListAccessible::itemRemoved(int32_t item)
{
    std::unordered_map<int32_t, QAccessible::Id> moved;
    for (const auto& [row, id] : m_rows) {
        if (row == item) {
            QAccessible::deleteAccessibleInterface(id);
            continue;
        }
        const int32_t now = row > item ? row - 1 : row;
        static_cast<ListRowAccessible*>(QAccessible::accessibleInterface(id))->setItem(now);
        moved.emplace(now, id);
    }
    m_rows = std::move(moved);
}

void ListAccessible::itemsReset()
{
    for (const auto& [row, id] : m_rows)
        QAccessible::deleteAccessibleInterface(id);
    m_rows.clear();
}

namespace {

// The canvas that takes the keyboard's focus for the list: a screen reader told of the
// focus there hears the list's own name and role, not a nameless part.
class CanvasAccessible : public QAccessibleWidget {
public:
    explicit CanvasAccessible(QWidget* canvas) : QAccessibleWidget(canvas, QAccessible::List) {}

    QString text(QAccessible::Text t) const override
    {
        if (QAccessibleInterface* list = parent())
            return list->text(t);
        return QAccessibleWidget::text(t);
    }
};

} // namespace

QAccessibleInterface* ListAccessible::create(const QString& className, QObject* object)
{
    if (className == QLatin1String("PictureBox") && object->objectName() == u"Picture1" &&
        qobject_cast<UserControl1*>(object->parent()))
        return new CanvasAccessible(static_cast<QWidget*>(object));
    if (className != QLatin1String("UserControl1"))
        return nullptr;
    auto* list = qobject_cast<UserControl1*>(object);
    return list != nullptr ? new ListAccessible(list) : nullptr;
}
