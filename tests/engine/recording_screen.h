#pragma once

#include "engine/game.h"

#include <array>
#include <functional>
#include <string>
#include <vector>

// Stands in for the window: keeps what the window would show, and writes every call
// into one ordered record so that tests can check the order of things.
class RecordingScreen : public GameScreen {
public:
    struct LogLine {
        std::string text;
        int32_t color = -1; // -1: no colour given, the list picks one
    };

    const Game* game = nullptr;

    std::array<std::string, SlotCount> tags{};
    std::array<bool, SlotCount> potEnabled{};
    std::string messCaption;
    bool messEnabled = false;
    bool messVisible = true;
    bool undoxEnabled = true;
    bool commandFrameEnabled = true;
    bool startBeadsEnabled = true;
    float handLeft = 0;
    float handTop = 0;
    bool handVisible = false;
    std::array<std::string, 3> totalB{};
    std::vector<LogLine> log; // newest first, as MovesList shows it
    int scoreWins = 0;
    int scoreLosses = 0;
    int scoreDraws = 0;
    std::vector<std::string> calls;

    // Runs at each DoEvents of a pause; by default clicks Mess at once.
    std::function<void()> onDoEvents;
    int doEventsCalls = 0;

    static constexpr std::array<float, 6> potNameLeft{1635, 2475, 3360, 4245, 5130, 6000};
    static constexpr float potNameTop = 1075;

    void RefreshPot(int16_t Slot) override;
    std::string PotTag(int16_t Index) const override { return tags.at(Index); }
    void SetPotEnabled(int16_t Slot, bool Enabled) override { potEnabled.at(Slot) = Enabled; }
    void SetMessCaption(const std::string& Caption) override;
    void SetMessEnabled(bool Enabled) override { messEnabled = Enabled; }
    void ShowMess() override { messVisible = true; }
    void SetUndoxEnabled(bool Enabled) override { undoxEnabled = Enabled; }
    void SetCommandFrameEnabled(bool Enabled) override { commandFrameEnabled = Enabled; }
    void SetStartBeadsEnabled(bool Enabled) override { startBeadsEnabled = Enabled; }
    void SetHandLeft(float Left) override { handLeft = Left; }
    void SetHandTop(float Top) override { handTop = Top; }
    void SetHandVisible(bool Visible) override { handVisible = Visible; }
    bool HandVisible() const override { return handVisible; }
    float PotNameLeft(int16_t Index) const override { return potNameLeft.at(Index); }
    float PotNameTop(int16_t) const override { return potNameTop; }
    void SetTotalBCaption(int16_t Index, const std::string& Caption) override;
    void MovesList_Additem(std::string& s, int16_t itemx, int16_t& ipic, std::string& ItemFont,
                           int32_t& ItemColor) override;
    void MovesList_Additem(std::string& s, int16_t itemx) override;
    void MovesList_Clear() override;
    void Score1_ScoreWin(bool Value) override;
    void Score1_ScoreDraw(bool Value) override;
    void DoEvents() override;

    // Log texts, oldest first: the order in which they were written.
    std::vector<std::string> LogTexts() const;
    // Only the calls that begin with prefix, in order.
    std::vector<std::string> CallsStartingWith(const std::string& prefix) const;
};

// Compact board notation in slot order: "0 4 4 4 3 3 |0| 3 3 3 3 3 3 |0".
Board ParseBoard(const std::string& text);
std::string FormatBoard(const Board& board);
