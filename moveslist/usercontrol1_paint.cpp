#include "moveslist/usercontrol1.h"

#include "moveslist/itemrecord.h"
#include "moveslist/listerror.h"
#include "moveslist/listnumbers.h"
#include "moveslist/picturebox.h"

using moveslist::to16;
using moveslist::to32;

namespace col = itemrecord;

namespace {

double divide(double a, double b)
{
    if (b == 0)
        throw ListError(ListErrorCode::DivisionByZero);
    return a / b;
}

} // namespace

// Rows are drawn from the canvas' top whichever items they are: this is the whole of
// scrolling. Nothing is drawn while the canvas is hidden or `first` is negative.
void UserControl1::DrawRows(int16_t first, int16_t last)
{
    if (last > m_state.ItemCount)
        last = to16(m_state.ItemCount);
    if (first < 0 || Picture1->isHidden())
        return;
    Picture1->Cls();
    int32_t counter = -1;
    for (int32_t i = first; i <= last; ++i) {
        ++counter;
        m_state.NextRowTop = to16(double(counter) * m_state.RowTwips);
        drawItem(i, counter);
    }
    m_state.TopRow = first;
    m_state.BottomRow = last;
}

// Draws one item at its own place without clearing, shown canvas or not.
void UserControl1::DrawOneRow(int16_t row)
{
    if (row > m_state.ItemCount)
        return;
    m_state.NextRowTop = to16((row - 1.0) * m_state.RowTwips);
    drawItem(row, row - 1);
    m_state.BottomRow = row;
}

// Column 5 is rewritten at every draw, so that it always holds the last drawn width.
void UserControl1::drawItem(int32_t item, int32_t counter)
{
    const auto entry = static_cast<size_t>(item);
    m_state.ItemColumns =
        col::Split(entry < m_state.Items.size() ? m_state.Items[entry] : QString());
    if (m_state.DrawStyleValue == 1)
        loadRowPicture(moveslist::numericRead(col::column(m_state.ItemColumns, col::PictureIndex)));
    int32_t width = 0;
    DrawRow(counter, col::column(m_state.ItemColumns, col::Text),
            col::column(m_state.ItemColumns, col::FontName),
            col::column(m_state.ItemColumns, col::Colour), m_state.NextRowTop, width);
    const QString drawn = moveslist::numberText(width);
    QString& record = m_state.Items[entry];
    // A record of the six columns keeps all but its last: only the width is written,
    // and a row drawn at the width it had leaves its record as it was.
    if (m_state.ItemColumns.size() == col::DrawnWidth + 1) {
        const qsizetype last = record.lastIndexOf(QLatin1Char('\t')) + 1;
        if (QStringView(record).mid(last) != drawn)
            record.replace(last, record.size() - last, drawn);
        return;
    }
    QStringList columns = m_state.ItemColumns.mid(0, col::DrawnWidth);
    columns.append(drawn);
    record = col::join(columns);
}

void UserControl1::DrawRow(int32_t rowInView, const QString& text, const QString& font,
                           const QString& colour, int16_t y, int32_t& width)
{
    const bool withPicture = m_state.DrawStyleValue != 0;
    const double top = R((m_state.RowTwips - m_state.TextTwips) / 2.0 + y);
    const auto py = static_cast<int>(R(divide(top, m_state.PixelTwipsY)));
    const double left = withPicture ? m_state.RowTwips + 96.0 : 48.0;
    const auto px = static_cast<int>(R(divide(left, m_state.PixelTwipsX)));
    DrawRowText(px, py, text, colour, font, width);
    if (withPicture) {
        width = to32(double(width) + m_state.RowTwips + 96);
        drawRowPicture(y);
    }
    if (m_state.GridLinesOn == 1)
        drawGridLine(rowInView);
}

// The text goes through Picture3 and lands on the canvas as one block, as wide as the
// canvas: its own background, the text, and the rest of the band wiped in one step.
// A row printed before in the same colour and font is copied from what Picture3 held
// then, pixel for pixel: a new line on top of the log prints one row, not all of them.
void UserControl1::DrawRowText(int x, int y, const QString& text, const QString& colour,
                               const QString& font, int32_t& width)
{
    const auto rowPixels = static_cast<int>(R(divide(m_state.RowTwips, m_state.PixelTwipsY)));
    Picture3->foreColor(to32(moveslist::numericRead(colour)));
    Picture3->fontName(font);
    const QString key = text + QLatin1Char('\t') + colour + QLatin1Char('\t') + font;
    const auto stamp = std::make_tuple(Picture3->BackColor(), Picture3->image().size(),
                                       Picture3->FontSize(), Picture3->image().devicePixelRatio());
    if (stamp != m_bandStamp || m_keptBands.size() >= MaxKeptBands) {
        m_keptBands.clear();
        m_bandStamp = stamp;
    }
    if (const auto kept = m_keptBands.constFind(key); kept != m_keptBands.constEnd()) {
        width = kept->width;
        Picture1->BitBlt(x, y, Picture1->width(), rowPixels, kept->band, 0, 0);
        return;
    }
    Picture3->Cls();
    Picture3->Print(text);
    width = to32(R(Picture3->TextWidth(text)));
    Picture1->BitBlt(x, y, Picture1->width(), rowPixels, *Picture3, 0, 0);
    m_keptBands.insert(key, {Picture3->image(), width});
}

// AND leaves the row as it is wherever the picture is white; a picture that cannot
// be painted so is copied plainly, a little narrower.
void UserControl1::drawRowPicture(int16_t y)
{
    double d = (m_state.RowTwips - childHeight(Picture2)) / 2.0;
    if (d < 0)
        d = 2;
    const QPointF at(24, R(d + y));
    const QSizeF size(m_state.RowTwips + 20.0, m_state.RowTwips - 40.0);
    try {
        Picture1->PaintPicture(Picture2->Picture(), at, size, QPointF(0, 0), size,
                               PictureBox::SourceAnd);
    } catch (const std::exception&) {
        const QSizeF narrower(m_state.RowTwips, m_state.RowTwips - 40.0);
        Picture1->PaintPicture(Picture2->Picture(), at, narrower, QPointF(0, 0), narrower,
                               PictureBox::SourceCopy);
    }
}

// Two pixels above the row's lower end. Under pen OR NOT destination the default
// colour 0 inverts what lies below: black on a white list.
void UserControl1::drawGridLine(int32_t rowInView)
{
    Picture1->DrawMode(PictureBox::MergeNotPen);
    const double ly = (rowInView + 1.0) * m_state.RowTwips - 2 * screenTwipsY();
    Picture1->Line(ly, 0, childWidth(Picture1), m_state.GridColorValue);
    Picture1->DrawMode(PictureBox::Invert);
}

// The selection mark: from 24 twips above the row to the next row's top, every pixel
// inverted, so a second call on the same row takes it off.
void UserControl1::InvertRowStrip(int16_t row)
{
    Picture1->DrawMode(PictureBox::Invert);
    const double top = double(row) * m_state.RowTwips;
    Picture1->filledBox(QPointF(0, top - 24), QPointF(childWidth(Picture1), top + m_state.RowTwips),
                        0);
}

void UserControl1::loadRowPicture(double index)
{
    if (!m_state.PictureListRef)
        throw ListError(ListErrorCode::ObjectNotSet);
    Picture2->Picture(m_state.PictureListRef->ListImages(to16(index)).Picture);
}
