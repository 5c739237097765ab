#include "Labels.h"

#include "Strings.h"

#include <QPainter>

namespace ui {

Label::Label(const ControlDesign& design, QWidget* parent) : Label(design, new QLabel(parent))
{
}

Label::Label(const ControlDesign& design, QLabel* label) : Control(design, *label), m_label(*label)
{
    label->setFocusPolicy(Qt::NoFocus); // though it has a place in the tab order
    Caption(design.text);
}

void Label::Caption(std::string_view caption)
{
    m_label.setText(ToQString(caption));
}

FrameWidget::FrameWidget(const ControlDesign& design, QWidget* parent) : QGroupBox(ToQString(design.text), parent)
{
    if (design.color) {
        m_color = ToQColor(*design.color);
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
    painter.setPen(Qt::black);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.drawText(rect().adjusted(margin, margin, -margin, -margin), Qt::AlignTop | Qt::AlignHCenter, title());
}

void LineWidget::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), palette().color(QPalette::WindowText));
}

} // namespace ui
