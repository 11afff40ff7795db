#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class UserControl1;

// A window with one list control in list mode and one in drop-down mode, filled with
// rows in several colours and fonts, and buttons for what the control can be asked.
// The buttons act on the list picked under "Acts on".
class DemoWindow : public QWidget {
    Q_OBJECT

public:
    explicit DemoWindow(QWidget* parent = nullptr);

    // Opens the drop-down on `item`, as a user would see it picked.
    void showInDropDown(int item);

private:
    void createLists();
    void createCommands();
    void fill(UserControl1& list, int rows);
    void listen(UserControl1& list, const QString& name);
    UserControl1& target() const;
    // Runs a request on the list; what the list refuses is said on the status line.
    template <typename Request> void ask(const QString& what, Request&& request);
    void say(const QString& text);

    void sortUp();
    void sortDown();
    void find();
    void showItem();
    void updateItem();
    void removeItem();

    UserControl1* plainList = nullptr;
    UserControl1* dropDown = nullptr;
    QComboBox* actsOn = nullptr;
    QLineEdit* pattern = nullptr;
    QCheckBox* backward = nullptr;
    QCheckBox* caseCounts = nullptr;
    QSpinBox* itemNumber = nullptr;
    QLineEdit* newText = nullptr;
    QComboBox* newColour = nullptr;
    QLabel* status = nullptr;
    int lastFound = 0;
};
