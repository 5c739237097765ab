// A text that is only looked at.
#pragma once

#include "Control.h"

#include <string>

class QLabel;

namespace ui {

// A label's access key moves the focus to the control that follows the label in the tab order. Its type shrinks, and
// its text takes several lines, until the text fits.
class Label final : public Control
{
public:
    Label(const ControlDesign& design, QWidget* parent);

    std::string Text() const override;
    void Caption(std::string_view caption);

    // Has the access key lead to `stop`.
    void LeadTo(const Control& stop);

protected:
    void PutInPlace() override;

private:
    Label(const ControlDesign& design, QLabel* label);

    void Write(std::string_view text);
    void Fit();

    QLabel& m_label;
};

} // namespace ui
