#include "assets/pictures.h"

#include <QFileInfo>
#include <QGuiApplication>

namespace Pictures {

namespace {

QString twiceAsLarge(const QString& path)
{
    const QFileInfo file(path);
    return file.path() + "/" + file.completeBaseName() + "@2x." + file.suffix();
}

} // namespace

QPixmap load(const QString& path, qreal devicePixelRatio)
{
    if (devicePixelRatio > 1.0) {
        QPixmap large(twiceAsLarge(path));
        if (!large.isNull()) {
            large.setDevicePixelRatio(2.0);
            return large;
        }
    }
    QPixmap picture(path);
    picture.setDevicePixelRatio(1.0);
    return picture;
}

QPixmap load(const QString& path)
{
    return load(path, qGuiApp ? qGuiApp->devicePixelRatio() : 1.0);
}

} // namespace Pictures
