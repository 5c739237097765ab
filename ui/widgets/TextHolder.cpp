#include "TextHolder.h"

#include "Look.h"
#include "Timing.h"

#include <QApplication>
#include <QPainter>

#include <utility>

namespace ui {

void TextHolder::CaretToStart(QWidget& widget)
{
    m_caretIsMoving = true;
    OnceFocusIsTold(widget, [this] { SettleCaret(); });
}

void TextHolder::SettleCaret()
{
    if (std::exchange(m_caretIsMoving, false)) {
        Select(0, 0);
    }
}

QPalette TextHolder::Colors(Coloring coloring, bool locked)
{
    QPalette colors = QApplication::palette();
    if (coloring == Coloring::Selection) {
        const QColor background = colors.color(QPalette::Highlight);
        const QColor type = ReadableOn(background, colors.color(QPalette::HighlightedText));
        colors.setColor(QPalette::Base, background);
        colors.setColor(QPalette::Text, type);
        colors.setColor(QPalette::Highlight, type);
        colors.setColor(QPalette::HighlightedText, background);
    } else if (locked) {
        colors.setColor(QPalette::Base, colors.color(QPalette::Window));
        colors.setColor(QPalette::Text, colors.color(QPalette::WindowText));
    }
    return colors;
}

void TextHolder::PaintEdge(QPainter& painter, const QRect& area, const QPalette& colors, bool locked, bool focused)
{
    QColor edge = colors.color(QPalette::Text);
    edge.setAlphaF(locked && !focused ? 0.35F : 1.0F);
    DrawEdge(painter, area, edge, focused ? 2 : 1);
}

} // namespace ui
