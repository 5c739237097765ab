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

Frame::Frame(const ControlDesign& design, QWidget* parent)
    : Control(design, *new QGroupBox(ToQString(design.text), parent))
{
    if (design.color) {
        QPalette colors = Widget().palette();
        colors.setColor(QPalette::Window, ToQColor(*design.color));
        colors.setColor(QPalette::WindowText, Qt::black);
        Widget().setPalette(colors);
        Widget().setAutoFillBackground(true);
    }
}

void LineWidget::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), palette().color(QPalette::WindowText));
}

} // namespace ui
