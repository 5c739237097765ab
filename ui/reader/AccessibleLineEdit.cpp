#include "AccessibleLineEdit.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLineEdit>

namespace ui {

namespace {

class LineEditInterface final : public QAccessibleWidget,
                                public QAccessibleTextInterface,
                                public QAccessibleEditableTextInterface
{
public:
    explicit LineEditInterface(QLineEdit* edit) : QAccessibleWidget(edit, QAccessible::EditableText) {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? Shown() : QAccessibleWidget::text(kind);
    }

    void setText(QAccessible::Text kind, const QString& text) override
    {
        if (kind != QAccessible::Value) {
            QAccessibleWidget::setText(kind, text);
        } else if (!Edit().isReadOnly()) {
            Edit().setText(text);
        }
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = true; // a locked box is told by readOnly beside it
        state.readOnly = Edit().isReadOnly();
        state.selectableText = true;
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        switch (type) {
        case QAccessible::TextInterface:
            return static_cast<QAccessibleTextInterface*>(this);
        case QAccessible::EditableTextInterface:
            return static_cast<QAccessibleEditableTextInterface*>(this);
        default:
            return QAccessibleWidget::interface_cast(type);
        }
    }

    void selection(int index, int* startOffset, int* endOffset) const override
    {
        const bool selected = index == 0 && Edit().hasSelectedText();
        *startOffset = selected ? Edit().selectionStart() : 0;
        *endOffset = selected ? Edit().selectionEnd() : 0;
    }
    int selectionCount() const override { return Edit().hasSelectedText() ? 1 : 0; }
    void addSelection(int startOffset, int endOffset) override { setSelection(0, startOffset, endOffset); }
    void removeSelection(int index) override
    {
        if (index == 0) {
            Edit().deselect();
        }
    }
    void setSelection(int index, int startOffset, int endOffset) override
    {
        if (index == 0) {
            Edit().setSelection(startOffset, endOffset - startOffset);
        }
    }
    int cursorPosition() const override { return Edit().cursorPosition(); }
    void setCursorPosition(int position) override { Edit().setCursorPosition(position); }
    QString text(int startOffset, int endOffset) const override
    {
        return Shown().mid(startOffset, endOffset - startOffset);
    }
    int characterCount() const override { return static_cast<int>(Shown().size()); }
    QRect characterRect(int offset) const override
    {
        const QFontMetrics metrics(Edit().font());
        const int from =
            metrics.horizontalAdvance(Shown(), offset) - metrics.horizontalAdvance(Shown(), Edit().cursorPosition());
        const QRect caret = Edit().inputMethodQuery(Qt::ImCursorRectangle).toRect();
        const int width = metrics.horizontalAdvance(Shown().mid(offset, 1));
        return {Edit().mapToGlobal(QPoint(caret.center().x() + from, caret.top())), QSize(width, caret.height())};
    }
    int offsetAtPoint(const QPoint& point) const override
    {
        return Edit().cursorPositionAt(Edit().mapFromGlobal(point));
    }
    void scrollToSubstring(int startIndex, int) override { Edit().setCursorPosition(startIndex); }
    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int* startOffset,
                         int* endOffset) const override
    {
        const QString shown = Shown();
        if (boundary != QAccessible::WordBoundary && boundary != QAccessible::SentenceBoundary) {
            return QAccessibleTextInterface::textAtOffset(offset, boundary, startOffset, endOffset);
        }
        const auto length = static_cast<int>(shown.size());
        const auto isInside = [&](int at) {
            return at >= 0 && at < length && (boundary == QAccessible::SentenceBoundary || !shown[at].isSpace());
        };
        const int from = offset < 0 || offset > length ? length : offset;
        for (*startOffset = from; isInside(*startOffset - 1); --*startOffset) {
        }
        for (*endOffset = from; isInside(*endOffset); ++*endOffset) {
        }
        return text(*startOffset, *endOffset);
    }
    QString attributes(int, int* startOffset, int* endOffset) const override
    {
        *startOffset = 0;
        *endOffset = characterCount();
        return {};
    }

    void deleteText(int startOffset, int endOffset) override { replaceText(startOffset, endOffset, {}); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void replaceText(int startOffset, int endOffset, const QString& text) override
    {
        if (!Edit().isReadOnly()) {
            Edit().setText(Edit().text().replace(startOffset, endOffset - startOffset, text));
        }
    }

private:
    QLineEdit& Edit() const { return *static_cast<QLineEdit*>(widget()); }
    QString Shown() const { return Edit().displayText(); }
};

} // namespace

QAccessibleInterface* NewLineEditInterface(QLineEdit& edit)
{
    return new LineEditInterface(&edit);
}

} // namespace ui
