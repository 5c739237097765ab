// A push button with a coloured face.
#pragma once

#include "Control.h"

#include <QPushButton>

#include <functional>

namespace ui {

// The face is exactly the given colour and the caption black, whatever the desktop's theme. The access key and Enter
// press it at once.
class FaceButton final : public QPushButton
{
    Q_OBJECT

public:
    FaceButton(const QColor& face, QWidget* parent);

    void SetFace(const QColor& face);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_face;
};

class Button final : public Control
{
public:
    Button(const ControlDesign& design, QWidget* parent);

    // "&" stands before the access key; line breaks are kept. The accessible name is the caption without either, unless
    // the design gives another.
    void Caption(std::string_view caption);
    void BackColor(Color color) { m_button.SetFace(ToQColor(color)); }

    // Handler, with the button's index in its array.
    std::function<void(int Index)> OnClick;

private:
    Button(const ControlDesign& design, FaceButton* button);

    FaceButton& m_button;
};

} // namespace ui
