#pragma once

#include <QAccessible>
#include <QAccessibleWidget>

#include <cstdint>
#include <unordered_map>

class UserControl1;

// The list as a screen reader sees it: a list whose children are its items, though
// the items are only pixels on the canvas.
class ListAccessible : public QAccessibleWidget {
public:
    explicit ListAccessible(UserControl1* list);
    ~ListAccessible() override;
    ListAccessible(const ListAccessible&) = delete;
    ListAccessible& operator=(const ListAccessible&) = delete;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;

    // For QAccessible::installFactory.
    static QAccessibleInterface* create(const QString& className, QObject* object);

    // The store changed under a screen reader: a row it holds keeps following its
    // item, so that a row heard of as new reads as that item, also after more came.
    // An item was stored at `item`, those from there on moved down one.
    void itemInserted(int32_t item);
    // The item is gone, those below it moved up one.
    void itemRemoved(int32_t item);
    // Every item is another now: the list was cleared or sorted.
    void itemsReset();

private:
    UserControl1* list() const;

    // Item interfaces, made when first asked for and kept while the list lives.
    mutable std::unordered_map<int32_t, QAccessible::Id> m_rows;
};
