#include "tools/moveslist_demo/demowindow.h"

#include "moveslist/lbblock.h"
#include "moveslist/listerror.h"
#include "moveslist/usercontrol1.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <array>

namespace {

// Colours as the list takes them, 0x00BBGGRR.
struct NamedColour {
    const char* name;
    int32_t colour;
};
constexpr std::array<NamedColour, 5> Colours{{
    {"Black", 0x00000000},
    {"Green", 0x00008000},
    {"Red", 0x000000C0},
    {"Blue", 0x00C00000},
    {"Purple", 0x00800080},
}};

constexpr std::array<const char*, 4> Fonts{
    {"DejaVu Sans", "DejaVu Serif", "DejaVu Sans Mono", "Liberation Serif"}};

constexpr std::array<const char*, 8> Moves{{
    "HUMAN  pot C: 4 beads",
    "COMPUTER  pot J: 3 beads, last in the bank",
    "HUMAN  pot F: 6 beads, captures 5 from pot H",
    "COMPUTER  pot L: 1 bead",
    "hint: pot B",
    "HUMAN  pot A: 12 beads round the lap, past both banks and back to the start",
    "COMPUTER  pot H: 2 beads *",
    "HUMAN  pot D: 0 beads [refused]",
}};

// The window's places, in pixels: a table, not code.
constexpr QRect PlainListPlace(10, 30, 330, 0);
constexpr QRect DropDownPlace(360, 30, 270, 0);
constexpr QRect BelowDropDownPlace(360, 60, 270, 92);
constexpr QRect CommandsPlace(360, 160, 270, 230);
constexpr QRect StatusPlace(10, 400, 620, 22);
constexpr QSize WindowSize(640, 430);

UserControl1* newList(QWidget* parent)
{
    // A control as a form loads it with no stored settings.
    return UserControl1::fromBlock(lbblock::write(PropertyBag()), parent);
}

QLabel* caption(const QString& text, QPoint at, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->move(at);
    label->adjustSize();
    return label;
}

} // namespace

DemoWindow::DemoWindow(QWidget* parent) : QWidget(parent)
{
    setWindowTitle(QStringLiteral("Moves list"));
    setFixedSize(WindowSize);
    // What lies under the drop-down comes first, so that the open list covers it.
    createCommands();
    createLists();
    say(QStringLiteral("Pick a row, or use the keys on a list."));
}

void DemoWindow::createLists()
{
    caption(QStringLiteral("List"), PlainListPlace.topLeft() - QPoint(0, 20), this);
    plainList = newList(this);
    plainList->setGeometry(PlainListPlace.x(), PlainListPlace.y(), PlainListPlace.width(), 19);
    plainList->DropDownHeight(5400);
    plainList->Mode(0);
    plainList->GridLines(true);
    plainList->ToolTip(true);
    fill(*plainList, 40);
    listen(*plainList, QStringLiteral("List"));

    caption(QStringLiteral("Drop-down"), DropDownPlace.topLeft() - QPoint(0, 20), this);
    dropDown = newList(this);
    dropDown->setGeometry(DropDownPlace.x(), DropDownPlace.y(), DropDownPlace.width(), 19);
    dropDown->DropDownHeight(2600);
    dropDown->Mode(1);
    dropDown->ToolTip(true);
    fill(*dropDown, 16);
    listen(*dropDown, QStringLiteral("Drop-down"));
}

void DemoWindow::createCommands()
{
    auto* below =
        new QLabel(QStringLiteral("The drop-down opens over this note and the commands below it.\n"
                                  "It closes on a pick, Return, Escape, its button, or a click "
                                  "elsewhere."),
                   this);
    below->setGeometry(BelowDropDownPlace);
    below->setWordWrap(true);
    below->setFrameShape(QFrame::StyledPanel);

    auto* box = new QGroupBox(QStringLiteral("Commands"), this);
    box->setGeometry(CommandsPlace);
    auto place = [box](QWidget* w, int x, int y, int width) {
        w->setParent(box);
        w->setGeometry(x, y, width, 24);
    };

    auto* label = new QLabel(QStringLiteral("Acts on"));
    place(label, 10, 22, 60);
    actsOn = new QComboBox;
    actsOn->addItems({QStringLiteral("List"), QStringLiteral("Drop-down")});
    place(actsOn, 80, 22, 110);

    auto* up = new QPushButton(QStringLiteral("Sort up"));
    place(up, 10, 52, 80);
    connect(up, &QPushButton::clicked, this, &DemoWindow::sortUp);
    auto* down = new QPushButton(QStringLiteral("Sort down"));
    place(down, 100, 52, 80);
    connect(down, &QPushButton::clicked, this, &DemoWindow::sortDown);

    pattern = new QLineEdit(QStringLiteral("*pot ?:*capture*"));
    place(pattern, 10, 82, 170);
    connect(pattern, &QLineEdit::textEdited, this, [this] { lastFound = 0; });
    auto* findButton = new QPushButton(QStringLiteral("Find"));
    place(findButton, 190, 82, 70);
    connect(findButton, &QPushButton::clicked, this, &DemoWindow::find);
    backward = new QCheckBox(QStringLiteral("From the end"));
    place(backward, 10, 108, 110);
    caseCounts = new QCheckBox(QStringLiteral("Case counts"));
    place(caseCounts, 130, 108, 110);

    itemNumber = new QSpinBox;
    itemNumber->setRange(-5, 99);
    itemNumber->setValue(12);
    place(itemNumber, 10, 138, 60);
    auto* show = new QPushButton(QStringLiteral("Show item"));
    place(show, 80, 138, 90);
    connect(show, &QPushButton::clicked, this, &DemoWindow::showItem);

    newText = new QLineEdit(QStringLiteral("changed in place"));
    place(newText, 10, 168, 150);
    newColour = new QComboBox;
    for (const NamedColour& colour : Colours)
        newColour->addItem(QString::fromLatin1(colour.name), colour.colour);
    newColour->setCurrentIndex(3);
    place(newColour, 170, 168, 90);
    auto* update = new QPushButton(QStringLiteral("Update chosen"));
    place(update, 10, 198, 120);
    connect(update, &QPushButton::clicked, this, &DemoWindow::updateItem);
    auto* remove = new QPushButton(QStringLiteral("Remove chosen"));
    place(remove, 140, 198, 120);
    connect(remove, &QPushButton::clicked, this, &DemoWindow::removeItem);

    status = new QLabel(this);
    status->setGeometry(StatusPlace);
    status->setFrameShape(QFrame::Panel);
    status->setFrameShadow(QFrame::Sunken);
}

