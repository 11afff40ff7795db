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

    Game& game() { return game_; }
    const Game& game() const { return game_; }

    // Run at every wait of a pause instead of blocking on the event queue; the trace
    // tool clicks Mess from here.
    void setPauseHook(std::function<void()> hook) { pauseHook_ = std::move(hook); }

    // GameScreen
    void RefreshPot(int16_t Slot) override;
    std::string PotTag(int16_t Index) const override;
    void SetPotEnabled(int16_t Slot, bool Enabled) override;
    void SetMessCaption(const std::string& Caption) override;
    void SetMessEnabled(bool Enabled) override;
    void ShowMess() override;
    void SetUndoxEnabled(bool Enabled) override;
    void SetCommandFrameEnabled(bool Enabled) override;
    void SetStartBeadsEnabled(bool Enabled) override;
    void SetHandLeft(float Left) override;
    void SetHandTop(float Top) override;
    void SetHandVisible(bool Visible) override;
    bool HandVisible() const override;
    float PotNameLeft(int16_t Index) const override;
    float PotNameTop(int16_t Index) const override;
    void SetTotalBCaption(int16_t Index, const std::string& Caption) override;
    void MovesList_Additem(std::string& s, int16_t itemx, int16_t& ipic, std::string& ItemFont,
                           int32_t& ItemColor) override;
    void MovesList_Additem(std::string& s, int16_t itemx) override;
    void MovesList_Clear() override;
    void Score1_ScoreWin(bool Value) override;
    void Score1_ScoreDraw(bool Value) override;
    void DoEvents() override;

    // Board view
    void DrawPot(int16_t& Pot, QString& Text);
    void DrawPotHot(int16_t& Pot, QString& Text);
    void Pots_MouseMove(int16_t Index, int16_t Button, int16_t Shift, float X, float Y);
    void Form_MouseMove(int16_t Button, int16_t Shift, float X, float Y);

    // Move preview
    void Pots_MouseDown(int16_t Index, int16_t Button, int16_t Shift, float X, float Y);

    // Command panel
    void StartBeads_Change();
    void Pausex_Click();
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
    void FitTotal(QLabel* total);
    void DescribePot(int16_t Slot);
    void DescribeTotal(int16_t Index);
    void DescribeButton(Quillet* button);
    void AnnounceKeyboardPot();
    void VoiceMovesList();
    void CreateControls();
    void CreateBoard();
    void CreateCommandPanel();
    void ConnectHandlers();
    void SetTabOrder();
    void Form_Load();
    void Form_Unload();

    Game game_{*this};
    std::function<void()> pauseHook_;

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
    std::array<QLabel*, 6> PotName{};
    QLabel* Image1 = nullptr;
    QLabel* Image2 = nullptr;
    QLabel* Label2 = nullptr;
    QLabel* Image4 = nullptr;
    QLabel* Image3 = nullptr;
    QPointer<HelpForm> helpForm_;
};
