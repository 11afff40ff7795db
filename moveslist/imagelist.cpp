#include "moveslist/imagelist.h"

#include "moveslist/listerror.h"

#include <QDataStream>
#include <QIODevice>

void ImageList::Add(const QImage& picture)
{
    images.push_back({picture});
}

const ImageList::ListImage& ImageList::ListImages(int index) const
{
    if (index < 1 || index > Count())
        throw ListError(
            ListErrorCode::ImageIndexOutOfBounds,
            QStringLiteral("Index out of bounds: the image list has no picture %1").arg(index));
    return images[static_cast<size_t>(index - 1)];
}

QByteArray ImageList::Save() const
{
    QByteArray data;
    QDataStream out(&data, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_6_0);
    out << static_cast<qint32>(images.size());
    for (const ListImage& image : images)
        out << image.Picture;
    return data;
}

ImageList ImageList::Load(const QByteArray& data)
{
    QDataStream in(data);
    in.setVersion(QDataStream::Qt_6_0);
    qint32 count = 0;
    in >> count;
    ImageList list;
    for (qint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        QImage picture;
        in >> picture;
        list.Add(picture);
    }
    if (count < 0 || in.status() != QDataStream::Ok)
        throw ListError(ListErrorCode::InvalidFileFormat,
                        QStringLiteral("Invalid file format: the stored image list is damaged"));
    return list;
}
