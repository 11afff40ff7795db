#pragma once

#include <QFontMetrics>
#include <QHash>
#include <QImage>
#include <QPointF>
#include <QStaticText>
#include <QWidget>

#include <cstdint>
#include <optional>
#include <utility>

// A drawing surface of the list: Picture1 (the canvas), Picture2 (the row picture)
// and Picture3 (one row's text). What is drawn goes into a kept image, which the
// paint event only copies, so the rows survive being covered and uncovered. Drawing
// coordinates are twips; BitBlt and the image are pixels.
class PictureBox : public QWidget {
    Q_OBJECT

public:
    // DrawMode values the list uses: 13 pen, 14 pen OR NOT destination, 6 NOT
    // destination.
    static constexpr int16_t CopyPen = 13;
    static constexpr int16_t MergeNotPen = 14;
    static constexpr int16_t Invert = 6;

    // PaintPicture raster codes: AND with the destination, and a plain copy.
    static constexpr uint32_t SourceAnd = 0x8800C6;
    static constexpr uint32_t SourceCopy = 0xCC0020;

    explicit PictureBox(QWidget* parent = nullptr);

    int32_t BackColor() const { return m_backColour; }
    // Erases what was drawn, as a new back colour does on the desktop.
    void BackColor(int32_t New_BackColor);
    int32_t foreColor() const { return m_foreColour; }
    void foreColor(int32_t New_ForeColor) { m_foreColour = New_ForeColor; }
    // The font that Print and the measures use; it starts as the widget's own.
    QString fontName() const { return m_drawFont.family(); }
    void fontName(const QString& New_FontName);
    float FontSize() const { return static_cast<float>(m_drawFont.pointSizeF()); }
    void FontSize(float New_FontSize);
    int16_t DrawMode() const { return m_drawMode; }
    void DrawMode(int16_t New_DrawMode) { m_drawMode = New_DrawMode; }

    // The screen's twips per pixel, read at each use.
    double twipsPerPixelX() const;
    double twipsPerPixelY() const;

    void Cls();
    void Print(const QString& text);
    double TextWidth(const QString& text) const;
    double TextHeight(const QString& text) const;
    // A level line at height y from fromX to toX, left to right, end point left out,
    // under DrawMode: the only kind of line the list draws.
    void Line(double y, double fromX, double toX, int32_t colour);
    // A filled box from one corner to the other, under DrawMode.
    void filledBox(QPointF from, QPointF to, int32_t colour);
    // Paints a part of a picture under a raster code; where the part reaches past the
    // picture, only what the picture holds is painted. A null picture fails with
    // ListError 481.
    void PaintPicture(const QImage& picture, QPointF at, QSizeF size, QPointF sourceAt,
                      QSizeF sourceSize, uint32_t rasterCode);
    // Copies a block of pixels from another surface, source copy.
    void BitBlt(int x, int y, int width, int height, const PictureBox& source, int sourceX,
                int sourceY);
    // The same from pixels kept elsewhere, at the canvas's density.
    void BitBlt(int x, int y, int width, int height, const QImage& source, int sourceX,
                int sourceY);

    // Picture2's role: holds a picture and takes its size.
    const QImage& Picture() const { return m_picture; }
    void Picture(const QImage& New_Picture);

    // What is drawn, as kept between paints.
    const QImage& image() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    // Brings the kept image to the widget's size, keeping what is drawn.
    void syncImage() const;
    // The canvas in widget pixels.
    QRect logicalRect() const;
    void horizontalLine(int y, int left, int right, QRgb pen);
    const QFontMetrics& drawMetrics() const;
    struct LaidOutText {
        QStaticText text;
        int width = 0;
    };
    const LaidOutText& layOut(const QString& text) const;
    static constexpr qsizetype MaxLaidOutTexts = 512;
    int pixelX(double twips) const;
    int pixelY(double twips) const;
    QRect pixelRect(QPointF from, QPointF to) const;
    void drawn(const QRect& area);
    // The part of the widget already waiting for the next paint.
    QRect m_waiting;

    mutable QImage m_canvas;
    QFont m_drawFont;
    mutable std::optional<QFontMetrics> m_metrics;
    mutable QHash<std::pair<QString, QString>, LaidOutText> m_laidOutTexts;
    QImage m_picture;
    int32_t m_backColour;
    int32_t m_foreColour;
    int16_t m_drawMode = CopyPen;
    double m_currentY = 0;
};
