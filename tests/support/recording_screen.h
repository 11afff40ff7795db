#pragma once

#include "engine/game.h"

#include <array>
#include <functional>
#include <string>
#include <vector>

// Stands in for the window: keeps what the window would show, and writes every
// operation that changes the screen into one ordered record ("name:arguments"), so
// that tests can check the order of things. Reads (a Tag, the slider's value, the
// hand, the letters' places) change nothing and are not recorded.
class RecordingScreen : public GameScreen {
public:
    struct LogLine {
        std::string text;
        int32_t color = -1; // -1: no colour given, the list picks one
    };

    std::array<std::string, SlotCount> tags{};
    std::array<bool, SlotCount> potEnabled{};
    std::array<bool, SlotCount> hot{}; // the hover look
    std::string messCaption;
    bool messEnabled = false;
    bool messVisible = true;
    bool undoxEnabled = true;
    bool commandFrameEnabled = true;
    std::string pausexCaption = "Do not pause";
    bool startBeadsEnabled = true;
    int16_t startBeads = 99; // the slider's stored value
    std::string label2;
    float handLeft = 0;
    float handTop = 0;
    bool handShown = false;
    std::array<std::string, 3> totalB{};
    std::vector<LogLine> log; // newest first, as MovesList shows it
    int scoreWins = 0;
    int scoreLosses = 0;
    int scoreDraws = 0;
    std::vector<std::string> calls;

    // What the platform raises: the pause's run of pending events (a test clicks Mess
    // from here), and the slider's change when its value is written.
    std::function<void()> onPendingEvents;
    std::function<void()> onStartBeadsChange;
    int pendingEventRuns = 0;

    static constexpr std::array<float, 6> letterLeft{1635, 2475, 3360, 4245, 5130, 6000};
    static constexpr float letterTop = 1075;

    void DrawPot(int16_t Pot, const std::string& Text) override;
    void DrawPotHot(int16_t Pot, const std::string& Text) override;
    std::string potTag(int16_t index) const override { return tags.at(index); }
    void setPotEnabled(int16_t slot, bool enabled) override
    {
        set("enabled:" + std::to_string(slot), potEnabled.at(slot), enabled);
    }
    void setMessCaption(const std::string& caption) override { set("mess", messCaption, caption); }
    void setMessEnabled(bool enabled) override { set("messEnabled", messEnabled, enabled); }
    void showMess() override { set("showMess", messVisible, true); }
    void setUndoxEnabled(bool enabled) override { set("undox", undoxEnabled, enabled); }
    void setCommandFrameEnabled(bool enabled) override
    {
        set("frame", commandFrameEnabled, enabled);
    }
    void setPausexCaption(const std::string& caption) override
    {
        set("pausex", pausexCaption, caption);
    }
    void setStartBeadsEnabled(bool enabled) override { set("slider", startBeadsEnabled, enabled); }
    int16_t startBeadsValue() const override { return startBeads; }
    // Like the real slider, a write that changes the value raises the change before
    // it returns.
    void setStartBeadsValue(int16_t value) override
    {
        calls.push_back("sliderValue:" + std::to_string(value));
        moveSlider(value);
    }
    void setLabel2Caption(const std::string& caption) override { set("label2", label2, caption); }
    void setHandLeft(float left) override { set("handLeft", handLeft, left); }
    void setHandTop(float top) override { set("handTop", handTop, top); }
    void setHandVisible(bool visible) override { set("hand", handShown, visible); }
    bool handVisible() const override { return handShown; }
    float potNameLeft(int16_t index) const override { return letterLeft.at(index); }
    float potNameTop(int16_t) const override { return letterTop; }
    void setTotalBCaption(int16_t index, const std::string& caption) override
    {
        set("total:" + std::to_string(index), totalB.at(index), caption);
    }
    void setUpMovesList() override { calls.push_back("setUpMovesList"); }
    void movesListAdditem(std::string& s, int16_t itemx, int16_t& ipic, std::string& ItemFont,
                          int32_t& ItemColor) override;
    void movesListAdditem(std::string& s, int16_t itemx) override;
    void movesListClear() override;
    void scoreWin(bool value) override;
    void scoreDraw(bool value) override;
    void runPendingEvents() override;

    // The user moves the slider: the value changes and the change is raised.
    void moveSlider(int16_t value);
    // Log texts, oldest first: the order in which they were written.
    std::vector<std::string> logTexts() const;

private:
    static std::string shown(bool on) { return on ? "1" : "0"; }
    static std::string shown(const std::string& text) { return text; }
    static std::string shown(float number) { return std::to_string(number); }
    template <typename T> void set(const std::string& name, T& field, const T& value)
    {
        calls.push_back(name + ":" + shown(value));
        field = value;
    }
};

// Compact board notation in slot order: "0 4 4 4 3 3 |0| 3 3 3 3 3 3 |0".
Board parseBoard(const std::string& text);
std::string formatBoard(const Board& board);
