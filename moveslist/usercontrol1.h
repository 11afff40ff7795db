#pragma once

#include "moveslist/anyvalue.h"
#include "moveslist/imagelist.h"
#include "moveslist/liststate.h"
#include "moveslist/propertybag.h"

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QString>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <memory>
#include <tuple>

class ListAccessible;
class PictureBox;
class QLabel;
class QLineEdit;
class QMouseEvent;
class QScrollBar;

// The owner-drawn list that holds the game's log (MovesList): text rows, each with
// its own colour, font name, item data and picture, drawn once onto a kept canvas.
// Lengths are twips, colours 0x00BBGGRR or a system colour with the top bit set.
// Item numbers count from 1; the `it` of an item operation counts from 0.
//
// Failures of the platform pass to the caller as ListError (codes in listerror.h);
// an index out of range is no failure and is ignored.
//
// Writing the scroll bar's value or the control's height runs VScroll1_Change or
// UserControl_Resize inside that write; Additem relies on that order.
//
// In drop-down mode (Mode 1) the control opens by making itself taller, over what its
// host placed below the head: the host positions it by hand, not in a layout that
// would take the height back, leaves room in the parent, and stacks it above the
// widgets its open list must cover (its place among them is the host's).
class UserControl1 : public QWidget {
    Q_OBJECT
    friend class ListProbe;
    // The stored properties by their stored keys, for Qt Designer and QUiLoader.
    Q_PROPERTY(bool Enabled READ Enabled WRITE Enabled)
    Q_PROPERTY(QString Fontname READ Fontname WRITE Fontname)
    Q_PROPERTY(double FontSize READ FontSize WRITE FontSize)
    Q_PROPERTY(int ForeColor READ forecolor WRITE forecolor)
    Q_PROPERTY(bool GridLines READ GridLines WRITE GridLines)
    Q_PROPERTY(int BorderStyle READ BorderStyle WRITE designBorderStyle)
    Q_PROPERTY(int DropDownHeight READ DropDownHeight WRITE DropDownHeight)
    Q_PROPERTY(int Mode READ Mode WRITE Mode)
    Q_PROPERTY(int RowHeight READ designRowHeight WRITE designRowHeight)
    Q_PROPERTY(int DrawStyle READ DrawStyle WRITE DrawStyle)
    Q_PROPERTY(int BackColor READ BackColor WRITE BackColor)
    Q_PROPERTY(int GridColor READ GridColor WRITE GridColor)
    Q_PROPERTY(bool ToolTip READ ToolTip WRITE ToolTip)

public:
    // Runs UserControl_Initialize only: the host then reads or initialises the
    // properties, as a form does when it loads an instance.
    explicit UserControl1(QWidget* parent = nullptr);
    ~UserControl1() override;
    // A control loaded from its stored "-LB" block: properties read, then sized to
    // the block's extent. Its rows show once Mode is assigned.
    static UserControl1* fromBlock(const QByteArray& block, QWidget* parent = nullptr);

    // A host's size write is laid out inside the write, hidden or shown: Qt itself
    // delivers a hidden widget's new size only when it is shown.
    void resize(int w, int h);
    void resize(const QSize& size);
    void setGeometry(int x, int y, int w, int h);
    void setGeometry(const QRect& rect);

    bool Enabled() const;
    void Enabled(bool New_Enabled);

    // itemx: 0 or below appends, -1 puts the item first, k from 1 puts it at index
    // k. ipic and ItemColor come back as the list settled them (-1: take the last
    // item's). Overflow past 32,768 items is ListError 6, after the item is stored.
    void Additem(QString& s, int16_t itemx, int16_t& ipic, QString& ItemFont, int32_t& ItemColor);
    void Additem(QString& s, int16_t itemx = 0);
    void RemoveItem(const AnyValue& it);

    std::shared_ptr<ImageList> PictureList() const;
    void PictureList(std::shared_ptr<ImageList> New_PictureList);

    AnyValue ListCount() const;
    // Always refused: ListError 387 at design time, 382 at run time.
    [[noreturn]] void ListCount(const AnyValue& New_ListCount);

    QString Fontname() const;
    void Fontname(const QString& New_Fontname);
    float FontSize() const;
    void FontSize(float New_FontSize);
    int32_t forecolor() const;
    void forecolor(int32_t New_forecolor);
    bool GridLines() const;
    void GridLines(bool New_GridLines);
    int16_t BorderStyle() const;
    void BorderStyle(int16_t New_BorderStyle);
    int16_t DropDownHeight() const;
    void DropDownHeight(int16_t New_DropDownHeight);
    int16_t Mode() const;
    void Mode(int16_t New_Mode);
    AnyValue RowHeight() const;
    // Below 1 is ListError 380: the rows are cut to whole rows by dividing by it.
    void RowHeight(const AnyValue& New_RowHeight);

