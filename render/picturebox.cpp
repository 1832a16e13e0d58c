#include "picturebox.h"

#include <QMouseEvent>
#include <QPainter>

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    canvas_ = QImage(1, 1, QImage::Format_RGB32);
    Clear();
}

void PictureBox::Clear() {
    canvas_.fill(palette().color(QPalette::Window));
    update();
}

void PictureBox::DrawStretched(const QImage& picture) {
    QPainter painter(&canvas_);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.drawImage(QRect(QPoint(0, 0), canvas_.size()), picture);
    update();
}

void PictureBox::DrawLine(QPointF from, QPointF to, const QColor& colour, int width) {
    QPainter painter(&canvas_);
    painter.setPen(QPen(colour, width));
    painter.drawLine(from, to);
    update();
}

void PictureBox::Print(QPointF at, const QString& text, const QFont& font, const QColor& colour) {
    QPainter painter(&canvas_);
    // Plain pixels in the one colour, as the lines are: no blend with the picture beneath.
    QFont plain(font);
    plain.setStyleStrategy(QFont::NoAntialias);
    painter.setFont(plain);
    painter.setPen(colour);
    const QRectF room(at, QSizeF(canvas_.width() + 1, canvas_.height() + 1));
    painter.drawText(room, Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip, text);
    update();
}

void PictureBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawImage(0, 0, canvas_);
}

// The canvas keeps what is drawn on it; a larger box shows the background where nothing is yet.
void PictureBox::resizeEvent(QResizeEvent* event) {
    if (event->size() == canvas_.size())
        return;
    QImage larger(event->size().expandedTo(QSize(1, 1)), QImage::Format_RGB32);
    larger.fill(palette().color(QPalette::Window));
    QPainter painter(&larger);
    painter.drawImage(0, 0, canvas_);
    canvas_ = larger;
}

void PictureBox::mouseMoveEvent(QMouseEvent* event) {
    emit PointerMoved(event->position().toPoint());
}
