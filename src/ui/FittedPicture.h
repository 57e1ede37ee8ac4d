// An image file as it fills a place on the screen.
#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QWidget>

#include <future>

namespace emporium::ui {

class FittedPicture {
public:
    /// The bytes of an image file. Of several images in it the largest one counts.
    void SetSource(QByteArray bytes);

    /// Begins to decode the image for a place of that size, beside what the program does next.
    void Prepare(const QWidget& widget, QSize place);

    /// The image for a place of that size, sharp at the widget's scale; null if there is none. It
    /// fills the place, cut at the edges if the proportions differ. Unless it was prepared, it is
    /// decoded when it is asked for first, no larger than needed where the format allows it.
    const QPixmap& For(const QWidget& widget, QSize place);

private:
    void Begin(QSize pixels, std::launch how);

    QByteArray source_;
    QSize pixels_; // of the place for which it is decoded; empty before
    std::future<QImage> decoding_;
    QPixmap fitted_;
};

} // namespace emporium::ui
