#pragma once

#include <cstdint>
#include <string>

// What the game needs of the window, and nothing more. The real window implements
// it with widgets; the tests record every call.
class GameScreen {
public:
    virtual ~GameScreen() = default;

    // Pots: the face of one pot from Beads, its Tag (the count it shows), and
    // whether it takes the mouse.
    virtual void RefreshPot(int16_t Slot) = 0;
    virtual std::string PotTag(int16_t Index) const = 0;
    virtual void SetPotEnabled(int16_t Slot, bool Enabled) = 0;

    // The message bar Mess.
    virtual void SetMessCaption(const std::string& Caption) = 0;
    virtual void SetMessEnabled(bool Enabled) = 0;
    virtual void ShowMess() = 0;

    virtual void SetUndoxEnabled(bool Enabled) = 0;
    virtual void SetCommandFrameEnabled(bool Enabled) = 0;
    virtual void SetStartBeadsEnabled(bool Enabled) = 0;

    // The hint's pointing hand and the letter labels it stands over, in twips.
    virtual void SetHandLeft(float Left) = 0;
    virtual void SetHandTop(float Top) = 0;
    virtual void SetHandVisible(bool Visible) = 0;
    virtual bool HandVisible() const = 0;
    virtual float PotNameLeft(int16_t Index) const = 0;
    virtual float PotNameTop(int16_t Index) const = 0;

    // TotalB(1) is the computer's total, TotalB(2) the human's.
    virtual void SetTotalBCaption(int16_t Index, const std::string& Caption) = 0;

    // MovesList.Additem with all five arguments; ipic and ItemColor come back as the
    // list settled them.
    virtual void MovesList_Additem(std::string& s, int16_t itemx, int16_t& ipic,
                                   std::string& ItemFont, int32_t& ItemColor) = 0;
    // MovesList.Additem with the text and position only.
    virtual void MovesList_Additem(std::string& s, int16_t itemx) = 0;
    virtual void MovesList_Clear() = 0;

    virtual void Score1_ScoreWin(bool Value) = 0;
    virtual void Score1_ScoreDraw(bool Value) = 0;

    // Runs what is pending in the window once; the pause of a computer's move waits
    // by repeating it.
    virtual void DoEvents() = 0;
};
