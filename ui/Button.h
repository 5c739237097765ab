// A push button with a coloured face.
#pragma once

#include "Control.h"

#include <QPushButton>

#include <functional>
#include <string>

namespace ui {

// The face is exactly the given colour and the caption black, whatever the desktop's theme. Enter presses it.
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

class Button final : public Control
{
public:
    Button(const ControlDesign& design, QWidget* parent);

    // UTF-8. "&" stands before the access key; line breaks are kept. A button that has the focus and gets another
    // caption is read again.
    std::string Caption() const { return m_button.text().toStdString(); }
    void Caption(std::string_view caption);

    // The accessible name. Without one it is the caption, without "&" and line breaks.
    void Says(std::string_view name);

    // Beeps and says the name: pressing the button has changed nothing.
    void Refuse() const;

    // Says the new name, where a reader does not read it by itself, and `more`: pressing the button has changed both.
    void SayWith(std::string_view more) const;

    // Puts the focus on the button and presses it, at once.
    void Press();

    // Whether this is its access key.
    bool HasAccessKey(const QKeySequence& key) const { return m_button.shortcut() == key; }

    void BackColor(Color color) { m_button.SetFace(ToQColor(color)); }

    // Handler, with the button's index in its array.
    std::function<void(int Index)> OnClick;

private:
    Button(const ControlDesign& design, FaceButton* button);

    void NameChanged();

    FaceButton& m_button;
    QString m_says;
    QString m_name;
};

} // namespace ui
