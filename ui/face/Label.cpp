#include "Label.h"

#include "Announcer.h"
#include "Look.h"
#include "Strings.h"

#include <QLabel>

namespace ui {

Label::Label(const ControlDesign& design, QWidget* parent) : Label(design, new QLabel(parent))
{
}

Label::Label(const ControlDesign& design, QLabel* label) : Control(design, *label), m_label(*label)
{
    label->setFocusPolicy(Qt::NoFocus); // though it has a place in the tab order
    label->setWordWrap(true);
    Write(design.text);
}

std::string Label::Text() const
{
    return m_label.text().toStdString();
}

void Label::Caption(std::string_view caption)
{
    Write(caption);
    Fit();
    if (Design().speaking == Speaking::Spoken) {
        Announcer::Instance().Say(m_label, m_label.text());
    }
}

void Label::LeadTo(const Control& stop)
{
    m_label.setBuddy(&stop.Widget());
}

void Label::Write(std::string_view text)
{
    m_label.setText(ToQString(text));
    m_label.setAccessibleName(m_label.text().remove('&')); // Qt 6.8 would tell the "&" too
}

void Label::PutInPlace()
{
    Control::PutInPlace();
    Fit();
}

void Label::Fit()
{
    constexpr int smallestType = 9; // pixels
    constexpr int flags = Qt::TextShowMnemonic | Qt::TextWordWrap;
    m_label.setFont(Fitting(Font(), m_label.text(), m_label.size(), flags, smallestType));
}

} // namespace ui
