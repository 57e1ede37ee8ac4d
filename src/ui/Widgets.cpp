#include "ui/Widgets.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QWheelEvent>

namespace emporium::ui {

namespace {

constexpr int CaptionIndent = 8;
constexpr int CaptionMargin = 3;

// A light line for dark ground, and a dark one between it and the button's light face.
void DrawFocusRing(QPainter& painter, const QRect& place) {
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(Qt::white);
    painter.drawRect(place.adjusted(0, 0, -1, -1));
    painter.setPen(Qt::black);
    painter.drawRect(place.adjusted(1, 1, -2, -2));
}

} // namespace

CaptionFrame::CaptionFrame(QWidget* parent, Look look, const QString& caption)
    : QWidget(parent), look_(look), caption_(caption) {
    setAccessibleName(caption);
}

void CaptionFrame::paintEvent(QPaintEvent*) {
    const bool black = look_ == Look::Black;
    const QColor ground = black ? QColor(Qt::black) : Grey;
    QPainter painter(this);
    painter.fillRect(rect(), ground);

    const QFontMetrics metrics = fontMetrics();
    const int edge = metrics.height() / 2;
    painter.setPen(black ? QColor(120, 120, 120) : QColor(110, 110, 110));
    painter.drawRoundedRect(QRectF(2.5, edge + 0.5, width() - 5, height() - edge - 3), 3, 3);

    const QRect caption(CaptionIndent, 0, metrics.horizontalAdvance(caption_), metrics.height());
    painter.fillRect(caption.adjusted(-CaptionMargin, 0, CaptionMargin, 0), ground);
    painter.setPen(black ? Qt::white : Qt::black);
    painter.drawText(caption, Qt::AlignLeft | Qt::AlignVCenter, caption_);
}

PictureButton::PictureButton(QWidget* parent, const QString& toolTip,
                             const QString& textWithoutPicture)
    : QPushButton(textWithoutPicture, parent) {
    setToolTip(toolTip);
    setAccessibleName(toolTip);
    setAutoDefault(true); // Return presses it
}

void PictureButton::SetPicture(const QByteArray& bytes) {
    picture_.SetSource(bytes);
    update();
}

void PictureButton::paintEvent(QPaintEvent* event) {
    const QPixmap& picture = picture_.For(*this, size() - QSize(4, 4));
    if (picture.isNull()) {
        QPushButton::paintEvent(event);
        return;
    }
    constexpr qreal faded = 0.35;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF outline = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(QColor(90, 90, 90));
    painter.setBrush(QColor(240, 240, 240));
    painter.drawRoundedRect(outline, 3, 3);
    const int shift = isDown() ? 1 : 0;
    painter.setOpacity(isEnabled() ? 1.0 : faded);
    painter.drawPixmap(2 + shift, 2 + shift, picture);
    painter.setOpacity(1.0);
    if (isEnabled() && underMouse())
        painter.fillRect(rect().adjusted(2, 2, -2, -2), QColor(255, 220, 120, 60));
    if (hasFocus())
        DrawFocusRing(painter, rect());
}

void Picture::SetPicture(const QByteArray& bytes) {
    picture_.SetSource(bytes);
    update();
}

void Picture::paintEvent(QPaintEvent*) {
    QPainter(this).drawPixmap(0, 0, FittedTo(size()));
}

ChoiceBox::ChoiceBox(QWidget* parent) : QComboBox(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(20);
}

void ChoiceBox::showPopup() {
    // Wide enough for the longest entry, however narrow the list itself is.
    const int margin = 12 + view()->verticalScrollBar()->sizeHint().width();
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + margin);
    QComboBox::showPopup();
}

void ChoiceBox::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

// A blank opens the list, but between letters that follow each other quickly it is one of them.
void ChoiceBox::keyPressEvent(QKeyEvent* event) {
    const bool goesOn =
        typed_.isValid() && typed_.elapsed() < QApplication::keyboardInputInterval();
    if (!event->text().trimmed().isEmpty() || goesOn)
        typed_.start();
    if (goesOn && event->key() == Qt::Key_Space) {
        QKeyEvent letter(event->type(), Qt::Key_unknown, event->modifiers(), " ");
        QComboBox::keyPressEvent(&letter);
    } else {
        QComboBox::keyPressEvent(event);
    }
}

} // namespace emporium::ui
