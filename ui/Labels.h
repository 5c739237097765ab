// Controls that are only looked at: labels, frames, picture boxes and lines.
#pragma once

#include "Control.h"

#include <QGroupBox>
#include <QLabel>

namespace ui {

// A label's access key moves the focus to the control that follows the label in the tab order. Its type shrinks, and
// its text takes several lines, until the text fits.
class Label final : public Control
{
public:
    Label(const ControlDesign& design, QWidget* parent);

    std::string Text() const override { return m_label.text().toStdString(); }
    void Caption(std::string_view caption);

protected:
    void PutInPlace() override;

private:
    Label(const ControlDesign& design, QLabel* label);

    void Write(std::string_view text);
    void Fit();

    QLabel& m_label;
};

// The widget of a frame. A coloured one is painted here: the desktop's style would darken the colour.
class FrameWidget final : public QGroupBox
{
    Q_OBJECT

public:
    FrameWidget(const ControlDesign& design, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::optional<QColor> m_color;
};

// A box with a caption round other controls. A coloured one has the colour as background and its caption in black.
class Frame final : public Control
{
public:
    Frame(const ControlDesign& design, QWidget* parent) : Control(design, *new FrameWidget(design, parent)) {}
};

// The widget of a picture box: a thin edge round whatever controls lie in it.
class PictureWidget final : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* event) override;
};

class Picture final : public Control
{
public:
    Picture(const ControlDesign& design, QWidget* parent) : Control(design, *new PictureWidget(parent)) {}

    // The inner size, in twips.
    int ScaleWidth() const { return Design().place.width; }
    int ScaleHeight() const { return Design().place.height; }

    // A cell of a grid of equal cells that fills the box. Neighbours share their edges to the twip.
    Place Cell(int columns, int rows, int column, int row) const;
};

// A horizontal or vertical bar that fills its place.
class LineWidget final : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* event) override;
};

class Line final : public Control
{
public:
    Line(const ControlDesign& design, QWidget* parent) : Control(design, *new LineWidget(parent)) {}
};

} // namespace ui
