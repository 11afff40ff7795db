// Draws every picture of the game, at 1x and at 2x, into the assets folder:
//   draw_assets <assets folder> [--sheet <contact sheet.png>]
// and the desktop's icons of the game, 16 to 512 pixels, into packaging/icons:
//   draw_assets --icons <icons folder>
// The pictures are committed; the build never runs this. Run it again after a change
// here, and look at the contact sheet enlarged before committing.

#include <QApplication>
#include <QColor>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QString>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

// Every picture is designed on a grid of 32 by 32 units; a unit is one pixel at 1x.
constexpr int Grid = 32;

using Draw = std::function<void(QPainter&)>;

struct Picture {
    QString name;
    int size; // in units
    std::function<QImage(int scale)> render;
};

QImage blank(int size, int scale)
{
    QImage image(size * scale, size * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage painted(int size, int scale, const Draw& draw)
{
    QImage image = blank(size, scale);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    draw(painter);
    return image;
}

// ---- discs ----------------------------------------------------------------------

struct DiscColours {
    QColor body, light, dark, darkest;
};

const DiscColours Green{{0, 187, 0}, {0, 255, 0}, {0, 136, 0}, {0, 85, 0}};
const DiscColours Red{{255, 0, 0}, {255, 0, 51}, {170, 0, 0}, {119, 0, 0}};

constexpr double DiscRadius = 15.0;
constexpr double RimWidth = 1.0;
constexpr double EdgeWidth = 3.0;

// The colour of the disc at a point of the grid, or a clear colour outside it. The
// light falls from the upper left; a sunken disc has its edges the other way round.
QColor discAt(double x, double y, const DiscColours& colours, bool sunken)
{
    const double dx = x - Grid / 2.0;
    const double dy = y - Grid / 2.0;
    const double r = std::hypot(dx, dy);
    if (r > DiscRadius)
        return Qt::transparent;
    if (r > DiscRadius - RimWidth)
        return Qt::black;
    const double inside = DiscRadius - RimWidth;
    // How squarely this side of the disc faces the light: 1 upper left, -1 lower right.
    double facing = r > 0 ? -(dx + dy) / (r * std::sqrt(2.0)) : 0.0;
    if (sunken)
        facing = -facing;
    // The edges are crescents, widest where they face the light or turn from it.
    const double width = EdgeWidth * std::pow(std::abs(facing), 0.6);
    if (r <= inside - width)
        return colours.body;
    if (facing > 0)
        return colours.light;
    return r > inside - width / 2 ? colours.darkest : colours.dark;
}

// Each pixel takes the colour of the disc at its middle, so that it holds exactly one
// colour of the disc; only the outline is smoothed, by how much of the pixel the disc
// covers, in the black of the rim.
QImage disc(const DiscColours& colours, bool sunken, int scale)
{
    constexpr int Samples = 8;
    QImage image = blank(Grid, scale);
    for (int py = 0; py < image.height(); ++py) {
        for (int px = 0; px < image.width(); ++px) {
            int covered = 0;
            for (int sy = 0; sy < Samples; ++sy) {
                for (int sx = 0; sx < Samples; ++sx) {
                    const double x = (px + (sx + 0.5) / Samples) / scale;
                    const double y = (py + (sy + 0.5) / Samples) / scale;
                    covered += discAt(x, y, colours, sunken).alpha() > 0;
                }
            }
            if (covered == 0)
                continue;
            QColor colour = discAt((px + 0.5) / scale, (py + 0.5) / scale, colours, sunken);
            if (colour.alpha() == 0)
                colour = Qt::black;
            colour.setAlpha(qRound(255.0 * covered / (Samples * Samples)));
            image.setPixelColor(px, py, colour);
        }
    }
    return image;
}

// ---- the pointing hand ------------------------------------------------------------

// Outline coordinates sit on half units so that a one-unit stroke covers whole pixels.
QPainterPath handOutline()
{
    QPainterPath fist;
    fist.addRoundedRect(QRectF(8.5, 7.5, 16, 12), 3, 3);
    QPainterPath finger;
    finger.addRoundedRect(QRectF(11.5, 12.5, 5, 18), 2.5, 2.5);
    QPainterPath thumb;
    thumb.addRoundedRect(QRectF(5.5, 9.5, 6, 8), 3, 3);
    QPainterPath knuckles;
    for (int i = 0; i < 3; ++i)
        knuckles.addRoundedRect(QRectF(16.5 + 3 * i, 15.5, 3, 7 - i), 1.5, 1.5);
    return fist.united(finger).united(thumb).united(knuckles).simplified();
}

void drawHand(QPainter& painter)
{
    const QPen outline(Qt::black, 1.0, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    painter.setPen(outline);
    painter.setBrush(Qt::white);
    painter.drawPath(handOutline());
    // The pointing finger stands apart from the folded ones.
    painter.drawLine(QPointF(16.5, 12.5), QPointF(16.5, 21));
    painter.drawLine(QPointF(19.5, 16.5), QPointF(19.5, 21));
    painter.drawLine(QPointF(22.5, 16.5), QPointF(22.5, 20));
    // The cuff: cyan, with a grey band where it meets the hand.
    painter.setBrush(QColor(0, 255, 255));
    painter.drawRect(QRectF(9.5, 1.5, 14, 4));
    painter.setBrush(QColor(128, 128, 128));
    painter.drawRect(QRectF(9.5, 5.5, 14, 2));
}

// At 16 pixels a drawn outline would blur; the small hand is set pixel by pixel.
// k black, w white, c cyan, g grey.
const char* const SmallHand[16] = {
    "....kkkkkkkk....", //
    "....kcccccck....", //
    "....kcccccck....", //
    "....kggggggk....", //
    "..kkkwwwwwwkk...", //
    ".kwwkwwwwwwwwk..", //
    ".kwwwwwwwwwwwk..", //
    "..kkwwwwwwwwwk..", //
    "....kwwwkwwwwk..", //
    "....kwwwkwkwwk..", //
    "....kwwwkwkwk...", //
    "....kwwwkkkkk...", //
    "....kwwwk.......", //
    "....kwwwk.......", //
    "....kwwwk.......", //
    ".....kkk........", //
};

QImage smallHand()
{
    QImage image = blank(16, 1);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x) {
            switch (SmallHand[y][x]) {
            case 'k':
                image.setPixelColor(x, y, Qt::black);
                break;
            case 'w':
                image.setPixelColor(x, y, Qt::white);
                break;
            case 'c':
                image.setPixelColor(x, y, QColor(0, 255, 255));
                break;
            case 'g':
                image.setPixelColor(x, y, QColor(128, 128, 128));
                break;
            default:
                break;
            }
        }
    }
    return image;
}

QImage hand(int size, int scale)
{
    // The small hand at 2x has the pixels of the large one at 1x.
    if (size == Grid / 2 && scale == 1)
        return smallHand();
    return painted(size, scale, [size](QPainter& painter) {
        painter.scale(size / double(Grid), size / double(Grid));
        drawHand(painter);
    });
}

// ---- the curved arrows --------------------------------------------------------------

// A quarter circle from the top of the grid curving down to the left, its head
// pointing down; the green arrow is the same turned half round.
void drawArrow(QPainter& painter, const QColor& colour, bool turned)
{
    constexpr double Radius = 20.0;
    const QPointF centre(27, 27);
    QPainterPath arc;
    arc.moveTo(29, centre.y() - Radius);
    arc.arcTo(QRectF(centre.x() - Radius, centre.y() - Radius, 2 * Radius, 2 * Radius), 90, 90);
    QPainterPath head;
    head.moveTo(1.5, 24);
    head.lineTo(12.5, 24);
    head.lineTo(7, 31);
    head.closeSubpath();

    const auto shape = [&](const QColor& fill, QPointF offset) {
        painter.save();
        if (turned) {
            painter.translate(Grid, Grid);
            painter.rotate(180);
        }
        // The shade keeps falling to the lower right, however the arrow is turned.
        painter.translate(turned ? -offset : offset);
        painter.setPen(QPen(fill, 4.0, Qt::SolidLine, Qt::FlatCap));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(arc);
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill);
        painter.drawPath(head);
        painter.restore();
    };
    shape(QColor(128, 128, 128), QPointF(1, 1));
    shape(colour, QPointF(0, 0));
}

