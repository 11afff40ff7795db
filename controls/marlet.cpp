#include "controls/marlet.h"

#include <QDir>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSettings>
#include <QToolButton>
#include <QVBoxLayout>

#include <cstdio>
#include <limits>

namespace Marlets {

namespace {

// The same white on black as the bead-count label under the board.
QWidget* titleBand(QLabel* title, QToolButton* close)
{
    auto* band = new QWidget;
    band->setAutoFillBackground(true);
    QPalette colours = band->palette();
    colours.setColor(QPalette::Window, Qt::black);
    colours.setColor(QPalette::WindowText, Qt::white);
    colours.setColor(QPalette::ButtonText, Qt::white);
    band->setPalette(colours);
    auto* row = new QHBoxLayout(band);
    row->setContentsMargins(6, 1, 1, 1);
    row->addWidget(title, 1);
    row->addWidget(close);
    return band;
}

QFont boldened(QFont font)
{
    font.setBold(true);
    return font;
}

} // namespace

Marlet::Marlet(QWidget* parent) : QFrame(parent)
{
    setFrameStyle(QFrame::Panel | QFrame::Raised);
    setLineWidth(2);
    setAutoFillBackground(true);

    m_title = new QLabel;
    m_title->setObjectName("title");
    m_title->setFont(boldened(font()));
    m_close = new QToolButton;
    m_close->setObjectName("close");
    m_close->setText("x");
    m_close->setToolTip("Close");
    m_close->setAutoRaise(true);
    // The window never hides the board again once it has shown it: closing is ours.
    connect(m_close, &QToolButton::clicked, this, &QWidget::hide);

    auto* grid = new QGridLayout;
    grid->setContentsMargins(12, 6, 12, 6);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(0, 1);
    m_won = addRow(grid, "Games won", "won");
    m_lost = addRow(grid, "Games lost", "lost");
    m_drawn = addRow(grid, "Games drawn", "drawn");
    m_share = addRow(grid, "Share won", "share");

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(lineWidth(), lineWidth(), lineWidth(), lineWidth());
    column->setSpacing(0);
    column->addWidget(titleBand(m_title, m_close));
    column->addLayout(grid);
    column->addStretch(1);
    refresh();
}

Marlet::Row Marlet::addRow(QGridLayout* grid, const QString& name, const char* key)
{
    Row row{new QLabel(name), new QLabel};
    row.value->setObjectName(key);
    row.value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    row.value->setFont(boldened(row.value->font()));
    const int at = grid->rowCount();
    grid->addWidget(row.name, at, 0);
    grid->addWidget(row.value, at, 1);
    return row;
}

void Marlet::showRow(const Row& row, bool shown)
{
    row.name->setVisible(shown);
    row.value->setVisible(shown);
}

bool Marlet::s_keepRecords = false;

void Marlet::keepRecords(bool keep)
{
    s_keepRecords = keep;
}

void Marlet::ScoreTitle(const QString& New_ScoreTitle)
{
    m_title->setText(New_ScoreTitle);
    loadRecord();
}

namespace {

QString recordFile(const QSettings& settings)
{
    return QDir::toNativeSeparators(settings.fileName());
}

// One more game, but a count at its greatest stays there rather than wrap round.
void countOne(int& count)
{
    if (count < std::numeric_limits<int>::max())
        ++count;
}

} // namespace

// Each title keeps its own record, under the game's own name. A record that cannot be
// read, or holds anything but counts, leaves the board empty: the player is told once,
// and the next game writes a sound record over it.
void Marlet::loadRecord()
{
    if (!s_keepRecords)
        return;
    QSettings settings(QStringLiteral("Tavok"), QStringLiteral("Tavok"));
    settings.beginGroup(QStringLiteral("Score/") + m_title->text());
    int counts[3] = {0, 0, 0};
    bool sound = settings.status() == QSettings::NoError;
    const char* const keys[3] = {"won", "lost", "drawn"};
    for (int i = 0; i < 3 && sound; ++i) {
        const QVariant value = settings.value(QLatin1String(keys[i]), 0);
        bool isNumber = false;
        counts[i] = value.toInt(&isNumber);
        sound = isNumber && counts[i] >= 0;
    }
    if (!sound) {
        std::fprintf(
            stderr,
            "tavok: the score record %s is damaged or unreadable; the score board starts empty\n",
            qPrintable(recordFile(settings)));
        counts[0] = counts[1] = counts[2] = 0;
    }
    m_wins = counts[0];
    m_losses = counts[1];
    m_draws = counts[2];
    refresh();
}

// A record that cannot be written is said once; the board goes on counting this run.
void Marlet::saveRecord() const
{
    if (!s_keepRecords)
        return;
    QSettings settings(QStringLiteral("Tavok"), QStringLiteral("Tavok"));
    settings.beginGroup(QStringLiteral("Score/") + m_title->text());
    settings.setValue(QStringLiteral("won"), m_wins);
    settings.setValue(QStringLiteral("lost"), m_losses);
    settings.setValue(QStringLiteral("drawn"), m_draws);
    settings.sync();
    static bool told = false;
    if (settings.status() != QSettings::NoError && !told) {
        told = true;
        std::fprintf(stderr,
                     "tavok: cannot write the score record %s; this run's games are not kept\n",
                     qPrintable(recordFile(settings)));
    }
}

void Marlet::ScoreOptionA(bool New_ScoreOptionA)
{
    m_showShare = New_ScoreOptionA;
    refresh();
}

void Marlet::ScoreOptionB(bool New_ScoreOptionB)
{
    m_showDrawn = New_ScoreOptionB;
    refresh();
}

void Marlet::ScoreWin(bool New_ScoreWin)
{
    countOne(New_ScoreWin ? m_wins : m_losses);
    saveRecord();
    // A game can end under an open board; then the new count shows at once.
    if (isVisible())
        refresh();
}

void Marlet::ScoreDraw(bool New_ScoreDraw)
{
    if (!New_ScoreDraw)
        return;
    countOne(m_draws);
    saveRecord();
    if (isVisible())
        refresh();
}

void Marlet::ScoreShow(bool New_ScoreShow)
{
    if (New_ScoreShow)
        refresh();
}

void Marlet::zOrder(int position)
{
    if (position == 0)
        raise();
    else if (position == 1)
        lower();
}

void Marlet::refresh()
{
    m_won.value->setText(QString::number(m_wins));
    m_lost.value->setText(QString::number(m_losses));
    m_drawn.value->setText(QString::number(m_draws));
    m_share.value->setText(shareWon());
    showRow(m_drawn, m_showDrawn);
    showRow(m_share, m_showShare);
}

QString Marlet::shareWon() const
{
    // Counted wide: three counts near their greatest would overflow an int.
    const qint64 games = qint64(m_wins) + m_losses + m_draws;
    if (games == 0)
        return "-";
    return QString::number(qRound(100.0 * m_wins / games)) + "%";
}

} // namespace Marlets
