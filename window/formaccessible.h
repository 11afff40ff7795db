#pragma once

#include <QAccessibleWidget>

class Form1;

// The main window for a screen reader: a frame with only the controls on the screen.
class FormAccessible : public QAccessibleWidget {
public:
    explicit FormAccessible(Form1* form);

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

    // For QAccessible::installFactory.
    static QAccessibleInterface* create(const QString& className, QObject* object);

private:
    QList<QAccessibleInterface*> shown() const;
};
