#include "moveslist/usercontrol1.h"

#include "moveslist/itemrecord.h"
#include "moveslist/listerror.h"
#include "moveslist/listnumbers.h"
#include "moveslist/picturebox.h"

using moveslist::To16;
using moveslist::To32;

namespace col = itemrecord;

namespace {

double Divide(double a, double b)
{
    if (b == 0)
        throw ListError(ListErrorCode::DivisionByZero,
                        QStringLiteral("Division by zero: the rows have not been measured"));
    return a / b;
}

} // namespace

// Rows are drawn from the canvas' top whichever items they are: this is the whole of
// scrolling. Nothing is drawn while the canvas is hidden or `first` is negative.
void UserControl1::DrawRows(int16_t first, int16_t last)
{
    if (last > st.ItemCount)
        last = To16(st.ItemCount);
    if (first < 0 || Picture1->isHidden())
        return;
    Picture1->Cls();
    int32_t counter = -1;
    for (int32_t i = first; i <= last; ++i) {
        ++counter;
        st.NextRowTop = To16(double(counter) * st.RowTwips);
        DrawItem(i, counter);
    }
    st.TopRow = first;
    st.BottomRow = last;
}

// Draws one item at its own place without clearing, shown canvas or not.
void UserControl1::DrawOneRow(int16_t row)
{
    if (row > st.ItemCount)
        return;
    st.NextRowTop = To16((row - 1.0) * st.RowTwips);
    DrawItem(row, row - 1);
    st.BottomRow = row;
}

// Column 5 is rewritten at every draw, so that it always holds the last drawn width.
void UserControl1::DrawItem(int32_t item, int32_t counter)
{
    const auto entry = static_cast<size_t>(item);
    st.ItemColumns = col::Split(entry < st.Items.size() ? st.Items[entry] : QString());
    if (st.DrawStyleValue == 1)
        LoadRowPicture(moveslist::numericRead(col::Column(st.ItemColumns, col::PictureIndex)));
    int32_t width = 0;
    DrawRow(counter, col::Column(st.ItemColumns, col::Text),
            col::Column(st.ItemColumns, col::FontName), col::Column(st.ItemColumns, col::Colour),
            st.NextRowTop, width);
    QStringList columns = st.ItemColumns.mid(0, col::DrawnWidth);
    columns.append(moveslist::numberText(width));
    st.Items[entry] = col::Join(columns);
}

void UserControl1::DrawRow(int32_t rowInView, const QString& text, const QString& font,
                           const QString& colour, int16_t y, int32_t& width)
{
    const bool withPicture = st.DrawStyleValue != 0;
    const double top = R((st.RowTwips - st.TextTwips) / 2.0 + y);
    const auto py = static_cast<int>(R(Divide(top, st.PixelTwipsY)));
    const double left = withPicture ? st.RowTwips + 96.0 : 48.0;
    const auto px = static_cast<int>(R(Divide(left, st.PixelTwipsX)));
    DrawRowText(px, py, text, colour, font, width);
    if (withPicture) {
        width = To32(double(width) + st.RowTwips + 96);
        DrawRowPicture(y);
    }
    if (st.GridLinesOn == 1)
        DrawGridLine(rowInView);
}

// The text goes through Picture3 and lands on the canvas as one block, as wide as the
// canvas: its own background, the text, and the rest of the band wiped in one step.
void UserControl1::DrawRowText(int x, int y, const QString& text, const QString& colour,
                               const QString& font, int32_t& width)
{
    Picture3->Cls();
    Picture3->ForeColor(To32(moveslist::numericRead(colour)));
    Picture3->FontName(font);
    Picture3->Print(text);
    width = To32(R(Picture3->TextWidth(text)));
    const auto rowPixels = static_cast<int>(R(Divide(st.RowTwips, st.PixelTwipsY)));
    Picture1->BitBlt(x, y, Picture1->width(), rowPixels, *Picture3, 0, 0);
}

// AND leaves the row as it is wherever the picture is white; a picture that cannot
// be painted so is copied plainly, a little narrower.
void UserControl1::DrawRowPicture(int16_t y)
{
    double d = (st.RowTwips - childHeight(Picture2)) / 2.0;
    if (d < 0)
        d = 2;
    const QPointF at(24, R(d + y));
    const QSizeF size(st.RowTwips + 20.0, st.RowTwips - 40.0);
    try {
        Picture1->PaintPicture(Picture2->Picture(), at, size, QPointF(0, 0), size,
                               PictureBox::SourceAnd);
    } catch (const std::exception&) {
        const QSizeF narrower(st.RowTwips, st.RowTwips - 40.0);
        Picture1->PaintPicture(Picture2->Picture(), at, narrower, QPointF(0, 0), narrower,
                               PictureBox::SourceCopy);
    }
}

// Two pixels above the row's lower end. Under pen OR NOT destination the default
// colour 0 inverts what lies below: black on a white list.
void UserControl1::DrawGridLine(int32_t rowInView)
{
    Picture1->DrawMode(PictureBox::MergeNotPen);
    const double ly = (rowInView + 1.0) * st.RowTwips - 2 * ScreenTwipsY();
    Picture1->Line(QPointF(0, ly), QPointF(childWidth(Picture1), ly), st.GridColorValue);
    Picture1->DrawMode(PictureBox::Invert);
}

// The selection mark: from 24 twips above the row to the next row's top, every pixel
// inverted, so a second call on the same row takes it off.
void UserControl1::InvertRowStrip(int16_t row)
{
    Picture1->DrawMode(PictureBox::Invert);
    const double top = double(row) * st.RowTwips;
    Picture1->FilledBox(QPointF(0, top - 24), QPointF(childWidth(Picture1), top + st.RowTwips), 0);
}

void UserControl1::LoadRowPicture(double index)
{
    if (!st.PictureListRef)
        throw ListError(ListErrorCode::ObjectNotSet,
                        QStringLiteral("Object variable not set: DrawStyle 1 needs a PictureList"));
    Picture2->Picture(st.PictureListRef->ListImages(To16(index)).Picture);
}
