#pragma once

#include <QAccessibleWidget>

class Quillet;

// A face as a screen reader sees it: a button it can press, a label, or a picture,
// named by its accessible name or else by its caption.
class QuilletAccessible : public QAccessibleWidget {
public:
    explicit QuilletAccessible(Quillet* face);

    QAccessible::Role role() const override;
    QString text(QAccessible::Text t) const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;

    // For QAccessible::installFactory.
    static QAccessibleInterface* create(const QString& className, QObject* object);

private:
    Quillet* face() const;
    bool pressable() const;
};
