#pragma once

#include <QAccessibleInterface>
#include <QPointer>

#include <cstdint>

class UserControl1;

// One item of the list for a screen reader: its text, and what its host says the
// row is, read afresh at every question.
class ListRowAccessible : public QAccessibleInterface {
public:
    // item counts from 1, as the list's store does.
    ListRowAccessible(UserControl1* list, int32_t item);

    int32_t item() const { return m_row; }
    // Items above it came or went: the row follows its item to its new number.
    void setItem(int32_t item) { m_row = item; }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* focusChild() const override { return nullptr; }
    QString text(QAccessible::Text t) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;

private:
    QPointer<UserControl1> m_list;
    int32_t m_row;
};
