// The widgets of frames, picture boxes and lines.
#pragma once

#include "Design.h"

#include <QGroupBox>

namespace ui {

// A coloured frame is painted here, with its caption in black: the desktop's style would darken the colour.
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

// A thin edge round whatever controls lie in it.
class PictureWidget final : public QWidget
{
    Q_OBJECT

public:
    explicit PictureWidget(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

// A horizontal or vertical bar that fills its place.
class LineWidget final : public QWidget
{
    Q_OBJECT

public:
    explicit LineWidget(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ui