// ---- the miniature board ------------------------------------------------------------

// Laid out on whole pixels so that the twelve small pots stay apart at 1x: banks two
// units wide, pots three with one between, all in a board 31 units wide.
void drawBoard(QPainter& painter)
{
    painter.setPen(QPen(QColor(110, 70, 30), 1.0));
    painter.setBrush(QColor(210, 160, 90));
    painter.drawRoundedRect(QRectF(0.5, 5.5, 30, 21), 2.5, 2.5);

    const QColor red(255, 0, 0), green(0, 187, 0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(red);
    painter.drawRoundedRect(QRectF(1, 8, 2, 16), 1, 1);
    painter.setBrush(green);
    painter.drawRoundedRect(QRectF(28, 8, 2, 16), 1, 1);
    for (int i = 0; i < 6; ++i) {
        const double x = 4 + 4 * i;
        painter.setBrush(red);
        painter.drawRoundedRect(QRectF(x, 8, 3, 3), 1, 1);
        painter.setBrush(green);
        painter.drawRoundedRect(QRectF(x, 21, 3, 3), 1, 1);
    }

    // The way of the sowing: the computer's row leftwards, the human's rightwards.
    const QColor magenta(255, 0, 255);
    painter.setBrush(magenta);
    painter.drawRect(QRectF(12, 13, 8, 1));
    painter.drawRect(QRectF(11, 18, 8, 1));
    painter.drawPolygon(QPolygonF({QPointF(9, 13.5), QPointF(12, 11), QPointF(12, 16)}));
    painter.drawPolygon(QPolygonF({QPointF(22, 18.5), QPointF(19, 16), QPointF(19, 21)}));
}

// The arrows stand in boxes of 600 twips, 40 pixels at 1x: drawn at that size, they
// are never scaled on the screen.
constexpr int ArrowSize = 40;

std::function<QImage(int)> arrow(const QColor& colour, bool turned)
{
    return [colour, turned](int scale) {
        return painted(ArrowSize, scale, [colour, turned](QPainter& painter) {
            painter.scale(ArrowSize / double(Grid), ArrowSize / double(Grid));
            drawArrow(painter, colour, turned);
        });
    };
}

std::vector<Picture> pictures()
{
    const auto vector = [](const Draw& draw) {
        return [draw](int scale) { return painted(Grid, scale, draw); };
    };
    const auto discOf = [](const DiscColours& colours, bool sunken) {
        return [colours, sunken](int scale) { return disc(colours, sunken, scale); };
    };
    return {
        {"board", Grid, vector(drawBoard)},
        {"hand", Grid, [](int scale) { return hand(Grid, scale); }},
        {"hand16", 16, [](int scale) { return hand(16, scale); }},
        {"disc_green_raised", Grid, discOf(Green, false)},
        {"disc_green_sunken", Grid, discOf(Green, true)},
        {"disc_red_raised", Grid, discOf(Red, false)},
        {"disc_red_sunken", Grid, discOf(Red, true)},
        {"arrow_red", ArrowSize, arrow(QColor(255, 0, 0), false)},
        {"arrow_green", ArrowSize, arrow(QColor(0, 128, 0), true)},
    };
}

// ---- the contact sheet --------------------------------------------------------------

// Each picture enlarged without smoothing, at 1x and 2x, on the window's grey, then
// a pot face as the board shows it, so that every pixel can be judged.
QImage contactSheet(const std::vector<Picture>& all)
{
    constexpr int Cell = 8 * Grid + 16;
    QImage sheet(4 * Cell, static_cast<int>(all.size()) * Cell, QImage::Format_RGB32);
    sheet.fill(QColor(240, 240, 240));
    QPainter painter(&sheet);
    int row = 0;
    for (const Picture& picture : all) {
        const int zoom = 8 * Grid / picture.size;
        const int top = row * Cell + 8;
        for (int scale : {1, 2}) {
            const QImage image = picture.render(scale);
            const int left = (scale - 1) * Cell + 8;
            painter.fillRect(left, top, 8 * Grid, 8 * Grid, QColor(212, 208, 200));
            painter.drawImage(QRect(left, top, 8 * Grid, 8 * Grid),
                              image.scaled(image.size() * zoom / scale));
        }
        // A 37 pixel pot face with a count, as the board shows it at 1x and 2x.
        for (int scale : {1, 2}) {
            QImage pot(37 * scale, 37 * scale, QImage::Format_RGB32);
            pot.fill(QColor(212, 208, 200));
            QPainter face(&pot);
            const QImage image = picture.render(scale);
            const int offset = (37 - picture.size) / 2 * scale;
            face.drawImage(offset, offset, image);
            face.scale(scale, scale);
            face.setPen(Qt::white);
            face.setFont(QFont("Arial", 10, QFont::Bold));
            face.drawText(QRect(0, 0, 37, 37), Qt::AlignCenter, "12");
            face.end();
            const int left = (1 + scale) * Cell + 8;
            painter.drawImage(QRect(left, top, 37 * 6, 37 * 6), pot.scaled(QSize(37 * 6, 37 * 6)));
        }
        ++row;
    }
    return sheet;
}

bool save(const QImage& image, const QString& path)
{
    if (image.save(path, "PNG"))
        return true;
    std::fprintf(stderr, "draw_assets: cannot write %s\n", qPrintable(path));
    return false;
}

// Three pictures a page keep the enlargement readable: sheet-1.png, sheet-2.png...
bool saveSheets(const std::vector<Picture>& all, const QString& path)
{
    constexpr std::size_t PerPage = 3;
    const QFileInfo file(path);
    bool written = true;
    for (std::size_t first = 0; first < all.size(); first += PerPage) {
        const std::vector<Picture> page(all.begin() + first,
                                        all.begin() + std::min(all.size(), first + PerPage));
        const QString name = QString("%1/%2-%3.png")
                                 .arg(file.path(), file.completeBaseName())
                                 .arg(first / PerPage + 1);
        written &= save(contactSheet(page), name);
    }
    return written;
}

// ---- the desktop's icon ---------------------------------------------------------------

// The miniature board drawn large, on 256 units, as packaging/icons/tavok.svg draws it:
// round pots lit from the upper left, the banks as long pots, the wood shaded.
constexpr int IconGrid = 256;

QRadialGradient litFromUpperLeft(const QColor& light, const QColor& dark)
{
    QRadialGradient gradient(QPointF(0.35, 0.3), 0.75);
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    gradient.setColorAt(0, light);
    gradient.setColorAt(1, dark);
    return gradient;
}

void drawIcon(QPainter& painter)
{
    QLinearGradient wood(0, 46, 0, 210);
    wood.setColorAt(0, QColor(0xe2, 0xb5, 0x74));
    wood.setColorAt(1, QColor(0xc0, 0x8a, 0x48));
    painter.setPen(QPen(QColor(0x6e, 0x46, 0x1e), 8));
    painter.setBrush(wood);
    painter.drawRoundedRect(QRectF(6, 46, 244, 164), 22, 22);

    const auto row = [&painter](double bankLeft, double y, const QColor& light, const QColor& dark,
                                const QColor& edge) {
        painter.setPen(QPen(edge, 2));
        painter.setBrush(litFromUpperLeft(light, dark));
        painter.drawRoundedRect(QRectF(bankLeft, 66, 24, 124), 12, 12);
        for (int i = 0; i < 6; ++i)
            painter.drawEllipse(QPointF(58 + 28 * i, y), 11, 11);
    };
    row(16, 84, QColor(0xff, 0x70, 0x70), QColor(0xc0, 0x00, 0x00), QColor(0x6e, 0x00, 0x00));
    row(216, 172, QColor(0x66, 0xee, 0x66), QColor(0x00, 0x88, 0x00), QColor(0x00, 0x44, 0x00));

    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 0, 255));
    painter.drawRect(QRectF(100, 112, 64, 8));
    painter.drawPolygon(QPolygonF({QPointF(76, 116), QPointF(100, 98), QPointF(100, 134)}));
    painter.drawRect(QRectF(92, 136, 64, 8));
    painter.drawPolygon(QPolygonF({QPointF(180, 140), QPointF(156, 122), QPointF(156, 158)}));
}

