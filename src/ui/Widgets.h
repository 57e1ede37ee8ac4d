// The window's own kinds of controls: frames with a caption, picture buttons and drop-down lists.
#pragma once

#include "ui/FittedPicture.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QPushButton>

namespace emporium::ui {

/// Twips to pixels at scale factor 1.
constexpr int Px(int twips) {
    return twips / 15;
}

/// Gives a widget the name by which it can be found.
template <typename Widget> Widget* Named(Widget* widget, const QString& name) {
    widget->setObjectName(name);
    return widget;
}

/// Puts a widget at its place in the parent, in twips.
template <typename Widget> Widget* Place(Widget* widget, int left, int top, int width, int height) {
    widget->setGeometry(Px(left), Px(top), Px(width), Px(height));
    return widget;
}

/// A frame whose caption stands in its upper edge.
class CaptionFrame : public QWidget {
    Q_OBJECT

public:
    enum class Look { Black, Grey };

    static constexpr QColor Grey{192, 192, 192};

    CaptionFrame(QWidget* parent, Look look, const QString& caption);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Look look_;
    QString caption_;
};

/// A square button with a picture and a tool tip. Without a picture it shows a short text.
class PictureButton : public QPushButton {
    Q_OBJECT

public:
    PictureButton(QWidget* parent, const QString& toolTip, const QString& textWithoutPicture);

    /// The bytes of an image file.
    void SetPicture(const QByteArray& bytes);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    FittedPicture picture_;
};

/// An image that fills a place.
class Picture : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// The bytes of an image file.
    void SetPicture(const QByteArray& bytes);

    /// Begins to decode the image for a place of that size.
    void Prepare(QSize place) { picture_.Prepare(*this, place); }

    /// The image as it fills a place of that size; null if there is none.
    const QPixmap& FittedTo(QSize place) { return picture_.For(*this, place); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    FittedPicture picture_;
};

/// A drop-down list without text entry. The wheel changes nothing while it is closed.
class ChoiceBox : public QComboBox {
    Q_OBJECT

public:
    explicit ChoiceBox(QWidget* parent);

    void showPopup() override;

protected:
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QElapsedTimer typed_;
};

} // namespace emporium::ui
