#include "helpabout/boardpicture.h"

#include <QFile>

QPixmap miniatureBoard()
{
    static const QString path = QStringLiteral(":/assets/board.png");
    if (!QFile::exists(path))
        return {};
    return QPixmap(path);
}
