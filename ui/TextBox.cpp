#include "TextBox.h"

#include "Announcer.h"
#include "Bell.h"
#include "Fatal.h"
#include "MultiLineEdit.h"
#include "OneLineEdit.h"
#include "Silence.h"
#include "Strings.h"
#include "Val.h"

namespace ui {

namespace {

template <class Widget>
std::pair<QWidget*, EditWidget*> Create(const ControlDesign& design, QWidget* parent)
{
    auto* widget = new Widget(design, parent);
    return {widget, widget};
}

} // namespace

TextBox::TextBox(const ControlDesign& design, QWidget* parent)
    : TextBox(design, design.kind == Kind::MultiLine ? Create<MultiLineEdit>(design, parent)
                                                     : Create<OneLineEdit>(design, parent))
{
}

TextBox::TextBox(const ControlDesign& design, std::pair<QWidget*, EditWidget*> widget)
    : Control(design, *widget.first), m_edit(*widget.second)
{
    m_edit.SetExactText(ToQString(design.text));
    m_edit.edited = [this] { Changed(); };
    m_edit.refused = [this] { Refuse(); };
}

// In focus the reader follows the box; elsewhere nobody does.
template <class Change>
void TextBox::Alter(Change change)
{
    if (Widget().hasFocus()) {
        change();
    } else {
        Silently(change);
    }
}

std::string TextBox::Text() const
{
    return m_edit.ExactText().toStdString();
}

void TextBox::Text(std::string_view text)
{
    const QString value = ToQString(text);
    if (value != m_edit.ExactText()) {
        Alter([&] { m_edit.SetExactText(value); });
        Changed();
    }
    if (Design().speaking == Speaking::Spoken) {
        Announcer::Instance().Say(Widget(), value);
    }
}

void TextBox::Text(int number)
{
    Text(std::to_string(number));
}

double TextBox::Number() const
{
    return numeros::Val(Text());
}

void TextBox::PutInPlace()
{
    Control::PutInPlace();
    if (auto* oneLine = qobject_cast<OneLineEdit*>(&Widget())) {
        oneLine->SetFullFont(Font());
    }
}

void TextBox::Select(int start, int length)
{
    m_edit.SettleCaret(); // which would otherwise undo the selection
    Alter([&] { m_edit.Select(start, length); });
}

void TextBox::SelectAll()
{
    Select(0, static_cast<int>(m_edit.ExactText().size()));
}

void TextBox::Say() const
{
    Announcer::Instance().Say(Widget(), m_edit.ExactText());
}

void TextBox::SayLocked() const
{
    Announcer::Instance().Say(Widget(), "solo lectura");
}

void TextBox::Refuse() const
{
    Beep();
    Announcer::Instance().Say(Widget(), m_edit.CaretLine());
}

std::u16string TextBox::Units() const
{
    return m_edit.ExactText().toStdU16String();
}

void TextBox::Edit(std::u16string_view text, int caret)
{
    const QString value = QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
    Alter([&] { m_edit.Edit(value, caret); });
}

void TextBox::GotFocus()
{
    if (OnGotFocus) {
        OnGotFocus(Index());
    }
}

void TextBox::Validate()
{
    if (OnValidate) {
        OnValidate(Index());
    }
}

void TextBox::TakeColors()
{
    m_edit.TakeColors();
}

KeyResult TextBox::KeyDown(int keyCode, int shift)
{
    m_edit.SettleCaret();
    return OnKeyDown ? OnKeyDown(Index(), keyCode, shift) : KeyResult::Pass;
}

KeyResult TextBox::KeyPressed(int keyAscii)
{
    return OnKeyPress ? OnKeyPress(Index(), keyAscii) : KeyResult::Pass;
}

void TextBox::Changed() const
{
    if (OnChange) {
        Run([this] { OnChange(Index()); });
    }
}

} // namespace ui
