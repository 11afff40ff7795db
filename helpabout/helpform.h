#pragma once

#include <QWidget>

class QPushButton;
class WebBrowser;

// The help window: the game's page beside the board, without stopping the game.
// Closing it from its frame destroys it; "Exit" only hides it.
class HelpForm : public QWidget {
    Q_OBJECT

public:
    explicit HelpForm(QWidget* parent = nullptr);

    // The full path of the page, written before each showing.
    void Tag(const QString& path);
    QString Tag() const;

    void Form_Activate();
    void Form_Resize();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    QPushButton* addButton(const QString& text, const QRect& place);
    void centreOnScreen();

    QPushButton* Command1;
    QPushButton* Command2;
    QPushButton* Command3;
    WebBrowser* WebBrowser1;
    QString m_tag;
};
