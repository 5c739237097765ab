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
    : QPlainTextEdit(parent), m_coloring(design.coloring)
{
    setFrameShape(QFrame::NoFrame);                     // the edge is painted here, as that of the boxes of one line
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // the caret leads to what does not fit
    setReadOnly(design.typing == Typing::Locked);
    setTextInteractionFlags(textInteractionFlags() | Qt::TextSelectableByKeyboard); // a caret in locked boxes too
    setTabChangesFocus(true);
    TakeColors();
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (edited && !m_writing) {
            edited();
        }
    });
}

QString MultiLineEdit::ExactText() const
{
    return FromDocument(document()->toRawText());
}

void MultiLineEdit::SetExactText(const QString& text)
{
    m_writing = true;
    setPlainText(ToDocument(text));
    m_writing = false;
}

int MultiLineEdit::SelStart() const
{
    return static_cast<int>(FromDocument(document()->toRawText().left(textCursor().selectionStart())).size());
}

int MultiLineEdit::SelLength() const
{
    const QTextCursor cursor = textCursor();
    const int length = cursor.selectionEnd() - cursor.selectionStart();
    return static_cast<int>(FromDocument(document()->toRawText().mid(cursor.selectionStart(), length)).size());
}

void MultiLineEdit::Select(int start, int length)
{
    const QString text = ExactText();
    QTextCursor cursor = textCursor();
    cursor.setPosition(static_cast<int>(ToDocument(text.left(start)).size()));
    cursor.setPosition(static_cast<int>(ToDocument(text.left(start + length)).size()), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void MultiLineEdit::TakeColors()
{
    setPalette(Colors(m_coloring, isReadOnly()));
}

void MultiLineEdit::focusInEvent(QFocusEvent* event)
{
    QPlainTextEdit::focusInEvent(event);
    viewport()->update(); // the edge too
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
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
