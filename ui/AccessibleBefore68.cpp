#include "AccessibleBefore68.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLineEdit>

namespace ui {

namespace {

// A one-line text box. Qt 6.4 reports an empty run of attributes for every single character, by which Orca 43 loses the
// last character of a box that gets the focus ("12" is read "1"). Here one run spans the whole text.
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

// The text of a notification, as a label inside it: Orca 43 shows nothing but such labels on a braille line.
class NotificationText final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    QString text;
};

// A widget without size, never seen. Its accessible name stays empty: with the text as name the braille line is
// blanked.
class Notification final : public QWidget
{
    Q_OBJECT

public:
    explicit Notification(QWidget* window) : QWidget(window), m_text(new NotificationText(this))
    {
        setObjectName("Notification");
        resize(0, 0);
    }
    void Show(const QString& text)
    {
        m_text->text = text;
        QAccessibleEvent event(this, QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&event);
    }
    NotificationText* Text() const { return m_text; }

private:
    NotificationText* m_text;
};

class NotificationTextInterface final : public QAccessibleObject
{
public:
    explicit NotificationTextInterface(NotificationText* object) : QAccessibleObject(object) {}
    QAccessible::Role role() const override { return QAccessible::StaticText; }
    QAccessible::State state() const override { return {}; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? static_cast<NotificationText*>(object())->text : QString();
    }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(object()->parent()); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
};

class NotificationInterface final : public QAccessibleWidget
{
public:
    explicit NotificationInterface(Notification* widget) : QAccessibleWidget(widget, QAccessible::Notification) {}
    QAccessible::State state() const override { return {}; } // shown, though its widget is not
    QString text(QAccessible::Text) const override { return {}; }
    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(static_cast<Notification*>(widget())->Text())
                          : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child != nullptr && child->object() == static_cast<Notification*>(widget())->Text() ? 0 : -1;
    }
};

} // namespace

QAccessibleInterface* InterfaceBefore68(QObject* object)
{
    if (auto* edit = qobject_cast<QLineEdit*>(object)) {
        return new LineEditInterface(edit);
    }
    if (auto* notification = qobject_cast<Notification*>(object)) {
        return new NotificationInterface(notification);
    }
    if (auto* text = qobject_cast<NotificationText*>(object)) {
        return new NotificationTextInterface(text);
    }
    return nullptr;
}

void ShowNotification(QWidget& window, const QString& text)
{
    auto* notification = window.findChild<Notification*>(QString(), Qt::FindDirectChildrenOnly);
    if (notification == nullptr) {
        notification = new Notification(&window);
    }
    notification->Show(text);
}

} // namespace ui

#include "AccessibleBefore68.moc"
