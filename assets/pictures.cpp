#include "assets/pictures.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QSet>

#include <cstdio>

namespace Pictures {

namespace {

QString twiceAsLarge(const QString& path)
{
    const QFileInfo file(path);
    return file.path() + "/" + file.completeBaseName() + "@2x." + file.suffix();
}

// A picture that will not load is said once on standard error; the window comes up
// with the rest all the same.
void reportMissing(const QString& path)
{
    static QSet<QString> reported;
    if (reported.contains(path))
        return;
    reported.insert(path);
    std::fprintf(stderr, "tavok: the picture %s is missing or damaged\n", qPrintable(path));
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
    if (picture.isNull())
        reportMissing(path);
    picture.setDevicePixelRatio(1.0);
    return picture;
}

QPixmap load(const QString& path)
{
    return load(path, qGuiApp ? qGuiApp->devicePixelRatio() : 1.0);
}

} // namespace Pictures
