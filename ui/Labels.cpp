#include "Labels.h"

#include "Announcer.h"
#include "Strings.h"

#include <QPainter>

namespace ui {

Label::Label(const ControlDesign& design, QWidget* parent) : Label(design, new QLabel(parent))
{
}

Label::Label(const ControlDesign& design, QLabel* label) : Control(design, *label), m_label(*label)
{
    label->setFocusPolicy(Qt::NoFocus); // though it has a place in the tab order
    label->setWordWrap(true);
    Write(design.text);
}

void Label::Caption(std::string_view caption)
{
    Write(caption);
    Fit();
    if (Design().speaking == Speaking::Spoken) {
        Announcer::Instance().Say(m_label, m_label.text());
    }
}

void Label::Write(std::string_view text)
{
    m_label.setText(ToQString(text));
    m_label.setAccessibleName(m_label.text().remove('&')); // Qt 6.8 would tell the "&" too
}

void Label::PutInPlace()
{
    Control::PutInPlace();
    Fit();
}

void Label::Fit()
{
    constexpr int smallestType = 9; // pixels
    constexpr int flags = Qt::TextShowMnemonic | Qt::TextWordWrap;
    m_label.setFont(Fitting(Font(), m_label.text(), m_label.size(), flags, smallestType));
}

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
    painter.setPen(Qt::black);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.drawText(rect().adjusted(margin, margin, -margin, -margin), Qt::AlignTop | Qt::AlignHCenter, title());
}

void PictureWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

Place Picture::Cell(int columns, int rows, int column, int row) const
{
    const auto x = [this, columns](int edge) { return edge * ScaleWidth() / columns; };
    const auto y = [this, rows](int edge) { return edge * ScaleHeight() / rows; };
    return {x(column), y(row), x(column + 1) - x(column), y(row + 1) - y(row)};
}

void LineWidget::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), palette().color(QPalette::WindowText));
}

} // namespace ui
