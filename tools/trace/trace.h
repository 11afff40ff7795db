#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <iosfwd>
#include <string>

class Form1;
class Quillet;
class QWidget;

// Plays a script of user actions on the real main window, one a line, with real
// mouse and key events, and prints what the user can see after each.
class Trace {
public:
    Trace(Form1& form, std::ostream& out);

    void printStart();
    // Returns false for a line that is no action (it is reported and skipped); a line
    // beginning with # is a comment of the script and prints nothing.
    bool perform(const QString& line);

private:
    bool act(const QString& verb, int argument, bool& ignored);
    bool clickWidget(QWidget* widget, int button);
    bool pressWidget(QWidget* widget, int button);
    bool releaseWidget(QWidget* widget, int button);
    bool moveOver(QWidget* widget);
    enum KeyStroke { KeyClick, KeyPress, KeyRelease };
    void pressKey(int16_t code, KeyStroke stroke);
    QWidget* keyTarget() const;
    std::string focused() const;
    void dragSlider(int value);
    void releasePause();
    void printState(const QString& heading);
    void printControls();

    Quillet* Pot(int slot) const;
    template <typename T> T* child(const char* name) const;

    Form1& m_form;
    std::ostream& m_out;
    QStringList m_pauses;
    bool m_controlsWanted = false;
};
