#include "Shapes.h"

#include "ShapeWidgets.h"

namespace ui {

Frame::Frame(const ControlDesign& design, QWidget* parent) : Control(design, *new FrameWidget(design, parent))
{
}

Picture::Picture(const ControlDesign& design, QWidget* parent) : Control(design, *new PictureWidget(parent))
{
}

Place Picture::Cell(int columns, int rows, int column, int row) const
{
    const auto x = [this, columns](int edge) { return edge * ScaleWidth() / columns; };
    const auto y = [this, rows](int edge) { return edge * ScaleHeight() / rows; };
    return {x(column), y(row), x(column + 1) - x(column), y(row + 1) - y(row)};
}

Line::Line(const ControlDesign& design, QWidget* parent) : Control(design, *new LineWidget(parent))
{
}

} // namespace ui
