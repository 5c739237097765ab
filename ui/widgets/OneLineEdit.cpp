#include "OneLineEdit.h"

#include "Look.h"
#include "Timing.h"

#include <QFocusEvent>
#include <QPainter>

namespace ui {

namespace {

constexpr int smallestType = 9; // pixels
constexpr int smallestBeforeWrapping = 11;
constexpr int smallestWhenWrapped = 8; // in which the longest readings are whole
constexpr int qtMargin = 2;            // what Qt leaves free at the left and right of the text
constexpr int leftMargin = 5;          // of texts that are not centred
constexpr int wrapping = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap;

} // namespace

OneLineEdit::OneLineEdit(const ControlDesign& design, QWidget* parent)
    : QLineEdit(parent), m_coloring(design.coloring), m_isSpoken(design.speaking == Speaking::Spoken)
{
    setFrame(false); // the edge is painted here: Qt's would leave too little room for five digits
    setReadOnly(design.typing == Typing::Locked);
    setAlignment(design.alignment == Alignment::Center ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
    TakeColors();
    connect(this, &QLineEdit::textChanged, this, [this] {
        Fit();
        TextChanged();
    });
}

void OneLineEdit::SetExactText(const QString& text)
{
    Write([&] { setText(text); });
    setCursorPosition(0);
}

void OneLineEdit::Select(int start, int length)
{
    if (length == 0) {
        setCursorPosition(start);
    } else {
        setSelection(start, length);
    }
}

void OneLineEdit::SetFullFont(const QFont& font)
{
    m_fullFont = font;
    Fit();
}

void OneLineEdit::TakeColors()
{
    setPalette(Colors(m_coloring, isReadOnly()));
}

void OneLineEdit::focusInEvent(QFocusEvent* event)
{
    // Qt selects the whole text of a box that is reached by Tab, and every step would be read with "selected".
    QFocusEvent withoutSelecting(QEvent::FocusIn, Qt::OtherFocusReason);
    QLineEdit::focusInEvent(&withoutSelecting);
    // What is selected on arrival the screen has selected, and it stays.
    const bool byTab = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (byTab && !hasSelectedText()) {
        CaretToStart(*this);
    }
}

void OneLineEdit::focusOutEvent(QFocusEvent* event)
{
    // As Qt does, but the pupil has left and need not hear of it. A menu or another window leaves the selection alone.
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) {
        Silently([this] { deselect(); });
    }
    QLineEdit::focusOutEvent(event);
}

void OneLineEdit::paintEvent(QPaintEvent* event)
{
    if (m_wraps && !hasFocus()) {
        QPainter painter(this);
        painter.fillRect(rect(), palette().base());
        painter.setFont(m_wrappedFont);
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(TextArea(), wrapping, m_isSpoken ? text().trimmed() : text());
    } else {
        QLineEdit::paintEvent(event);
    }
    QPainter painter(this);
    if (hasFocus() && isReadOnly() && !hasSelectedText()) {
        const QRect caret = cursorRect(); // of a locked box Qt shows no caret
        painter.fillRect(QRect(caret.center().x(), caret.top(), 1, caret.height()), palette().color(QPalette::Text));
    }
    const QRect area = mask().isEmpty() ? rect() : mask().boundingRect();
    PaintEdge(painter, area, palette(), isReadOnly(), hasFocus());
}

void OneLineEdit::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    Fit();
}

QRect OneLineEdit::TextArea() const
{
    const QRect area = mask().isEmpty() ? rect() : mask().boundingRect();
    const int side = alignment().testFlag(Qt::AlignHCenter) ? qtMargin : leftMargin;
    return area.adjusted(side, 1, -side, -1);
}

void OneLineEdit::Fit()
{
    if (m_fullFont.pixelSize() <= 0) {
        return; // not placed yet
    }
    const QRect area = TextArea();
    const QSize room = area.size() - QSize(1, 0); // for the caret
    // A spoken text that is repeated has a blank more, before it or behind it, and is not to be drawn otherwise for
    // that.
    const QString longest = m_isSpoken ? text().trimmed() + ' ' : text();
    const int smallestOnOneLine = isReadOnly() ? smallestBeforeWrapping : smallestType;
    const QFont onOneLine = Fitting(m_fullFont, longest, room, Qt::TextSingleLine, smallestOnOneLine);
    const bool fits = QFontMetrics(onOneLine).horizontalAdvance(longest) <= room.width();
    m_wrappedFont = Fitting(m_fullFont, longest, room, wrapping, smallestWhenWrapped);
    m_wraps = isReadOnly() && (!fits || m_wrappedFont.pixelSize() > onOneLine.pixelSize());
    if (onOneLine != font()) {
        setFont(onOneLine);
    }
    setTextMargins(area.left() - qtMargin, area.top(), area.left() - qtMargin, height() - 1 - area.bottom());
    update();
}

} // namespace ui
