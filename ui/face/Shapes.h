// Controls without a text of their own: frames, picture boxes and lines.
#pragma once

#include "Control.h"

namespace ui {

// A box with a caption round other controls. A coloured one has the colour as background.
class Frame final : public Control
{
public:
    Frame(const ControlDesign& design, QWidget* parent);
};

// A box without a caption round other controls.
class Picture final : public Control
{
public:
    Picture(const ControlDesign& design, QWidget* parent);

    // The inner size, in twips.
    int ScaleWidth() const { return Design().place.width; }
    int ScaleHeight() const { return Design().place.height; }

    // A cell of a grid of equal cells that fills the box. Neighbours share their edges to the twip.
    Place Cell(int columns, int rows, int column, int row) const;
};

// A bar.
class Line final : public Control
{
public:
    Line(const ControlDesign& design, QWidget* parent);
};

} // namespace ui
