// What the screens look like: twips and pixels, colours that can be read, type that fits its box.
#pragma once

#include "Design.h"

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>
#include <QStringList>

class QPainter;

namespace ui {

inline constexpr double pixelsPerPoint = 96.0 / 72.0;

// Pixels of a place when everything is drawn `scale` times as large. Edges are rounded, not sizes, so that neighbours
// stay neighbours.
QRect ToPixels(const Place& place, double scale);

QColor ToQColor(Color color);

// Contrast of two colours after WCAG: 1 (none) to 21 (black on white).
double Contrast(const QColor& a, const QColor& b);

// `wanted`, or black or white where that can be read better and `wanted` has less than 4.5:1 on `background`.
QColor ReadableOn(const QColor& background, const QColor& wanted);

// The families in which type asked for in `family` is drawn, best first. A desktop without Comic Sans would offer
// handwriting instead, which is hard to read; one without Arial Narrow, as Windows often is, would offer no sans serif.
QStringList Families(const QString& family);

// Draws the edge of `area`, `width` pixels thick, all inside it: what lies outside is cut off where a screen enlarges
// pixels by a fraction.
void DrawEdge(QPainter& painter, const QRect& area, const QColor& color, int width);

// `font` in the largest size from its own down to `smallest` pixels in which `text` fits into `area`, drawn with Qt
// text `flags`; in the smallest where it fits in none.
QFont Fitting(QFont font, const QString& text, const QSize& area, int flags, int smallest);

} // namespace ui
