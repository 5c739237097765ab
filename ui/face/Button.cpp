#include "Button.h"

#include "Announcer.h"
#include "Bell.h"
#include "FaceButton.h"
#include "Look.h"
#include "Strings.h"
#include "Timing.h"

namespace ui {

Button::Button(const ControlDesign& design, QWidget* parent)
    : Button(design, new FaceButton(ToQColor(design.color.value_or(Color::Green)), parent))
{
}

Button::Button(const ControlDesign& design, FaceButton* button)
    : Control(design, *button), m_button(*button), m_accessibleName(design.accessibleName)
{
    Caption(design.text);
    NameChanged(); // also where there is no caption
    QObject::connect(button, &QPushButton::clicked, button, [this] {
        if (OnClick) {
            around([this] { OnClick(Index()); });
        }
    });
}

std::string Button::Caption() const
{
    return m_button.text().toStdString();
}

void Button::Caption(std::string_view caption)
{
    if (const QString text = ToQString(caption); text != m_button.text()) {
        m_button.setText(text);
        NameChanged();
    }
}

void Button::AccessibleName(std::string_view name)
{
    if (name != m_accessibleName) {
        m_accessibleName = name;
        NameChanged();
    }
}

void Button::Press()
{
    m_button.setFocus(Qt::ShortcutFocusReason);
    m_button.click();
}

bool Button::HasAccessKey(const QKeySequence& key) const
{
    return m_button.shortcut() == key;
}

void Button::BackColor(Color color)
{
    m_button.SetFace(ToQColor(color));
}

void Button::Refuse() const
{
    Beep();
    Announcer::Instance().Say(m_button, ToQString(m_name));
}

void Button::SayWith(std::string_view more) const
{
    SayWithName(m_button, ToQString(m_name), ToQString(more));
}

void Button::NameChanged()
{
    const QString caption = m_button.text();
    const QString name = m_accessibleName.empty() ? QString(caption).remove('&').remove('\r').replace('\n', ' ')
                                                  : ToQString(m_accessibleName);
    if (name.toStdString() == m_name) {
        return;
    }
    m_name = name.toStdString();
    // Qt makes the name of a caption of one line itself, and tells of it once.
    const bool isByQt = m_accessibleName.empty() && !caption.contains('\n');
    m_button.setAccessibleName(isByQt ? QString() : name);
    SayNewName(m_button, name);
}

} // namespace ui