// Rows numbered from 1, each with its own colour and font, the moves of a game.
void DemoWindow::fill(UserControl1& list, int rows)
{
    for (int i = 0; i < rows; ++i) {
        QString s = QStringLiteral("%1 %2").arg(i + 1, 2).arg(
            QString::fromLatin1(Moves[size_t(i) % Moves.size()]));
        int16_t ipic = -1;
        QString font = QString::fromLatin1(Fonts[size_t(i / 3) % Fonts.size()]);
        int32_t colour = Colours[size_t(i) % Colours.size()].colour;
        list.Additem(s, 0, ipic, font, colour);
        list.SetItemData(-1, i * 10);
    }
}

void DemoWindow::listen(UserControl1& list, const QString& name)
{
    connect(&list, &UserControl1::MouseUp, this,
            [this, &list, name](int16_t& Button, int16_t&, float&, float&) {
                say(QStringLiteral("%1: MouseUp, button %2; text \"%3\", ListIndex %4")
                        .arg(name)
                        .arg(Button)
                        .arg(list.text().toText(), list.ListIndex().toText()));
            });
    connect(&list, &UserControl1::KeyDown, this, [this, &list, name](int16_t& KeyCode, int16_t&) {
        say(QStringLiteral("%1: KeyDown %2; text \"%3\", ListIndex %4")
                .arg(name)
                .arg(KeyCode)
                .arg(list.text().toText(), list.ListIndex().toText()));
    });
}

UserControl1& DemoWindow::target() const
{
    return actsOn->currentIndex() == 0 ? *plainList : *dropDown;
}

template <typename Request> void DemoWindow::ask(const QString& what, Request&& request)
{
    try {
        request();
    } catch (const ListError& error) {
        say(QStringLiteral("%1 refused: %2 (error %3)")
                .arg(what, QString::fromStdString(error.what()))
                .arg(error.code()));
    }
}

void DemoWindow::say(const QString& text)
{
    status->setText(QLatin1Char(' ') + text);
}

void DemoWindow::showInDropDown(int item)
{
    actsOn->setCurrentIndex(1);
    ask(QStringLiteral("ShowItem"), [&] { dropDown->ShowItem(item); });
}

void DemoWindow::sortUp()
{
    ask(QStringLiteral("SortAscending"), [this] {
        target().SortAscending();
        say(QStringLiteral("Sorted up: the rows in view show their new records."));
    });
}

void DemoWindow::sortDown()
{
    ask(QStringLiteral("SortDescending"), [this] {
        target().SortDescending();
        say(QStringLiteral("Sorted down."));
    });
}

// Each Find goes on behind the item found last: the number found is the index to
// start from.
void DemoWindow::find()
{
    ask(QStringLiteral("Find"), [this] {
        const int16_t sdir = backward->isChecked() ? 1 : 0;
        const int16_t casen = caseCounts->isChecked() ? 1 : 0;
        const AnyValue found = target().Find(sdir, int16_t(lastFound), pattern->text(), casen);
        if (found.isEmpty()) {
            say(QStringLiteral("Find: the search did not run (start outside the list)."));
            lastFound = 0;
            return;
        }
        lastFound = static_cast<int>(found.toNumber());
        if (lastFound == 0) {
            say(QStringLiteral("Find: no more items match."));
            return;
        }
        target().ShowItem(found);
        say(QStringLiteral("Find: item %1").arg(lastFound));
    });
}

void DemoWindow::showItem()
{
    ask(QStringLiteral("ShowItem"), [this] { target().ShowItem(itemNumber->value()); });
}

// The chosen item, as ListIndex gives it; in-place updates leave the chosen text as it
// was chosen.
void DemoWindow::updateItem()
{
    ask(QStringLiteral("Update"), [this] {
        const AnyValue chosen = target().ListIndex();
        target().UpdateText(chosen, newText->text());
        target().UpdateForeColor(chosen, newColour->currentData().toInt());
        say(QStringLiteral("Updated item index %1").arg(chosen.toText()));
    });
}

void DemoWindow::removeItem()
{
    ask(QStringLiteral("RemoveItem"), [this] {
        const AnyValue chosen = target().ListIndex();
        target().RemoveItem(chosen);
        say(QStringLiteral("Removed item index %1").arg(chosen.toText()));
    });
}
