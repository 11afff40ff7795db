#pragma once

#include <QPixmap>
#include <QString>

// The pictures of the game as resources. Each has a twice-as-large @2x file beside it.
namespace Pictures {

inline const QString Board = QStringLiteral(":/assets/board.png");
inline const QString Hand = QStringLiteral(":/assets/hand.png");
inline const QString Hand16 = QStringLiteral(":/assets/hand16.png");
inline const QString DiscGreenRaised = QStringLiteral(":/assets/disc_green_raised.png");
inline const QString DiscGreenSunken = QStringLiteral(":/assets/disc_green_sunken.png");
inline const QString DiscRedRaised = QStringLiteral(":/assets/disc_red_raised.png");
inline const QString DiscRedSunken = QStringLiteral(":/assets/disc_red_sunken.png");
inline const QString ArrowRed = QStringLiteral(":/assets/arrow_red.png");
inline const QString ArrowGreen = QStringLiteral(":/assets/arrow_green.png");

// The picture at a path drawn for the given device pixel ratio: the @2x file from a
// ratio above 1, so that it stays crisp there. Its device-independent size is the same
// either way. A null pixmap when the path holds no picture.
QPixmap load(const QString& path, qreal devicePixelRatio);

// The same for the application's own ratio.
QPixmap load(const QString& path);

} // namespace Pictures
