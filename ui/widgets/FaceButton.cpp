#include "FaceButton.h"

#include "Look.h"

#include <QKeyEvent>
#include <QPainter>

namespace ui {

namespace {

constexpr QRgb disabledType = qRgb(64, 64, 64);
constexpr int smallestType = 9; // pixels
constexpr int edgeWidth = 1;
constexpr int focusWidth = 3;
constexpr int captionMargin = focusWidth + 2;

} // namespace

FaceButton::FaceButton(const QColor& face, QWidget* parent) : QPushButton(parent), m_face(face)
{
}

void FaceButton::SetFace(const QColor& face)
{
    m_face = face;
    update();
}

void FaceButton::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        return;
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Right:
    case Qt::Key_Down:
        if (event->modifiers().testFlag(Qt::ControlModifier)) {
            return; // the screens' own keys; Qt would step to the next button
        }
        break;
    default:
        break;
    }
    QPushButton::keyPressEvent(event);
}

void FaceButton::paintEvent(QPaintEvent*)
{
    const QRect area = mask().isEmpty() ? rect() : mask().boundingRect();
    QPainter painter(this);
    painter.fillRect(area, m_face);
    DrawEdge(painter, area, Qt::black, hasFocus() ? focusWidth : edgeWidth);

    const int flags = Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextWordWrap;
    const QRect captionArea = area.adjusted(captionMargin, 1, -captionMargin, -1);
    painter.setFont(Fitting(font(), text(), captionArea.size(), flags, smallestType));
    painter.setPen(isEnabled() ? QColor(Qt::black) : QColor(disabledType));
    painter.drawText(isDown() ? captionArea.translated(1, 1) : captionArea, flags, text());
}

} // namespace ui
