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

long residentKb()
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
    Soak(Form1& form, int games) : m_form(form), m_games(games)
    {
        // Every step of the computer's reply waits on the bar; the hook clicks it at once.
        m_form.setPauseHook([this] { releasePause(); });
        QTest::mouseClick(child<Quillet>("Pausex"), Qt::LeftButton);
        m_clock.start();
        later(&Soak::beginGame);
    }

private:
    void later(void (Soak::*step)())
    {
        QTimer::singleShot(0, &m_form, [this, step] {
            try {
                (this->*step)();
            } catch (const std::exception& e) {
                fail(std::string("exception: ") + e.what());
            }
        });
    }

    void beginGame()
    {
        if (m_game > 0) {
            QTest::mouseClick(child<Quillet>("Mess"), Qt::LeftButton);
            expect(child<UserControl1>("MovesList")->state().ItemCount == 0,
                   "the restart left lines in the log");
        }
        auto* slider = child<QSlider>("StartBeads");
        m_count = slider->minimum() + m_game % (slider->maximum() - slider->minimum() + 1);
        slider->setSliderDown(true);
        slider->setSliderPosition(m_count);
        slider->setSliderDown(false);
        m_turns = 0;
        const GameState& game = m_form.game().state();
        for (int s = 0; s < SlotCount; ++s)
            expect(game.Beads[s] == (isBank(s) ? 0 : m_count), "the board is not laid out anew");
        checkBoard();
        checkHumanToMove(QStringLiteral("YOUR MOVE NOW"));
        later(&Soak::turn);
    }

    void turn()
    {
        QTest::mouseClick(child<Quillet>("TakeComp"), Qt::LeftButton);
        ++m_moves;
        ++m_turns;
        checkBoard();
        if (m_form.game().state().GameFinished)
            return endOfGame();
        expect(m_form.game().state().GameLive, "the game goes on with a row spent");
        checkHumanToMove(QStringLiteral("AGAIN YOUR MOVE NOW"));
        expect(m_turns < TurnLimit, "the game does not end");
        later(&Soak::turn);
    }

    void endOfGame()
    {
        checkGameOver();
        ++m_game;
        if (m_game == std::min(WarmGames, m_games))
            m_warmRss = residentKb();
        if (m_game < m_games)
            return later(&Soak::beginGame);
        const double seconds = m_clock.elapsed() / 1000.0;
        const long endRss = residentKb();
        std::printf("games played %d\nmoves made %lld (forced turns, each with the computer's "
                    "reply)\npauses released %lld\nseconds taken %.1f\ngames per second %.1f\n"
                    "VmRSS after %d games %ld kB\nVmRSS at the end %ld kB\ngrowth %ld kB\n",
                    m_game, m_moves, m_pauses, seconds, m_game / std::max(seconds, 0.001),
                    std::min(WarmGames, m_games), m_warmRss, endRss, endRss - m_warmRss);
        const bool bounded = m_games < MemoryCheckedFrom || endRss - m_warmRss < MemoryBoundKb;
        if (!bounded)
            std::printf("soak: memory grew by 1 MB or more\n");
        std::fflush(stdout);
        QCoreApplication::exit(bounded ? 0 : 1);
    }

    // A pause shuts the commands away and offers only the bar.
    void releasePause()
    {
        auto* mess = child<Quillet>("Mess");
        expect(!child<QGroupBox>("CommandFrame")->isEnabled() && mess->isEnabled() &&
                   mess->caption().startsWith(QStringLiteral("Computer move> ")),
               "the pause does not shut the commands and offer the bar");
        ++m_pauses;
        QTest::mouseClick(mess, Qt::LeftButton);
    }

    // Beads only move from slot to slot, and the faces show what the board holds.
    void checkBoard()
    {
        const GameState& game = m_form.game().state();
        for (int s = 0; s < SlotCount; ++s) {
            expect(game.Beads[s] >= 0, "a slot went negative");
            expect(Pot(s)->Tag().toInt() == game.Beads[s], "a pot's face differs from the board");
        }
        expect(std::accumulate(game.Beads.begin(), game.Beads.end(), 0) == 12 * m_count,
               "beads were lost or made");
        expect(game.StartBeadCount == m_count, "the bead count moved during the game");
        expect(!game.BoardMirrored && !game.HintActive && game.WaitingForClick == 0,
               "a turn left its mirror, a hint or a pause behind");
    }

    // The human's pots are open where they hold beads, the banks never; the computer's
    // row is shut only until the first restart. A forced turn takes no undo snapshot
    // and does not lock the bead count.
    void checkHumanToMove(const QString& caption)
    {
        for (int s = 0; s < SlotCount; ++s) {
            const bool open =
                isHumanPot(s) ? m_form.game().state().Beads[s] > 0 : isComputerPot(s) && m_game > 0;
            expect(Pot(s)->isEnabled() == open, "pot " + std::to_string(s) + " is wrongly enabled");
        }
        auto* mess = child<Quillet>("Mess");
        expect(!mess->isEnabled() && mess->caption() == caption, "the bar keeps the move");
        expect(child<QGroupBox>("CommandFrame")->isEnabled(), "the commands stay shut");
        expect(!child<Quillet>("Undox")->isEnabled(), "undo is offered after a forced turn");
        expect(child<QSlider>("StartBeads")->isEnabled(), "a forced turn locked the slider");
    }

    // A row is spent and the banks decide; what is left on the other row stays there.
    void checkGameOver()
    {
        const Board& beads = m_form.game().state().Beads;
        auto spent = [&](int first) {
            return std::all_of(&beads[first], &beads[first + 6], [](int16_t n) { return n == 0; });
        };
        expect(spent(0) || spent(7), "the game ended with beads on both rows");
        for (int s = 0; s < SlotCount; ++s)
            expect(!Pot(s)->isEnabled(), "a pot is open after the end");
        // Only the banks count, the number after a blank of its own.
        const int margin = beads[HumanBank] - beads[ComputerBank];
        const QString result = margin > 0 ? QStringLiteral("YOU WIN BY  %1 POINTS").arg(margin)
                               : margin < 0
                                   ? QStringLiteral("COMPUTER WINS BY  %1 POINTS").arg(-margin)
                                   : QStringLiteral("GAME DRAWN");
        auto* mess = child<Quillet>("Mess");
        expect(mess->isEnabled() && mess->isVisible() &&
                   mess->caption() == result + QStringLiteral(" - click here to restart"),
               "the bar does not offer the restart with the banks' margin");
    }

    void expect(bool holds, const std::string& what)
    {
        if (!holds)
            fail(what);
    }

    // Stops at the first broken rule, from whichever handler found it.
    [[noreturn]] void fail(const std::string& what)
    {
        std::string board; // as the tests write it: 0 4 4 4 3 3 |0| 3 3 3 3 3 3 |0
        for (int s = 0; s < SlotCount; ++s) {
            const std::string n = std::to_string(m_form.game().state().Beads[s]);
            board += s == HumanBank ? " |" + n + "|" : s == ComputerBank ? " |" + n : " " + n;
        }
        std::printf("soak: game %d, move %d of it (%lld in all): %s\nboard%s\n", m_game + 1,
                    m_turns, m_moves, what.c_str(), board.c_str());
        std::fflush(stdout);
        std::_Exit(1);
    }

    template <typename T> T* child(const QString& name) const { return m_form.findChild<T*>(name); }
    Quillet* Pot(int s) const { return child<Quillet>(QStringLiteral("Pots%1").arg(s)); }

    Form1& m_form;
    const int m_games;
    int m_game = 0;
    int m_count = 0;
    int m_turns = 0;
    long long m_moves = 0;
    long long m_pauses = 0;
    long m_warmRss = 0;
    QElapsedTimer m_clock;
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
