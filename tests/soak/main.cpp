#include "controls/quillet.h"
#include "moveslist/usercontrol1.h"
#include "window/form1.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QSlider>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <numeric>
#include <string>

namespace {

// Warm-up (fonts, caches, the log's storage) is over by then.
constexpr int WarmGames = 100;
// The memory bound only means something over a long run.
constexpr int MemoryCheckedFrom = 1000;
constexpr long MemoryBoundKb = 1024;
// Every turn banks a bead or carries beads nearer a bank, so a game ends long before.
constexpr int TurnLimit = 100000;

long ResidentKb()
{
    std::ifstream status("/proc/self/status");
    std::string key;
    while (status >> key && key != "VmRSS:") {
    }
    long kb = 0;
    status >> kb;
    return kb;
}

// Whole games on the real window from its event loop, every human move a forced turn,
// each user action an event of its own so that the window paints and tidies up in
// between as it does for a player. The bead count goes round the slider's range.
class Soak {
public:
    Soak(Form1& form, int games) : form_(form), games_(games)
    {
        // Every step of the computer's reply waits on the bar; the hook clicks it at once.
        form_.setPauseHook([this] { ReleasePause(); });
        QTest::mouseClick(Child<Quillet>("Pausex"), Qt::LeftButton);
        clock_.start();
        Later(&Soak::BeginGame);
    }

private:
    void Later(void (Soak::*step)())
    {
        QTimer::singleShot(0, &form_, [this, step] {
            try {
                (this->*step)();
            } catch (const std::exception& e) {
                Fail(std::string("exception: ") + e.what());
            }
        });
    }

    void BeginGame()
    {
        if (game_ > 0) {
            QTest::mouseClick(Child<Quillet>("Mess"), Qt::LeftButton);
            Expect(Child<UserControl1>("MovesList")->state().ItemCount == 0,
                   "the restart left lines in the log");
        }
        auto* slider = Child<QSlider>("StartBeads");
        count_ = slider->minimum() + game_ % (slider->maximum() - slider->minimum() + 1);
        slider->setSliderDown(true);
        slider->setSliderPosition(count_);
        slider->setSliderDown(false);
        turns_ = 0;
        const GameState& game = form_.game().state();
        for (int s = 0; s < SlotCount; ++s)
            Expect(game.Beads[s] == (isBank(s) ? 0 : count_), "the board is not laid out anew");
        CheckBoard();
        CheckHumanToMove(QStringLiteral("YOUR MOVE NOW"));
        Later(&Soak::Turn);
    }

    void Turn()
    {
        QTest::mouseClick(Child<Quillet>("TakeComp"), Qt::LeftButton);
        ++moves_;
        ++turns_;
        CheckBoard();
        if (form_.game().state().GameFinished)
            return EndOfGame();
        Expect(form_.game().state().GameLive, "the game goes on with a row spent");
        CheckHumanToMove(QStringLiteral("AGAIN YOUR MOVE NOW"));
        Expect(turns_ < TurnLimit, "the game does not end");
        Later(&Soak::Turn);
    }

    void EndOfGame()
    {
        CheckGameOver();
        ++game_;
        if (game_ == std::min(WarmGames, games_))
            warmRss_ = ResidentKb();
        if (game_ < games_)
            return Later(&Soak::BeginGame);
        const double seconds = clock_.elapsed() / 1000.0;
        const long endRss = ResidentKb();
        std::printf("games played %d\nmoves made %lld (forced turns, each with the computer's "
                    "reply)\npauses released %lld\nseconds taken %.1f\ngames per second %.1f\n"
                    "VmRSS after %d games %ld kB\nVmRSS at the end %ld kB\ngrowth %ld kB\n",
                    game_, moves_, pauses_, seconds, game_ / std::max(seconds, 0.001),
                    std::min(WarmGames, games_), warmRss_, endRss, endRss - warmRss_);
        const bool bounded = games_ < MemoryCheckedFrom || endRss - warmRss_ < MemoryBoundKb;
        if (!bounded)
            std::printf("soak: memory grew by 1 MB or more\n");
        std::fflush(stdout);
        QCoreApplication::exit(bounded ? 0 : 1);
    }

    // A pause shuts the commands away and offers only the bar.
    void ReleasePause()
    {
        auto* mess = Child<Quillet>("Mess");
        Expect(!Child<QGroupBox>("CommandFrame")->isEnabled() && mess->isEnabled() &&
                   mess->caption().startsWith(QStringLiteral("Computer move> ")),
               "the pause does not shut the commands and offer the bar");
        ++pauses_;
        QTest::mouseClick(mess, Qt::LeftButton);
    }

