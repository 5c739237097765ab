// The widget of a text box of one line. Its type shrinks until the text fits; the text of a locked box that is too long
// even so is shown on several lines while the box does not have the focus.
#pragma once

#include "Design.h"
#include "TextHolder.h"

#include <QLineEdit>

namespace ui {

class OneLineEdit final : public QLineEdit, public TextHolder
{
    Q_OBJECT

public:
    OneLineEdit(const ControlDesign& design, QWidget* parent);

    QString ExactText() const override { return text(); }
    void SetExactText(const QString& text) override;
    int SelStart() const override { return hasSelectedText() ? selectionStart() : cursorPosition(); }
    QString CaretLine() const override { return text(); }
    void Select(int start, int length) override;

    void TakeColors() override;
    void SetFullFont(const QFont& font) override;

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Fit();
    QRect TextArea() const;

    const Coloring m_coloring;
    const bool m_isSpoken;
    QFont m_fullFont;
    QFont m_wrappedFont;
    bool m_wraps = false;
};

} // namespace ui
