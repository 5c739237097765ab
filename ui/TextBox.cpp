#include "TextBox.h"

#include "Announcer.h"
#include "MultiLineEdit.h"
#include "OneLineEdit.h"
#include "Strings.h"
#include "Val.h"

#include <QAccessible>

namespace ui {

namespace {

template <class Widget>
std::pair<QWidget*, EditWidget*> Create(const ControlDesign& design, QWidget* parent)
{
    auto* widget = new Widget(design, parent);
    return {widget, widget};
}

// Runs `change` on a box that is not in focus without a word to the screen reader. Qt tells of every caret that moves,
// and that is taken for the arrival in the box where the focus follows at once; then nothing is said of that.
template <class Change>
void Silently(Change change)
{
    const auto handler = QAccessible::installUpdateHandler([](QAccessibleEvent*) {});
    change();
    QAccessible::installUpdateHandler(handler);
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
}

std::string TextBox::Text() const
{
    return m_edit.ExactText().toStdString();
}

void TextBox::Text(std::string_view text)
{
    const QString value = ToQString(text);
    if (value != m_edit.ExactText()) {
        Write(value);
        Changed();
    }
    if (Design().speaking == Speaking::Spoken) {
        Announcer::Instance().Say(Widget(), value);
    }
}

void TextBox::Write(const QString& value)
{
    if (Widget().hasFocus()) {
        m_edit.SetExactText(value);
        return;
    }
    QAccessibleTextUpdateEvent event(&Widget(), 0, m_edit.ExactText(), value);
    Silently([&] { m_edit.SetExactText(value); });
    QAccessible::updateAccessibility(&event);
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
    if (Widget().hasFocus()) {
        m_edit.Select(start, length);
    } else {
        Silently([&] { m_edit.Select(start, length); });
    }
}

void TextBox::SelectAll()
{
    Select(0, static_cast<int>(m_edit.ExactText().size()));
}

void TextBox::Say() const
{
    Announcer::Instance().Say(Widget(), m_edit.ExactText());
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
        OnChange(Index());
    }
}

} // namespace ui
