// A picture box that is drawn on: what is drawn stays on its canvas until it is cleared, whether
// the box is shown or not, and the box paints the canvas.
#pragma once

#include <QColor>
#include <QImage>
#include <QWidget>

class QFont;

class PictureBox : public QWidget {
    Q_OBJECT
public:
    explicit PictureBox(QWidget* parent = nullptr);

    // Fills the canvas with the box's background colour.
    void Clear();
    // Paints `picture` stretched over the whole box.
    void DrawStretched(const QImage& picture);
    void DrawLine(QPointF from, QPointF to, const QColor& colour, int width);
    // Prints `text` with its top left corner at `at`.
    void Print(QPointF at, const QString& text, const QFont& font, const QColor& colour);

    // The canvas as it is painted, one pixel to a pixel of the box.
    const QImage& Canvas() const { return canvas_; }

signals:
    // The pointer moved over the box, to `position` in the box's pixels.
    void PointerMoved(QPoint position);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QImage canvas_;
};
