#pragma once

#include <QByteArray>
#include <QImage>

#include <vector>

// The pictures rows can show, asked for as ListImages(index).Picture with index
// counted from 1. A host fills one and hands it to the list's PictureList.
class ImageList {
public:
    struct ListImage {
        QImage Picture;
    };

    void add(const QImage& picture);
    int count() const { return static_cast<int>(m_images.size()); }

    // An index outside 1 to Count is ListError 35600.
    const ListImage& ListImages(int index) const;

    // The form an image list takes as object data in a stored property block. A
    // block whose data does not read back is ListError 321.
    QByteArray save() const;
    static ImageList load(const QByteArray& data);

private:
    std::vector<ListImage> m_images;
};
