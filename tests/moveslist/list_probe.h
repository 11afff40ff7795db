#pragma once

#include "moveslist/usercontrol1.h"

#include <QFont>
#include <QString>

#include <functional>
#include <memory>

// Reaches the list's children and inner steps, which a host never sees.
class ListProbe {
public:
    explicit ListProbe(UserControl1& list) : list(list) {}

    bool canvasHidden() const;
    bool scrollBarHidden() const;
    int canvasHeight() const;
    int canvasWidth() const;
    int scrollValue() const;
    int scrollMaximum() const;
    // Moves the bar as a user would; the list repaints inside this call.
    void setScrollValue(int value);

    void DrawRows(int16_t first, int16_t last);
    void DrawOneRow(int16_t row);
    void InvertRowStrip(int16_t row);
    void hideCanvas();

    QString LastAddedIndex() const;
    QString ChosenIndex() const;
    void ChosenIndex(const QString& index);
    QString Text1() const;
    void Text1(const QString& text);

    // The upper bound of Items: -1 while it has no storage.
    int itemsUpperBound() const;
    // Column c of item i (from 1), as stored.
    QString column(int item, int c) const;

private:
    UserControl1& list;
};

// The screen's twips per pixel, down and across.
double TwipsPerPixelY();
double TwipsPerPixelX();
// R(v) written out again for the expectations: a half goes to the even neighbour.
double HalfEven(double v);
// A twips length on the screen, in pixels.
int PixelsDown(double twips);

// Height of "M" in twips in the list's measuring font, as the desktop reports it.
double MeasuredTextHeight(const UserControl1& list);

// A control as a form loads it from a block with no settings of its own.
std::unique_ptr<UserControl1> LoadedList();
// The game's log as the main window sets it up.
std::unique_ptr<UserControl1> MovesListAsSetUp();

// Appends items "item 1" .. "item n".
void AppendItems(UserControl1& list, int n);

// The code of the ListError a call ends in, or 0 when it ends normally.
int ErrorCode(const std::function<void()>& call);
