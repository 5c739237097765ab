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

// Writes into a box that is not in focus, and tells the screen reader of the text but of no caret. A caret that has
// moved is taken for the arrival in the box where the focus follows at once, and then nothing is said of that.
void WriteUnfocused(QWidget& widget, EditWidget& edit, const QString& text)
{
    const QString before = edit.ExactText();
    const auto handler = QAccessible::installUpdateHandler([](QAccessibleEvent*) {});
    edit.SetExactText(text);
    QAccessible::installUpdateHandler(handler);
    QAccessibleTextUpdateEvent event(&widget, 0, before, text);
    QAccessible::updateAccessibility(&event);
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
        if (Widget().hasFocus()) {
            m_edit.SetExactText(value);
        } else {
            WriteUnfocused(Widget(), m_edit, value);
        }
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
    m_edit.Select(start, length);
}

void TextBox::TakeColors()
{
    if (auto* oneLine = qobject_cast<OneLineEdit*>(&Widget())) {
        oneLine->TakeColors();
    }
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
