#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <iosfwd>

class Form1;
class Quillet;
class QWidget;

// Plays a script of user actions on the real main window, one a line, with real
// mouse and key events, and prints what the user can see after each.
class Trace {
public:
    Trace(Form1& form, std::ostream& out);

    void PrintStart();
    // Returns false for a line that is no action (it is reported and skipped).
    bool Perform(const QString& line);

private:
    bool Act(const QString& verb, int argument, bool& ignored);
    bool ClickWidget(QWidget* widget, int button);
    bool PressWidget(QWidget* widget, int button);
    bool ReleaseWidget(QWidget* widget, int button);
    bool MoveOver(QWidget* widget);
    void PressKey(int16_t code);
    void DragSlider(int value);
    void ReleasePause();
    void PrintState(const QString& heading);

    Quillet* Pot(int slot) const;
    template <typename T> T* Child(const char* name) const;

    Form1& form_;
    std::ostream& out_;
    QStringList pauses_;
};
