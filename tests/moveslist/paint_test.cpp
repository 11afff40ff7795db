#include "list_probe.h"

#include "moveslist/itemrecord.h"
#include "moveslist/listerror.h"

#include <QFontMetrics>
#include <QPainter>

#include <gtest/gtest.h>

#include <optional>

namespace {

constexpr int32_t White = 0x00FFFFFF;
constexpr QRgb WhitePixel = 0xFFFFFFFF;

bool ink(QRgb pixel)
{
    return (pixel & 0xFFFFFF) != 0xFFFFFF;
}

// The first inked pixel row and column inside the rows [top, bottom) of an image.
std::optional<QPoint> firstInk(const QImage& canvas, int top, int bottom)
{
    std::optional<QPoint> first;
    for (int y = std::max(0, top); y < std::min(bottom, canvas.height()); ++y)
        for (int x = 0; x < canvas.width(); ++x)
            if (ink(canvas.pixel(x, y))) {
                if (!first)
                    first = QPoint(x, y);
                first->setX(std::min(first->x(), x));
            }
    return first;
}

// Where the ink of a text starts when it is printed with its top at (0, 0), worked out
// on an image of our own.
QPoint inkOffset(const QFont& font, const QString& text)
{
    QImage image(200, 60, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(font);
    painter.drawText(QPoint(0, QFontMetrics(font, &image).ascent()), text);
    painter.end();
    return firstInk(image, 0, image.height()).value_or(QPoint());
}

class Painting : public ::testing::Test {
protected:
    void SetUp() override
    {
        list->DropDownHeight(3000);
        list->Mode(0);
        list->BackColor(White);
    }

    // Black rows of "MMMM".
    void addRows(int n)
    {
        for (int i = 0; i < n; ++i)
            addFull(*list, QStringLiteral("MMMM"), 0, -1, 0);
    }

    QFont rowFont() const
    {
        QFont font(list->state().ItemFontName);
        font.setPointSizeF(list->FontSize());
        return font;
    }

    // Top pixel of the text of canvas row k: the text is centred in its row, and each
    // row is brought to a whole pixel by itself.
    int textTop(int k) const
    {
        const ListState& st = list->state();
        const double top = halfEven((st.RowTwips - st.TextTwips) / 2.0 + k * st.RowTwips);
        return static_cast<int>(halfEven(top / halfEven(twipsPerPixelY())));
    }

    void expectTextRows(int rows)
    {
        const QPoint ink = inkOffset(rowFont(), QStringLiteral("MMMM"));
        const int left = static_cast<int>(halfEven(48 / halfEven(twipsPerPixelX())));
        for (int k = 0; k < rows; ++k) {
            const auto found = firstInk(list->canvas(), textTop(k), textTop(k + 1));
            ASSERT_TRUE(found) << "row " << k;
            EXPECT_EQ(found->y(), textTop(k) + ink.y()) << "row " << k;
            EXPECT_EQ(found->x(), left + ink.x()) << "row " << k;
        }
    }

    std::unique_ptr<UserControl1> list = loadedList();
    ListProbe probe{*list};
};

TEST_F(Painting, TextRowsStandAtTheirOwnWholePixelCentredInTheRow)
{
    list->RowHeight(234);
    addRows(5);
    // With 15 twips to the pixel the rows start at pixels 0, 16, 31, 47 and 62.
    if (twipsPerPixelY() == 15 && list->state().TextTwips == 234) {
        EXPECT_EQ(QList<int>({textTop(1), textTop(2), textTop(4)}), QList<int>({16, 31, 62}));
    }
    expectTextRows(5);
    list->Clear();
    list->RowHeight(300);
    addRows(4);
    ASSERT_GT(textTop(0), 0);
    expectTextRows(4);
}

TEST_F(Painting, TheRowsColumnFiveHoldsItsDrawnWidth)
{
    const QString wide(300, QLatin1Char('W'));
    QString s = wide;
    list->Additem(s);
    const double width =
        halfEven(QFontMetrics(rowFont()).horizontalAdvance(wide) * twipsPerPixelX());
    EXPECT_EQ(probe.column(1, itemrecord::DrawnWidth), QString(" %1").arg(width));
    // Cut at the canvas' edge, with its full width kept for the tip.
    EXPECT_GT(width, probe.canvasWidth() * twipsPerPixelX());
}

TEST_F(Painting, RowsPastTheLastItemStayBlankAndAHiddenCanvasIsNotRepainted)
{
    addRows(3);
    probe.DrawRows(1, 10);
    EXPECT_EQ(list->state().BottomRow, 3);
    EXPECT_FALSE(firstInk(list->canvas(), textTop(3), list->canvas().height()));
    probe.DrawRows(3, 2);
    EXPECT_FALSE(firstInk(list->canvas(), 0, list->canvas().height()));
    EXPECT_EQ(std::make_pair(list->state().TopRow, list->state().BottomRow),
              std::make_pair(int16_t(3), int16_t(2)));

    probe.hideCanvas();
    probe.DrawRows(1, 3);
    EXPECT_FALSE(firstInk(list->canvas(), 0, list->canvas().height()));
    EXPECT_EQ(list->state().TopRow, 3);
    // One row is still drawn, shown or not.
    probe.DrawOneRow(2);
    EXPECT_TRUE(firstInk(list->canvas(), 0, list->canvas().height()));
    EXPECT_EQ(list->state().BottomRow, 2);
}

// Pen OR NOT destination: the default colour 0 gives black on white, and on a black
// ground the line is white whatever the pen adds to it.
TEST_F(Painting, TheGridLineStandsTwoPixelsAboveTheRowsEndOrdWithTheInverseOfTheGround)
{
    list->GridLines(true);
    addRows(4);
    const QImage& canvas = list->canvas();
    const int x = canvas.width() - 2;
    for (int k = 0; k < 4; ++k) {
        const int line = pixelsDown((k + 1.0) * list->state().RowTwips) - 2;
        EXPECT_EQ(QList<QRgb>({canvas.pixel(0, line), canvas.pixel(x, line),
                               canvas.pixel(x, line - 1), canvas.pixel(x, line + 1)}),
                  QList<QRgb>({0xFF000000, 0xFF000000, WhitePixel, WhitePixel}))
            << "row " << k;
    }
    const int line = pixelsDown(list->state().RowTwips) - 2;
    list->GridColor(0x000000FF);
    probe.DrawRows(1, 1);
    EXPECT_EQ(list->canvas().pixel(1, line), qRgb(255, 0, 0));
    list->BackColor(0);
    probe.DrawRows(1, 1);
    EXPECT_EQ(list->canvas().pixel(1, line), WhitePixel);
}

TEST_F(Painting, TheStripIsInvertedByOneCallAndRestoredByTheNext)
{
    list->GridLines(true);
    addRows(4);
    const QImage before = list->canvas().copy();
    probe.InvertRowStrip(1);
    const QImage& after = list->canvas();
    const double rowTwips = list->state().RowTwips;
    const int top = pixelsDown(rowTwips - 24);
    const int bottom = pixelsDown(2 * rowTwips);
    for (int y = 0; y < after.height(); ++y)
        for (int x = 0; x < after.width(); ++x) {
            const QRgb was = before.pixel(x, y) & 0xFFFFFF;
            const QRgb is = after.pixel(x, y) & 0xFFFFFF;
            if (y >= top && y < bottom)
                ASSERT_EQ(is, ~was & 0xFFFFFF) << x << ", " << y;
            else
                ASSERT_EQ(is, was) << x << ", " << y;
        }
    probe.InvertRowStrip(1);
    EXPECT_EQ(list->canvas(), before);
}

class RowPictures : public Painting {
protected:
    void SetUp() override
    {
        Painting::SetUp();
        list->BackColor(0x0000FFFF);
        list->RowHeight(234);
        list->DrawStyle(1);
        list->PictureList(pictures);
    }

    void addPictureRow(int width, int height)
    {
        QImage picture(width, height, QImage::Format_RGB32);
        picture.fill(qRgb(0, 255, 255));
        pictures->add(picture);
        addFull(*list, QStringLiteral("with picture"), 0, static_cast<int16_t>(pictures->count()),
                0);
    }

    // A point inside the picture's place on the first row.
    QRgb pictureArea() const
    {
        return list->canvas().pixel(static_cast<int>(halfEven(24 / twipsPerPixelX())) + 2, 3) &
               0xFFFFFF;
    }

    std::shared_ptr<ImageList> pictures = std::make_shared<ImageList>();
};

// Yellow ground, cyan picture: AND gives green, a plain copy cyan. A picture too small
// for the AND is copied, and one too small for both fails the call.
TEST_F(RowPictures, APictureIsAndedWithTheRowOrCopied)
{
    addPictureRow(40, 40);
    EXPECT_EQ(pictureArea(), 0x00FF00u);
    EXPECT_EQ(
        probe.column(1, itemrecord::DrawnWidth).toInt() -
            halfEven(QFontMetrics(rowFont()).horizontalAdvance("with picture") * twipsPerPixelX()),
        234 + 96);
    list->Clear();
    const int width = static_cast<int>(halfEven(234 / twipsPerPixelX()));
    ASSERT_LT(width, halfEven(254 / twipsPerPixelX()));
    addPictureRow(width, width);
    EXPECT_EQ(pictureArea(), 0x00FFFFu);
    EXPECT_EQ(errorCode([&] { addPictureRow(4, 4); }), ListErrorCode::InvalidPicture);
}

} // namespace