    // Beads only move from slot to slot, and the faces show what the board holds.
    void CheckBoard()
    {
        const GameState& game = form_.game().state();
        for (int s = 0; s < SlotCount; ++s) {
            Expect(game.Beads[s] >= 0, "a slot went negative");
            Expect(Pot(s)->Tag().toInt() == game.Beads[s], "a pot's face differs from the board");
        }
        Expect(std::accumulate(game.Beads.begin(), game.Beads.end(), 0) == 12 * count_,
               "beads were lost or made");
        Expect(game.StartBeadCount == count_, "the bead count moved during the game");
        Expect(!game.BoardMirrored && !game.HintActive && game.WaitingForClick == 0,
               "a turn left its mirror, a hint or a pause behind");
    }

    // The human's pots are open where they hold beads, the banks never; the computer's
    // row is shut only until the first restart. A forced turn takes no undo snapshot
    // and does not lock the bead count.
    void CheckHumanToMove(const QString& caption)
    {
        for (int s = 0; s < SlotCount; ++s) {
            const bool open =
                isHumanPot(s) ? form_.game().state().Beads[s] > 0 : isComputerPot(s) && game_ > 0;
            Expect(Pot(s)->isEnabled() == open, "pot " + std::to_string(s) + " is wrongly enabled");
        }
        auto* mess = Child<Quillet>("Mess");
        Expect(!mess->isEnabled() && mess->caption() == caption, "the bar keeps the move");
        Expect(Child<QGroupBox>("CommandFrame")->isEnabled(), "the commands stay shut");
        Expect(!Child<Quillet>("Undox")->isEnabled(), "undo is offered after a forced turn");
        Expect(Child<QSlider>("StartBeads")->isEnabled(), "a forced turn locked the slider");
    }

    // A row is spent and the banks decide; what is left on the other row stays there.
    void CheckGameOver()
    {
        const Board& beads = form_.game().state().Beads;
        auto spent = [&](int first) {
            return std::all_of(&beads[first], &beads[first + 6], [](int16_t n) { return n == 0; });
        };
        Expect(spent(0) || spent(7), "the game ended with beads on both rows");
        for (int s = 0; s < SlotCount; ++s)
            Expect(!Pot(s)->isEnabled(), "a pot is open after the end");
        // Only the banks count, the number after a blank of its own.
        const int margin = beads[HumanBank] - beads[ComputerBank];
        const QString result = margin > 0 ? QStringLiteral("YOU WIN BY  %1 POINTS").arg(margin)
                               : margin < 0
                                   ? QStringLiteral("COMPUTER WINS BY  %1 POINTS").arg(-margin)
                                   : QStringLiteral("GAME DRAWN");
        auto* mess = Child<Quillet>("Mess");
        Expect(mess->isEnabled() && mess->isVisible() &&
                   mess->caption() == result + QStringLiteral(" - click here to restart"),
               "the bar does not offer the restart with the banks' margin");
    }

    void Expect(bool holds, const std::string& what)
    {
        if (!holds)
            Fail(what);
    }

    // Stops at the first broken rule, from whichever handler found it.
    [[noreturn]] void Fail(const std::string& what)
    {
        std::string board; // as the tests write it: 0 4 4 4 3 3 |0| 3 3 3 3 3 3 |0
        for (int s = 0; s < SlotCount; ++s) {
            const std::string n = std::to_string(form_.game().state().Beads[s]);
            board += s == HumanBank ? " |" + n + "|" : s == ComputerBank ? " |" + n : " " + n;
        }
        std::printf("soak: game %d, move %d of it (%lld in all): %s\nboard%s\n", game_ + 1, turns_,
                    moves_, what.c_str(), board.c_str());
        std::fflush(stdout);
        std::_Exit(1);
    }

    template <typename T> T* Child(const QString& name) const { return form_.findChild<T*>(name); }
    Quillet* Pot(int s) const { return Child<Quillet>(QStringLiteral("Pots%1").arg(s)); }

    Form1& form_;
    const int games_;
    int game_ = 0;
    int count_ = 0;
    int turns_ = 0;
    long long moves_ = 0;
    long long pauses_ = 0;
    long warmRss_ = 0;
    QElapsedTimer clock_;
};

} // namespace

// tavok-soak GAMES: whole games on the real window, offscreen, watching memory.
int main(int argc, char* argv[])
{
    const int games = argc == 2 ? std::atoi(argv[1]) : 0;
    if (games < 1) {
        std::fprintf(stderr, "usage: tavok-soak GAMES  (memory may grow by less than 1 MB after "
                             "the first 100 games; checked from 1000 games on)\n");
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    Form1 form;
    form.show();
    QApplication::setActiveWindow(&form);
    Soak soak(form, games);
    return app.exec();
}
