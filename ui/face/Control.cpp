#include "Control.h"

#include "Look.h"
#include "Strings.h"

#include <QWidget>

#include <algorithm>
#include <cmath>

namespace ui {

Control::Control(const ControlDesign& design, QWidget& widget)
    : m_design(design), m_widget(widget), m_place(design.place)
{
    widget.setObjectName(ObjectName(design.name, design.index));
    widget.setAccessibleName(ToQString(design.accessibleName));
    widget.setAccessibleDescription(ToQString(design.keys));
    if (design.tab == noTab) {
        widget.setFocusPolicy(Qt::NoFocus);
    }
}

void Control::SetFocus()
{
    m_widget.setFocus();
}

void Control::Enabled(bool enabled)
{
    m_widget.setEnabled(enabled);
}

void Control::Visible(bool visible)
{
    m_widget.setVisible(visible);
}

bool Control::IsVisible() const
{
    return m_widget.isVisible();
}

void Control::Move(const Place& place)
{
    m_place = place;
    PutInPlace();
}

void Control::Scale(double scale, const QPoint& origin)
{
    m_scale = scale;
    m_typeScale = scale;
    m_originX = origin.x();
    m_originY = origin.y();
    PutInPlace();
}

void Control::PutInPlace()
{
    QRect place = ToPixels(m_place, m_scale).translated(m_originX, m_originY);
    const QRect inside = place & m_widget.parentWidget()->rect();
    if (!m_design.inside.empty() && !inside.isEmpty()) {
        place = inside; // edges rounded from another origin may be a pixel outside
    }
    m_widget.setGeometry(place);
    m_widget.setFont(Font());
    if (m_design.coveredTop != 0 || m_design.coveredBottom != 0) {
        const int top = ToPixels({0, 0, 0, m_design.coveredTop}, m_scale).height();
        const int bottom = ToPixels({0, 0, 0, m_design.coveredBottom}, m_scale).height();
        m_widget.setMask(QRect(0, top, place.width(), place.height() - top - bottom));
    }
}

KeyResult Control::KeyDown(int, int)
{
    return KeyResult::Pass;
}

KeyResult Control::KeyPressed(int)
{
    return KeyResult::Pass;
}

QFont Control::Font() const
{
    QFont font(Families(ToQString(m_design.font)));
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(m_design.points * pixelsPerPoint * m_typeScale))));
    font.setStyleStrategy(QFont::ForceOutline); // Windows has MS Sans Serif in dots of a few sizes only
    font.setBold(m_design.weight == Weight::Bold);
    return font;
}

} // namespace ui
