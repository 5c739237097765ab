// The widget of a push button. Its face is exactly the given colour and the caption black, whatever the desktop's
// theme. Enter presses it.
#pragma once

#include <QPushButton>

namespace ui {

class FaceButton final : public QPushButton
{
    Q_OBJECT

public:
    FaceButton(const QColor& face, QWidget* parent);

    void SetFace(const QColor& face);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_face;
};

} // namespace ui
