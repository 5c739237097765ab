#include "Look.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace ui {

namespace {

// Luminance of one channel after WCAG 2.
double Linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color)
{
    return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}

} // namespace

QRect ToPixels(const Place& place, double scale)
{
    const auto pixels = [scale](int twips) { return static_cast<int>(std::lround(twips * scale / twipsPerPixel)); };
    const QPoint topLeft(pixels(place.left), pixels(place.top));
    const QPoint end(pixels(place.left + place.width), pixels(place.top + place.height));
    return {topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())};
}

QColor ToQColor(Color color)
{
    const auto value = static_cast<std::uint32_t>(color);
    const auto channel = [value](unsigned shift) { return static_cast<int>((value >> shift) & 0xFFU); };
    return {channel(0), channel(8), channel(16)};
}

double Contrast(const QColor& a, const QColor& b)
{
    const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor ReadableOn(const QColor& background, const QColor& wanted)
{
    constexpr double legible = 4.5;
    if (Contrast(background, wanted) >= legible) {
        return wanted;
    }
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return Contrast(background, black) > Contrast(background, white) ? black : white;
}

QStringList Families(const QString& family)
{
    QStringList families{family};
    if (family == "Comic Sans MS") {
        families += "Comic Neue";
    } else if (family == "Courier New") {
        families << "Liberation Mono"
                 << "DejaVu Sans Mono";
    } else if (family == "Arial Narrow") {
        families += "Liberation Sans Narrow";
    } else if (family == "Verdana") {
        families += "DejaVu Sans";
    } else if (family == "MS Sans Serif") {
        families += "Microsoft Sans Serif";
    }
    families << "Arial"
             << "Liberation Sans"
             << "DejaVu Sans";
    families.removeDuplicates();
    return families;
}

void DrawEdge(QPainter& painter, const QRect& area, const QColor& color, int width)
{
    const double half = width / 2.0;
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(QRectF(area).adjusted(half, half, -half, -half));
}

QFont Fitting(QFont font, const QString& text, const QSize& area, int flags, int smallest)
{
    constexpr int neverFits = 500; // characters; measuring a pasted megabyte once for every size takes seconds
    if (text.size() > neverFits) {
        font.setPixelSize(smallest);
    }
    while (font.pixelSize() > smallest) {
        const QSize size = QFontMetrics(font).boundingRect(QRect(QPoint(), area), flags, text).size();
        if (size.width() <= area.width() && size.height() <= area.height()) {
            break;
        }
        font.setPixelSize(font.pixelSize() - 1);
    }
    return font;
}

} // namespace ui
