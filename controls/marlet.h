#pragma once

#include <QFrame>
#include <QString>

class QGridLayout;
class QLabel;
class QToolButton;

namespace Marlets {

// The score board: games won, lost and drawn, in a small panel that opens over the
// moves list and closes by its own "x". Each count stops at its greatest value.
// ScoreOptionA shows the share of games won; ScoreOptionB shows the drawn games.
class Marlet : public QFrame {
    Q_OBJECT
public:
    explicit Marlet(QWidget* parent = nullptr);

    void ScoreTitle(const QString& New_ScoreTitle);
    void ScoreOptionA(bool New_ScoreOptionA);
    void ScoreOptionB(bool New_ScoreOptionB);
    // One game counted per write: true the human won, false the computer won.
    void ScoreWin(bool New_ScoreWin);
    // True counts one drawn game; false counts nothing.
    void ScoreDraw(bool New_ScoreDraw);
    // True brings the shown counts up to date.
    void ScoreShow(bool New_ScoreShow);
    void Visible(bool New_Visible) { setVisible(New_Visible); }
    // 0 brings the board in front of its neighbours, 1 sends it behind them.
    void zOrder(int position);

    // The record of each title outlives the program once this is switched on; the game
    // does, tests and tools do not, so that they never touch the player's own record.
    static void keepRecords(bool keep);

    int wins() const { return m_wins; }
    int losses() const { return m_losses; }
    int draws() const { return m_draws; }

private:
    struct Row {
        QLabel* name = nullptr;
        QLabel* value = nullptr;
    };

    static Row addRow(QGridLayout* grid, const QString& name, const char* key);
    static void showRow(const Row& row, bool shown);
    void refresh();
    void loadRecord();
    void saveRecord() const;
    QString shareWon() const;

    QLabel* m_title = nullptr;
    QToolButton* m_close = nullptr;
    Row m_won;
    Row m_lost;
    Row m_drawn;
    Row m_share;
    int m_wins = 0;
    int m_losses = 0;
    int m_draws = 0;
    bool m_showShare = false;
    bool m_showDrawn = false;
    static bool s_keepRecords;
};

} // namespace Marlets
