#pragma once

#include "engine/game.h"
#include "window/form1_layout.h"

#include <QPointer>
#include <QWidget>

#include <array>
#include <functional>

class QGroupBox;
class QLabel;
class QLineEdit;
class QSlider;
class Quillet;
class UserControl1;
class HelpForm;
namespace Marlets {
class Marlet;
}

// The main window: it owns the game and every control round the board, shows the
// game through GameScreen and hands each user event to the game's handler.
class Form1 : public QWidget, public GameScreen {
    Q_OBJECT
public:
    explicit Form1(QWidget* parent = nullptr);
    ~Form1() override;

    // The game behind the window. The window only reads its state; tools and tests
    // reach its handlers here.
    Game& game() { return m_game; }
    const Game& game() const { return m_game; }

    // Run at every wait of a pause instead of blocking on the event queue; the trace
    // tool clicks Mess from here.
    void setPauseHook(std::function<void()> hook) { m_pauseHook = std::move(hook); }

    // GameScreen
    void DrawPot(int16_t Pot, const std::string& Text) override;
    void DrawPotHot(int16_t Pot, const std::string& Text) override;
    std::string potTag(int16_t index) const override;
    void setPotEnabled(int16_t slot, bool enabled) override;
    void setMessCaption(const std::string& caption) override;
    void setMessEnabled(bool enabled) override;
    void showMess() override;
    void setUndoxEnabled(bool enabled) override;
    void setCommandFrameEnabled(bool enabled) override;
    void setPausexCaption(const std::string& caption) override;
    void setStartBeadsEnabled(bool enabled) override;
    int16_t startBeadsValue() const override;
    void setStartBeadsValue(int16_t value) override;
    void setLabel2Caption(const std::string& caption) override;
    void setHandLeft(float left) override;
    void setHandTop(float top) override;
    void setHandVisible(bool visible) override;
    bool handVisible() const override;
    float potNameLeft(int16_t index) const override;
    float potNameTop(int16_t index) const override;
    void setTotalBCaption(int16_t index, const std::string& caption) override;
    void setUpMovesList() override;
    void movesListAdditem(std::string& s, int16_t itemx, int16_t& ipic, std::string& ItemFont,
                          int32_t& ItemColor) override;
    void movesListAdditem(std::string& s, int16_t itemx) override;
    void movesListClear() override;
    void scoreWin(bool value) override;
    void scoreDraw(bool value) override;
    void runPendingEvents() override;

    // Command panel: the commands that do not touch the game
    void Scorex_MouseUp(int16_t Button, int16_t Shift, float X, float Y);
    void Helpx_Click();
    void Aboutx_Click();
    void Quitx_Click();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fitTotal(QLabel* total);
    void describePot(int16_t Slot);
    void describeTotal(int16_t Index);
    void describeButton(Quillet* button);
    void describeSelection(bool announce);
    void voiceMovesList();
    void createControls();
    void createBoard();
    void createCommandPanel();
    void connectHandlers();
    void orderTabs();
    void Form_Load();
    void Form_Unload();

    Game m_game{*this};
    std::function<void()> m_pauseHook;

    QGroupBox* Frame2 = nullptr;
    Quillet* Quitx = nullptr;
    Quillet* Helpx = nullptr;
    Quillet* Aboutx = nullptr;
    Quillet* Scorex = nullptr;
    QGroupBox* CommandFrame = nullptr;
    Quillet* Undox = nullptr;
    Quillet* Pausex = nullptr;
    Quillet* TakeComp = nullptr;
    Quillet* GiveHint = nullptr;
    Marlets::Marlet* Score1 = nullptr;
    UserControl1* MovesList = nullptr;
    Quillet* Hand = nullptr;
    QSlider* StartBeads = nullptr;
    QLineEdit* Text1 = nullptr;
    Quillet* Mess = nullptr;
    std::array<Quillet*, SlotCount> Pots{};
    QLabel* Label3 = nullptr;
    QLabel* Label1 = nullptr;
    std::array<QLabel*, 3> TotalB{};
    std::array<QLabel*, PotsPerRow> PotName{};
    QLabel* Image1 = nullptr;
    QLabel* Image2 = nullptr;
    QLabel* Label2 = nullptr;
    QLabel* Image4 = nullptr;
    QLabel* Image3 = nullptr;
    QPointer<HelpForm> m_helpForm;
    QPointer<QWidget> m_focusBeforePause;
};
