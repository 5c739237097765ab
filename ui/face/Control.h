// What all controls of a screen have in common.
#pragma once

#include "Design.h"
#include "Keys.h"

#include <string>
#include <string_view>

class QFont;
class QPoint;
class QWidget;

namespace ui {

// A handle on a widget, which belongs to the form's window as the handle belongs to the form.
class Control
{
public:
    // The design is a row of a constant table and outlives the control.
    Control(const ControlDesign& design, QWidget& widget);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    std::string_view Name() const { return m_design.name; }
    int Index() const { return m_design.index; }
    const ControlDesign& Design() const { return m_design; }
    QWidget& Widget() const { return m_widget; }

    // What the control shows, in UTF-8; empty where that is no text.
    virtual std::string Text() const { return {}; }

    void SetFocus();
    void Enabled(bool enabled);
    void Visible(bool visible);
    bool IsVisible() const; // false too as long as the screen is not shown

    // Moves the control; in twips, inside what holds it.
    void Move(const Place& place);

    // Draws the control, its place and its type, `scale` times as large as designed. `origin` is the pixel from which
    // its place is measured.
    void Scale(double scale, const QPoint& origin);

    // Draws the type alone `scale` times as large as designed, from the next placing on.
    void ScaleType(double scale) { m_typeScale = scale; }

    // Takes the colours that follow the desktop's theme anew.
    virtual void TakeColors() {}

    // The steps of a key press that come before the widget's own; what they swallow does not reach it.
    virtual KeyResult KeyDown(int keyCode, int shift);
    virtual KeyResult KeyPressed(int keyAscii);

    // The focus has come, by whatever way but a change of windows, or is leaving for another control.
    virtual void GotFocus() {}
    virtual void Validate() {}

protected:
    // Gives the widget its place and its type at the present scale.
    virtual void PutInPlace();

    // The design's font in pixels at the present scale.
    QFont Font() const;

private:
    const ControlDesign& m_design;
    QWidget& m_widget;
    Place m_place;
    double m_scale = 1;
    double m_typeScale = 1;
    int m_originX = 0; // pixels
    int m_originY = 0;
};

} // namespace ui
