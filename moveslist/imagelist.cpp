#include "moveslist/imagelist.h"

#include "moveslist/listerror.h"

#include <QDataStream>
#include <QIODevice>

void ImageList::add(const QImage& picture)
{
    m_images.push_back({picture});
}

const ImageList::ListImage& ImageList::ListImages(int index) const
{
    if (index < 1 || index > count())
        throw ListError(ListErrorCode::ImageIndexOutOfBounds);
    return m_images[static_cast<size_t>(index - 1)];
}

QByteArray ImageList::save() const
{
    QByteArray data;
    QDataStream out(&data, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_6_0);
    out << static_cast<qint32>(m_images.size());
    for (const ListImage& image : m_images)
        out << image.Picture;
    return data;
}

ImageList ImageList::load(const QByteArray& data)
{
    QDataStream in(data);
    in.setVersion(QDataStream::Qt_6_0);
    qint32 count = 0;
    in >> count;
    ImageList list;
    for (qint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        QImage picture;
        in >> picture;
        list.add(picture);
    }
    if (count < 0 || in.status() != QDataStream::Ok)
        throw ListError(ListErrorCode::InvalidFileFormat);
    return list;
}
