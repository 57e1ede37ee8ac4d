// An image file as it fills a place on the screen.
#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QWidget>

namespace emporium::ui {

class FittedPicture {
public:
    /// The bytes of an image file. Of several images in it the largest one counts.
    void SetSource(QByteArray bytes);

    /// The image for a place of that size, sharp at the widget's scale; null if there is none. It
    /// fills the place, cut at the edges if the proportions differ. It is decoded when it is asked
    /// for first, no larger than needed where the format allows it.
    const QPixmap& For(const QWidget& widget, QSize place);

private:
    QByteArray source_;
    QPixmap fitted_;
    QSize pixels_; // of the place for which it was decoded; empty before
};

} // namespace emporium::ui
