#include "TextBox.h"

#include "Announcer.h"
#include "Bell.h"
#include "Handlers.h"
#include "MultiLineEdit.h"
#include "OneLineEdit.h"
#include "Strings.h"
#include "Timing.h"
#include "Val.h"

namespace ui {

TextBox::TextBox(const ControlDesign& design, QWidget* parent) : TextBox(design, new OneLineEdit(design, parent))
{
}

TextBox::TextBox(const ControlDesign& design, QWidget& widget, TextHolder& holder)
    : Control(design, widget), m_holder(holder)
{
    m_holder.SetExactText(ToQString(design.text));
    m_holder.edited = [this] { Changed(); };
    m_holder.refused = [this] { Refuse(); };
}

std::string TextBox::Text() const
{
    return m_holder.ExactText().toStdString();
}

void TextBox::Text(std::string_view text)
{
    const QString value = ToQString(text);
    if (value != m_holder.ExactText()) {
        Alter(Widget(), [&] { m_holder.SetExactText(value); });
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
    m_holder.SetFullFont(Font());
}

void TextBox::Select(int start, int length)
{
    m_holder.SettleCaret(); // which would otherwise undo the selection
    Alter(Widget(), [&] { m_holder.Select(start, length); });
}

void TextBox::SelectAll()
{
    Select(0, static_cast<int>(m_holder.ExactText().size()));
}

int TextBox::SelStart() const
{
    return m_holder.SelStart();
}

void TextBox::Say() const
{
    Announcer::Instance().Say(Widget(), m_holder.ExactText());
}

void TextBox::SayWhereItIs() const
{
    const QString text = Widget().accessibleName() + ' ' + m_holder.CaretLine();
    Announcer::Instance().Say(Widget(), text.simplified());
}

void TextBox::SayLocked() const
{
    Announcer::Instance().Say(Widget(), "solo lectura");
}

void TextBox::Refuse() const
{
    Beep();
    Announcer::Instance().Say(Widget(), m_holder.CaretLine());
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
    m_holder.TakeColors();
}

KeyResult TextBox::KeyDown(int keyCode, int shift)
{
    m_holder.SettleCaret();
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

TextArea::TextArea(const ControlDesign& design, QWidget* parent) : TextArea(design, *new MultiLineEdit(design, parent))
{
}

TextArea::TextArea(const ControlDesign& design, MultiLineEdit& edit) : TextBox(design, edit, edit), m_edit(edit)
{
}

std::u16string TextArea::Utf16Text() const
{
    return m_edit.ExactText().toStdU16String();
}

void TextArea::Edit(std::u16string_view text, int caret)
{
    const QString value = QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
    Alter(Widget(), [&] { m_edit.Edit(value, caret); });
}

} // namespace ui
