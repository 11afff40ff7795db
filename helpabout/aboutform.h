#pragma once

#include <QDialog>

class QLabel;
class QPushButton;
class QTextEdit;

// The small modal window that names the game and its version. Any of four ways
// closes it: "OK", a press on its surface, a release over the text, the frame.
class AboutForm : public QDialog {
    Q_OBJECT

public:
    explicit AboutForm(QWidget* parent = nullptr);

    // Shows a new about window over the parent and returns when it is gone.
    static void showModal(QWidget* parent);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AboutOk_Click();
    void Form_MouseDown();
    void Text1_MouseUp();
    void unload();

    QPushButton* AboutOk;
    QLabel* Picture1;
    QLabel* Label1;
    QTextEdit* Text1;
};