// At 16 pixels the pots would run together: the board is set pixel by pixel, one pixel
// a pot, the middle gap wider so that both rows lie even between the banks, and no
// room for the way of the sowing. k edge, w wood, r red, g green.
const char* const SmallIcon[16] = {
    "................", //
    "................", //
    ".kkkkkkkkkkkkkk.", //
    "kwwwwwwwwwwwwwwk", //
    "kwrwrwrwwrwrwrwk", //
    "kwrwrwrwwrwrwrwk", //
    "krwwwwwwwwwwwwgk", //
    "krwwwwwwwwwwwwgk", //
    "krwwwwwwwwwwwwgk", //
    "krwwwwwwwwwwwwgk", //
    "kwgwgwgwwgwgwgwk", //
    "kwgwgwgwwgwgwgwk", //
    "kwwwwwwwwwwwwwwk", //
    ".kkkkkkkkkkkkkk.", //
    "................", //
    "................", //
};

QImage smallIcon()
{
    QImage image = blank(16, 1);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 16; ++x) {
            switch (SmallIcon[y][x]) {
            case 'k':
                image.setPixelColor(x, y, QColor(110, 70, 30));
                break;
            case 'w':
                image.setPixelColor(x, y, QColor(210, 160, 90));
                break;
            case 'r':
                image.setPixelColor(x, y, QColor(255, 0, 0));
                break;
            case 'g':
                image.setPixelColor(x, y, QColor(0, 187, 0));
                break;
            default:
                break;
            }
        }
    }
    return image;
}

} // namespace

