#pragma once

#include "moveslist/itemrecord.h"
#include "moveslist/picturebox.h"
#include "moveslist/usercontrol1.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

#include <functional>
#include <memory>
#include <ostream>
#include <utility>
#include <vector>

// Reaches the list's children and inner steps, which a host never sees.
class ListProbe {
public:
    explicit ListProbe(UserControl1& list) : list(list) {}

    // The real children, for events.
    QWidget* canvasWidget() const { return list.Picture1; }
    QLineEdit* textBox() const { return list.Text1; }
    QScrollBar* scrollBar() const { return list.VScroll1; }
    QLabel* button() const { return list.command1; }

    bool canvasHidden() const { return list.Picture1->isHidden(); }
    bool scrollBarHidden() const { return list.VScroll1->isHidden(); }
    int canvasHeight() const { return list.Picture1->height(); }
    int canvasWidth() const { return list.Picture1->width(); }
    void hideCanvas() { list.Picture1->hide(); }
    int scrollValue() const { return list.VScroll1->value(); }
    int scrollMaximum() const { return list.VScroll1->maximum(); }
    // Moves the bar as a user would; the list repaints inside this call.
    void setScrollValue(int value) { list.VScroll1->setValue(value); }

    void DrawRows(int16_t first, int16_t last) { list.DrawRows(first, last); }
    void DrawOneRow(int16_t row) { list.DrawOneRow(row); }
    void InvertRowStrip(int16_t row) { list.InvertRowStrip(row); }

    QString LastAddedIndex() const { return list.LastAddedIndex(); }
    QString ChosenIndex() const { return list.ChosenIndex(); }
    void ChosenIndex(const QString& index) { list.ChosenIndex(index); }
    QString Text1() const { return list.Text1->text(); }
    void Text1(const QString& text) { list.Text1->setText(text); }

    // The upper bound of Items: -1 while it has no storage.
    int itemsUpperBound() const { return static_cast<int>(list.m_state.Items.size()) - 1; }
    // The whole record of item i (from 1), as stored.
    QString record(int item) const { return list.m_state.Items.at(static_cast<size_t>(item)); }
    // Column c of item i (from 1), as stored.
    QString column(int item, int c) const
    {
        return itemrecord::Split(list.m_state.Items.at(static_cast<size_t>(item))).value(c);
    }
    void column(int item, int c, const QString& text)
    {
        QStringList columns = itemrecord::Split(list.m_state.Items.at(static_cast<size_t>(item)));
        columns[c] = text;
        list.m_state.Items[static_cast<size_t>(item)] = itemrecord::join(columns);
    }

private:
    UserControl1& list;
};

// Failures print the value, not its bytes.
inline void PrintTo(const AnyValue& value, std::ostream* out)
{
    if (value.isEmpty())
        *out << "(empty)";
    else if (value.isNumber())
        *out << value.toNumber();
    else
        *out << '"' << value.toText().toStdString() << '"';
}

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

// The screen's twips per pixel, down and across.
double twipsPerPixelY();
double twipsPerPixelX();
// R(v) written out again for the expectations: a half goes to the even neighbour.
double halfEven(double v);
int pixelsDown(double twips);
// Height of "M" in twips in the list's measuring font, as the desktop reports it.
double measuredTextHeight(const UserControl1& list);

// A control as a form loads it from a block with no settings of its own.
std::unique_ptr<UserControl1> loadedList();
// The game's log as the main window sets it up.
std::unique_ptr<UserControl1> movesListAsSetUp();
// A list shown in list mode with items "item 1" .. "item n", never painted: TopRow
// stays -1.
std::unique_ptr<UserControl1> unpaintedList(int items = 0);
// A plain list 300 pixels wide on a white canvas, shown from item 1, as a host would
// set one up; not on the screen.
std::unique_ptr<UserControl1> whiteList(int items, int16_t dropDownHeight = 2000);
// Whether the strip of canvas row `row` is inverted: read at the canvas' right end,
// where no text reaches.
bool rowMarked(const UserControl1& list, int row);
// Whether every pixel of the image from line `top` down is `colour`.
bool blank(const QImage& image, QRgb colour, int top = 0);
// Appends items "item 1" .. "item n".
void appendItems(UserControl1& list, int n);
// Appends one item per text, in order.
void appendTexts(UserControl1& list, const QStringList& texts);
// Additem with all five arguments; gives ipic and ItemColor as the list settled them.
std::pair<int16_t, int32_t> addFull(UserControl1& list, const QString& text, int16_t itemx,
                                    int16_t ipic, int32_t colour, const QString& font = {});
// The texts of all items, first to last.
QStringList texts(const UserControl1& list);
// The whole records of all items, first to last.
std::vector<QString> records(UserControl1& list);
// The code of the ListError a call ends in, or 0 when it ends normally.
int errorCode(const std::function<void()>& call);