    // Whole records compared as binary text, the text first; then the rows in view
    // are repainted. 32,768 items are ListError 6: the bounds are 16 bits.
    void SortAscending();
    void SortDescending();

    // The number of the first item from `it` + 1 on (sdir 1: the last, counting down
    // from the last item) whose text matches the pattern ftext (see likepattern.h);
    // 0 when none does, and the empty value when `it` + 1 names no item. Case counts
    // only with casen 1. A bad pattern is ListError 93.
    AnyValue Find(int16_t sdir, int16_t it, const QString& ftext, int16_t casen = 0);
    // Puts item i (from 1) on the first canvas row, marked and chosen; a closed
    // drop-down opens. An item outside the list is ignored.
    void ShowItem(const AnyValue& i);

    // One column of item `it` (from 0) replaced in place; an `it` outside the list is
    // ignored. An itd or ipic with no numeric reading is ListError 13. An item on the
    // canvas repaints the rows in view.
    void UpdateIcon(const AnyValue& it, const AnyValue& ipic);
    void UpdateText(const AnyValue& it, const QString& s);
    void UpdateFont(const AnyValue& it, const QString& font);
    void UpdateForeColor(const AnyValue& it, int32_t fc);
    void UpdateItemData(const AnyValue& it, const AnyValue& itd);

    AnyValue GetItemData(const AnyValue& i) const;
    // it -1 names the item added last.
    void SetItemData(AnyValue it, const AnyValue& valuex);
    AnyValue List(const AnyValue& it) const;
    void List(const AnyValue& it, const AnyValue& New_List);
    AnyValue text() const;
    void text(const AnyValue& New_text);
    AnyValue ListIndex() const;
    // Refused at design time with ListError 387, before anything is stored.
    void ListIndex(const AnyValue& New_ListIndex);
    int16_t DrawStyle() const;
    void DrawStyle(int16_t New_DrawStyle);
    int32_t BackColor() const;
    void BackColor(int32_t New_BackColor);
    int32_t GridColor() const;
    void GridColor(int32_t New_GridColor);
    void Clear();
    bool ToolTip() const;
    void ToolTip(bool New_ToolTip);

    // The property exchange with the host's stored block.
    void UserControl_InitProperties();
    void UserControl_ReadProperties(const PropertyBag& PropBag);
    void UserControl_WriteProperties(PropertyBag& PropBag) const;

    // For a form designer, which offers any number: RowHeight in whole twips (0 while
    // the first item measures it), and values the setters would refuse left out.
    int designRowHeight() const;
    void designRowHeight(int twips);
    void designBorderStyle(int style);

    // Run time unless told otherwise; design time changes what some setters refuse.
    bool designTime() const { return m_inDesign; }
    void setDesignTime(bool design) { m_inDesign = design; }

    const ListState& state() const { return m_state; }

    // What a screen reader says of an item (from 1): its text, and whatever the host's
    // voice makes of the item's colour.
    using RowVoice = std::function<QString(const QString& text, int32_t colour)>;
    void setRowVoice(RowVoice voice) { m_rowVoice = std::move(voice); }
    QString rowAccessibleName(int32_t item) const;
    // Where an item stands, in this control's pixels; empty while it is out of view.
    QRect itemRect(int32_t item) const;
    // The item under a point of this control; 0 for none.
    int32_t itemAt(QPoint at) const;
    // Picture1's kept pixels, as the rows were last drawn.
    const QImage& canvas() const;

signals:
    // The host gets copies by reference: what it writes to them changes nothing.
    // Click and MouseDown are declared for hosts that connect them; nothing raises them.
    void MouseMove(int16_t& Button, int16_t& Shift, float& X, float& Y);
    void KeyDown(int16_t& KeyCode, int16_t& Shift);
    void KeyPress(int16_t& KeyAscii);
    void KeyUp(int16_t& KeyCode, int16_t& Shift);
    void Click();
    void MouseDown(int16_t& Button, int16_t& Shift, float& X, float& Y);
    void MouseUp(int16_t& Button, int16_t& Shift, float& X, float& Y);
    // A stored property changed; the host's block is out of date.
    void propertyChanged(const QString& PropertyName);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct MouseArguments {
        int16_t Button;
        int16_t Shift;
        float X;
        float Y;
    };

    void UserControl_Initialize();
    void createChildren();
    void wireEvents();
    bool picture1Event(QEvent* event);
    bool command1Event(QEvent* event);
    MouseArguments mouseArguments(const QMouseEvent& event, bool move) const;

