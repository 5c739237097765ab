// The widget of a text box of several lines. Qt folds every line end into one; here CR, LF and both together stay
// apart.
#pragma once

#include "Design.h"
#include "TextHolder.h"

#include <QPlainTextEdit>

namespace ui {

class MultiLineEdit final : public QPlainTextEdit, public TextHolder
{
    Q_OBJECT

public:
    MultiLineEdit(const ControlDesign& design, QWidget* parent);

    QString ExactText() const override;
    void SetExactText(const QString& text) override;
    int SelStart() const override;
    QString CaretLine() const override;
    void Select(int start, int length) override;
    void TakeColors() override;

    // Replaces what is different in `text`, and puts the caret after `caret` of its characters. Does not call `edited`.
    void Edit(const QString& text, int caret);

protected:
    void ChangedByPupil() override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    const Coloring m_coloring;
    const bool m_keysOnly;
    QString m_kept; // of a box for keys only: the text that its handlers have left
};

} // namespace ui
