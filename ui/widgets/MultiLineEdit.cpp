#include "MultiLineEdit.h"

#include <QFocusEvent>
#include <QPainter>
#include <QTextBlock>

namespace ui {

namespace {

// The document has one character for a line end, and would make one of a lone CR or LF too. These are shown, and kept
// in the document, as the symbols that stand for them, so that each text has one form there.
constexpr QChar symbolForCr(0x240D);
constexpr QChar symbolForLf(0x240A);

QString ToDocument(QString text)
{
    text.replace("\r\n", QString(QChar::ParagraphSeparator));
    text.replace('\r', symbolForCr);
    return text.replace('\n', symbolForLf);
}

QString FromDocument(QString text)
{
    text.replace(QChar::ParagraphSeparator, "\r\n");
    text.replace(symbolForCr, '\r');
    return text.replace(symbolForLf, '\n');
}

} // namespace

MultiLineEdit::MultiLineEdit(const ControlDesign& design, QWidget* parent)
    : QPlainTextEdit(parent), m_coloring(design.coloring), m_keysOnly(design.typing == Typing::KeysOnly)
{
    setUndoRedoEnabled(!m_keysOnly);
    setFrameShape(QFrame::NoFrame);                     // the edge is painted here, as that of the boxes of one line
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // the caret leads to what does not fit
    setReadOnly(design.typing == Typing::Locked);
    setTextInteractionFlags(textInteractionFlags() | Qt::TextSelectableByKeyboard); // a caret in locked boxes too
    setTabChangesFocus(true);
    TakeColors();
    connect(this, &QPlainTextEdit::textChanged, this, [this] { TextChanged(); });
}

QString MultiLineEdit::ExactText() const
{
    return FromDocument(document()->toRawText());
}

void MultiLineEdit::SetExactText(const QString& text)
{
    Write([&] { setPlainText(ToDocument(text)); });
    m_kept = text;
}

// Replaces what lies between the two texts' common beginning and end, so that the screen reader hears of that alone.
void MultiLineEdit::Edit(const QString& text, int caret)
{
    const QString before = document()->toRawText();
    const QString after = ToDocument(text);
    const qsizetype shorter = std::min(before.size(), after.size());
    qsizetype begin = 0;
    while (begin < shorter && before[begin] == after[begin]) {
        ++begin;
    }
    qsizetype end = 0;
    while (end < shorter - begin && before[before.size() - 1 - end] == after[after.size() - 1 - end]) {
        ++end;
    }
    QTextCursor cursor(document());
    cursor.setPosition(static_cast<int>(begin));
    cursor.setPosition(static_cast<int>(before.size() - end), QTextCursor::KeepAnchor);
    Write([&] { cursor.insertText(after.mid(begin, after.size() - begin - end)); });
    m_kept = text;
    Select(caret, 0);
}

void MultiLineEdit::ChangedByPupil()
{
    if (!m_keysOnly) {
        TextHolder::ChangedByPupil();
        return;
    }
    Edit(m_kept, std::min(SelStart(), static_cast<int>(m_kept.size()))); // it was none of the handlers
    if (refused) {
        refused();
    }
}

int MultiLineEdit::SelStart() const
{
    return static_cast<int>(FromDocument(document()->toRawText().left(textCursor().selectionStart())).size());
}

void MultiLineEdit::Select(int start, int length)
{
    const QString text = ExactText();
    QTextCursor cursor = textCursor();
    cursor.setPosition(static_cast<int>(ToDocument(text.left(start)).size()));
    cursor.setPosition(static_cast<int>(ToDocument(text.left(start + length)).size()), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

QString MultiLineEdit::CaretLine() const
{
    return FromDocument(textCursor().block().text());
}

void MultiLineEdit::TakeColors()
{
    setPalette(Colors(m_coloring, isReadOnly()));
}

void MultiLineEdit::focusInEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusInEvent(event);
    viewport()->update(); // the edge too
    const bool byTab = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (byTab && isReadOnly()) { // who works on a text goes on where the caret was left
        CaretToStart(*this);
    }
}

void MultiLineEdit::focusOutEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusOutEvent(event);
    viewport()->update();
}

void MultiLineEdit::paintEvent(QPaintEvent* event)
{
    QPlainTextEdit::paintEvent(event);
    QPainter painter(viewport());
    if (hasFocus() && isReadOnly() && !textCursor().hasSelection()) {
        const QRect caret = cursorRect(); // of a locked box Qt shows no caret
        painter.fillRect(QRect(caret.left(), caret.top(), 1, caret.height()), palette().color(QPalette::Text));
    }
    PaintEdge(painter, viewport()->rect(), palette(), isReadOnly(), hasFocus());
}

} // namespace ui