    // Mouse.
    void Picture1_MouseUp(int16_t& Button, int16_t& Shift, float& X, float& Y);
    void Picture1_MouseMove(int16_t& Button, int16_t& Shift, float& X, float& Y);
    void command1_MouseMove(int16_t& Button, int16_t& Shift, float& X, float& Y);
    void UserControl_MouseMove(int16_t& Button, int16_t& Shift, float& X, float& Y);
    void Picture1_LostFocus();
    double rowUnder(float Y) const;
    void hoverTip(float Y);
    void raiseMouseMove(int16_t Button, int16_t Shift, float X, float Y);
    void raiseMouseUp(int16_t Button, int16_t Shift, float X, float Y);

    // Keys.
    void Picture1_KeyDown(int16_t& KeyCode, int16_t& Shift);
    void Picture1_KeyPress(int16_t& KeyAscii);
    void Picture1_KeyUp(int16_t& KeyCode, int16_t& Shift);
    void Text1_KeyDown(int16_t& KeyCode, int16_t& Shift);
    void commitTopItem(int16_t KeyCode, int16_t Shift);
    void dropHighlight();
    void keyTail(int step, int16_t KeyCode, int16_t Shift);
    void keyScrollTo(int value);
    void raiseKeyDown(int16_t KeyCode, int16_t Shift);
    void raiseKeyUp(int16_t KeyCode, int16_t Shift);

    // In-place updates.
    void updateColumn(const AnyValue& it, int column, const std::function<QString()>& newColumn);

    // Store.
    void additemInsert(QString& s, int16_t itemx, int16_t ipic, int32_t ItemColor, bool topInsert);
    void additemAppend(QString& s, int16_t ipic, int32_t ItemColor);
    QString newRecord(const QString& s, int16_t ipic, int32_t ItemColor,
                      const QString& width) const;
    // What a screen reader is told of the store's changes.
    ListAccessible* readerView();
    void announceItem(int32_t item);
    void forgetItem(int32_t item);
    void forgetItems();
    void setScrollMaximum(int32_t maximum);
    int32_t entryOf(const AnyValue& it) const;
    QString LastAddedIndex() const;
    void LastAddedIndex(const QString& index);
    QString ChosenIndex() const;
    void ChosenIndex(const QString& index);

    // Sorting.
    void QuickSortUp(int16_t first, int16_t last);
    void QuickSortDown(int16_t first, int16_t last);

    // Painting.
    void DrawRows(int16_t first, int16_t last);
    void DrawOneRow(int16_t row);
    void drawItem(int32_t item, int32_t counter);
    void DrawRow(int32_t rowInView, const QString& text, const QString& font, const QString& colour,
                 int16_t y, int32_t& width);
    void DrawRowText(int x, int y, const QString& text, const QString& colour, const QString& font,
                     int32_t& width);
    void drawRowPicture(int16_t y);
    void drawGridLine(int32_t rowInView);
    void InvertRowStrip(int16_t row);
    void loadRowPicture(double index);

    // Layout and scrolling.
    void UserControl_Resize();
    void settleSize();
    void layOutNewSize();
    void VScroll1_Change();
    void FirstItemSetup();
    void FitRows();
    void modeCommonSteps();
    void modeListBranch();
    void modeDropDownBranch();

    // Drop-down.
    void CloseDropDown();
    void OpenDropDown();
    void command1_MouseUp(int16_t& Button, int16_t& Shift, float& X, float& Y);
    void setScrollValue(int value);
    double screenTwipsX() const;
    double screenTwipsY() const;
    float buttonWidth() const;
    float sideGap() const;
    double controlWidthTwips() const;
    void setControlHeight(double twips);
    void setChildLeft(QWidget* child, double twips);
    void setChildTop(QWidget* child, double twips);
    void setChildWidth(QWidget* child, double twips);
    void setChildHeight(QWidget* child, double twips);
    double childWidth(const QWidget* child) const;
    double childHeight(const QWidget* child) const;
    int borderPixels() const;

    void applySurfaceBorder(int16_t style);
    void applySurfaceBackColor(int32_t colour);

    // What Picture3 held after printing a row, by text, colour and font, for as long as
    // its back colour, size, font size and density stay those of the stamp.
    struct KeptBand {
        QImage band;
        int32_t width;
    };
    static constexpr qsizetype MaxKeptBands = 48;
    QHash<QString, KeptBand> m_keptBands;
    std::tuple<int32_t, QSize, float, qreal> m_bandStamp;

    ListState m_state;
    bool m_inDesign = false;
    int16_t m_surfaceBorderStyle = 0;
    int32_t m_surfaceBackColor;
    int32_t m_surfaceForeColor;
    QSize m_laidOutSize;

    PictureBox* Picture1 = nullptr;
    PictureBox* Picture2 = nullptr;
    PictureBox* Picture3 = nullptr;
    QLineEdit* Text1 = nullptr;
    QScrollBar* VScroll1 = nullptr;
    QLabel* command1 = nullptr;
    RowVoice m_rowVoice;
};
