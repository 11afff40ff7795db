#pragma once

#include "moveslist/anyvalue.h"
#include "moveslist/imagelist.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <deque>
#include <memory>

// The state of one list control, in the order the control declares it. Widths are
// signed and kept as declared: row numbers and twips heights are 16 bits.
struct ListState {
    AnyValue ListCountStore; // what the property exchange gives; not the item count
    std::shared_ptr<ImageList> PictureListRef;
    bool EnabledValue = false;
    int32_t RowTwips = 0; // 0 until RowHeight or the first item sets it
    int32_t SelectedRow = -1;
    int32_t ItemCount = 0;
    // Item i (from 1) at entry i; entry 0 is never filled. No storage until the
    // first Additem. A deque, so that a line on top of a long log moves no other.
    std::deque<QString> Items;
    int16_t NextRowTop = 0;
    int16_t GridLinesOn = 0;
    int16_t ViewHeight = 0;
    int16_t ComboMode = 0;
    int16_t RowsInView = 0;
    int16_t TopRow = 0; // -1: the canvas counts as unpainted
    int16_t BottomRow = 0;
    int16_t TextTwips = 0;
    QString ItemFontName;            // sticky between calls
    mutable QStringList ItemColumns; // scratch: the record split last, by any member
    int16_t PixelTwipsX = 0;
    int16_t PixelTwipsY = 0;
    int16_t ControlWidth = 0;
    bool ToolTipOn = false;
    int32_t GridColorValue = 0;
    int16_t DrawStyleValue = 0;
    AnyValue ListIndexStore;
    AnyValue TextStore;
    AnyValue ListStore;
    AnyValue RowHeightValue;
    int16_t ModeValue = 0;
    int16_t DropDownHeightValue = 0;
    int16_t GridLinesValue = 0;
};