// The desktop's icons of the game at the theme's sizes: at 16 pixels set by hand, at
// 24 and 32 the small board, from 48 the large one.
bool saveIcons(const QDir& folder)
{
    bool written = true;
    written &= save(smallIcon(), folder.filePath(QString("tavok-16.png")));
    for (int pixels : {24, 32, 48, 64, 128, 256, 512}) {
        QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        const int grid = pixels <= Grid ? Grid : IconGrid;
        painter.scale(pixels / double(grid), pixels / double(grid));
        if (grid == Grid)
            drawBoard(painter);
        else
            drawIcon(painter);
        painter.end();
        written &= save(image, folder.filePath(QString("tavok-%1.png").arg(pixels)));
    }
    return written;
}

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    if (arguments.size() == 3 && arguments[1] == "--icons")
        return saveIcons(QDir(arguments[2])) ? 0 : 1;
    if (arguments.size() != 2 && !(arguments.size() == 4 && arguments[2] == "--sheet")) {
        std::fprintf(stderr, "usage: draw_assets <assets folder> [--sheet <file.png>]\n"
                             "       draw_assets --icons <folder>\n");
        return 2;
    }
    const QDir folder(arguments[1]);
    const std::vector<Picture> all = pictures();
    bool written = true;
    for (const Picture& picture : all) {
        written &= save(picture.render(1), folder.filePath(picture.name + ".png"));
        written &= save(picture.render(2), folder.filePath(picture.name + "@2x.png"));
    }
    if (arguments.size() == 4)
        written &= saveSheets(all, arguments[3]);
    return written ? 0 : 1;
}
