#include "helpabout/boardpicture.h"

#include <QFile>

QPixmap MiniatureBoard()
{
    static const QString path = QStringLiteral(":/assets/board.png");
    if (!QFile::exists(path))
        return {};
    return QPixmap(path);
}
