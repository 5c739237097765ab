#include "ShapeWidgets.h"

#include "Accessible.h"
#include "Look.h"
#include "Strings.h"

#include <QPainter>

namespace ui {

FrameWidget::FrameWidget(const ControlDesign& design, QWidget* parent) : QGroupBox(ToQString(design.text), parent)
{
    if (design.color) {
        m_color = ToQColor(*design.color);
        QPalette colors;
        colors.setColor(QPalette::WindowText, Qt::black); // for the lines inside, in a dark theme too
        setPalette(colors);
    }
}

void FrameWidget::paintEvent(QPaintEvent* event)
{
    if (!m_color) {
        QGroupBox::paintEvent(event);
        return;
    }
    constexpr int margin = 4;
    QPainter painter(this);
    painter.fillRect(rect(), *m_color);
    DrawEdge(painter, rect(), Qt::black, 1);
    painter.drawText(rect().adjusted(margin, margin, -margin, -margin), Qt::AlignTop | Qt::AlignHCenter, title());
}

PictureWidget::PictureWidget(QWidget* parent) : QWidget(parent)
{
    SetRole(*this, QAccessible::Grouping);
}

void PictureWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    DrawEdge(painter, rect(), palette().color(QPalette::WindowText), 1);
}

LineWidget::LineWidget(QWidget* parent) : QWidget(parent)
{
    SetRole(*this, QAccessible::Separator);
}

void LineWidget::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), palette().color(QPalette::WindowText));
}

} // namespace ui
