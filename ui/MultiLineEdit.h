// The widget of a text box of several lines. Qt folds every line end into one; here CR, LF and both together stay
// apart.
#pragma once

#include "Design.h"
#include "EditWidget.h"

#include <QPlainTextEdit>

namespace ui {

class MultiLineEdit final : public QPlainTextEdit, public EditWidget
{
    Q_OBJECT

public:
    MultiLineEdit(const ControlDesign& design, QWidget* parent);

    QString ExactText() const override;
    void SetExactText(const QString& text) override;
    void Edit(const QString& text, int caret) override;
    int SelStart() const override;
    int SelLength() const override;
    QString CaretLine() const override;
    void Select(int start, int length) override;
    void TakeColors() override;

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Guard();

    const Coloring m_coloring;
    const bool m_keysOnly;
    QString m_kept; // of a box for keys only: the text that its handlers have left
    bool m_writing = false;
};

} // namespace ui
