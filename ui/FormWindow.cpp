#include "FormWindow.h"

#include "Handlers.h"
#include "KeyOrder.h"
#include "Look.h"
#include "Timing.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLayout>
#include <QPointer>
#include <QScreen>
#include <QShortcutEvent>
#include <QStyle>
#include <QTimer>
#include <QWindow>

#include <algorithm>

namespace ui {

namespace {

// Whether the focus comes or goes inside the window, and not with the window or for a menu.
bool IsFocusMove(const QEvent& event)
{
    if (event.type() != QEvent::FocusIn && event.type() != QEvent::FocusOut) {
        return false;
    }
    const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason;
}

QPointer<QMainWindow> front;

} // namespace

void BringForward(QWidget& window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

QMainWindow* Form::FrontWindow()
{
    return front;
}

Form::FormWindow::FormWindow(Form& screen) : m_screen(screen)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_Hover, false); // a Qt without docks would paint all anew when the pointer comes or goes
    setCentralWidget(new QWidget);
    centralWidget()->setMinimumSize(1, 1);
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, &FormWindow::OpenBlockingAgain);
}

void Form::FormWindow::Open(std::shared_ptr<Form> screen, Modality modality, const Form* opener)
{
    m_owned = std::move(screen);
    centralWidget()->installEventFilter(this);
    if (modality == Modality::Modal) {
        BelongTo(opener);
    }
    m_screen.Form_Load();
    m_screen.TellExercise();
    const auto first =
        std::ranges::find_if(m_screen.m_tabStops, [](const Control* stop) { return stop->Widget().isEnabled(); });
    if (focusWidget() == nullptr && first != m_screen.m_tabStops.end()) {
        (*first)->SetFocus();
    }
    TakeOpeningSize();
    show();
}

// To the desktop a modal screen is one window with that which it blocks: nothing leads to the one, or takes away the
// other, without it.
void Form::FormWindow::BelongTo(const Form* opener)
{
    setWindowModality(Qt::ApplicationModal);
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint);
    winId(); // which makes its handle
    windowHandle()->setTransientParent(opener == nullptr ? nullptr : opener->m_window.windowHandle());
}

void Form::FormWindow::TakeOpeningSize()
{
    constexpr int frame = 4; // pixels at the sides and below; what the desktop really adds is known too late
    centralWidget()->setFixedSize(OpeningSize()); // so that the window becomes this size and its menu bar
    adjustSize();
    centralWidget()->setMinimumSize(1, 1);
    centralWidget()->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    layout()->activate(); // or the window could not be smaller yet
    resize(size().boundedTo(screen()->availableSize() -
                            QSize(2 * frame, style()->pixelMetric(QStyle::PM_TitleBarHeight) + frame)));
}

void Form::FormWindow::Watch(Control& control)
{
    control.Widget().installEventFilter(this);
}

bool Form::FormWindow::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate) {
        m_patience.stop();
        if (QApplication::activeModalWidget() == nullptr || QApplication::activeModalWidget() == this) {
            front = this;
        } else if (QWidget* blocking = Blocking()) {
            LeadTo(*blocking);
        }
    }
    if (event->type() == QEvent::Close) { // while a menu is open, Qt does not see which window becomes active next
        CloseMenus();
    }
    const bool handled = QMainWindow::event(event);
    if (event->type() == QEvent::ApplicationPaletteChange) { // only windows are told
        for (const std::unique_ptr<Control>& control : m_screen.m_controls) {
            control->TakeColors();
        }
    }
    return handled;
}

// The screen or box that this window waits for; null also for the moment before a box, in which nothing is to be seen.
QWidget* Form::FormWindow::Blocking() const
{
    QWidget* modal = QApplication::activeModalWidget();
    const bool isOther =
        modal != this && (dynamic_cast<FormWindow*>(modal) != nullptr || qobject_cast<QDialog*>(modal) != nullptr);
    return isOther ? modal : nullptr;
}

// This window is dead while `blocking` is open. The desktop is asked to bring that, and where it does not, since it
// does not know the two for one or lets nobody come forward, that opens once more.
void Form::FormWindow::LeadTo(QWidget& blocking)
{
    constexpr int patience = 300; // milliseconds, so that a box that is just opening is left alone
    ui::BringForward(blocking);
    m_patience.start(patience);
}

void Form::FormWindow::OpenBlockingAgain()
{
    QWidget* blocking = Blocking();
    if (blocking == nullptr || !isActiveWindow()) {
        return;
    }
    blocking->hide();
    if (qobject_cast<QDialog*>(blocking) == nullptr) { // a box opens by itself; see OpenBox
        ui::BringForward(*blocking);
    }
}

bool Form::FormWindow::eventFilter(QObject* watched, QEvent* event)
{
    KeyResult result = KeyResult::Swallow;
    Run([&] { result = Handle(watched, *event); });
    return result == KeyResult::Swallow || QMainWindow::eventFilter(watched, event);
}

// What the desktop's texts are enlarged by.
double Form::FormWindow::TextScale() const
{
    return std::max(1.0, logicalDpiX() / 96.0);
}

QSize Form::FormWindow::OpeningSize() const
{
    return ToPixels({0, 0, m_screen.m_design.width, m_screen.m_design.height}, TextScale()).size();
}

void Form::FormWindow::Arrange()
{
    const FormDesign& design = m_screen.m_design;
    const QSize size = centralWidget()->size();
    const QSize opening = OpeningSize(); // in whole pixels, so that at this size the scale is exact
    const double scale = TextScale() * std::min(static_cast<double>(size.width()) / opening.width(),
                                                static_cast<double>(size.height()) / opening.height());
    if (design.resizing == Resizing::Own) {
        for (const std::unique_ptr<Control>& control : m_screen.m_controls) {
            control->ScaleType(scale);
        }
        m_screen.Form_Resize();
        return;
    }
    const QSize drawn = ToPixels({0, 0, design.width, design.height}, scale).size();
    const QPoint centred((size.width() - drawn.width()) / 2, (size.height() - drawn.height()) / 2);
    for (const std::unique_ptr<Control>& control : m_screen.m_controls) {
        control->Scale(scale, control->Design().inside.empty() ? centred : QPoint());
    }
}

KeyResult Form::FormWindow::Handle(QObject* watched, QEvent& event)
{
    if (watched == centralWidget() && event.type() == QEvent::Resize) {
        Arrange();
    }
    Control* control = m_screen.ControlOf(qobject_cast<QWidget*>(watched));
    if (control == nullptr) {
        return KeyResult::Pass;
    }
    if (IsFocusMove(event)) {
        m_lockedIsSaid = false;
        // The screen reader learns of the focus first: a box that is told of before is taken for the one in focus, and
        // its focus for no news.
        Silently([&] { event.type() == QEvent::FocusIn ? control->GotFocus() : control->Validate(); });
    }
    if (auto* button = dynamic_cast<Button*>(control); button != nullptr && event.type() == QEvent::Shortcut) {
        AccessKey(*button, static_cast<QShortcutEvent&>(event));
        return KeyResult::Swallow;
    }
    // A key that a box in a frame leaves alone comes to the frame too, and is none of the frame's.
    return watched == focusWidget() ? HandleKey(*control, event) : KeyResult::Pass;
}

KeyResult Form::FormWindow::HandleKey(Control& control, QEvent& event)
{
    switch (event.type()) {
    case QEvent::ShortcutOverride:
        if (const auto& key = static_cast<QKeyEvent&>(event);
            key.isAutoRepeat() && (ShiftMaskOf(key) & ShiftMask::Alt) != 0) { // an access key held down acts once
            event.accept();
            return KeyResult::Swallow;
        }
        break;
    case QEvent::KeyPress:
        return KeyPressed(control, static_cast<QKeyEvent&>(event));
    case QEvent::InputMethod:
        Commit(control, static_cast<QInputMethodEvent&>(event));
        break;
    default:
        break;
    }
    return KeyResult::Pass;
}

// Qt would show the button pressed for 100 ms first, and all that the pupil is to hear would come late. A key that
// several buttons share leads to the next of them after the focus, round, and presses none.
void Form::FormWindow::AccessKey(Button& button, const QShortcutEvent& event)
{
    if (!event.isAmbiguous()) {
        m_screen.SayWhereItLeads([&button] { button.Press(); });
        return;
    }
    std::vector<Control*> round = m_screen.m_tabStops;
    const auto focus = std::ranges::find(round, m_screen.ActiveControl());
    std::ranges::rotate(round, focus == round.end() ? round.begin() : focus + 1);
    const auto next = std::ranges::find_if(round, [&event](const Control* stop) {
        const auto* other = dynamic_cast<const Button*>(stop);
        return other != nullptr && other->HasAccessKey(event.key()) && other->Widget().isEnabled() &&
               other->IsVisible();
    });
    (*next)->Widget().setFocus(Qt::ShortcutFocusReason);
}

KeyResult Form::FormWindow::KeyPressed(Control& control, const QKeyEvent& event)
{
    const KeyResult result = Offer(control, event);
    const auto* box = dynamic_cast<const TextBox*>(&control);
    const int character = KeyAsciiOf(event);
    const bool types = character >= ' ' || character == KeyAscii::Backspace;
    const bool isInVain = box != nullptr && box->IsLocked() && types && result == KeyResult::Pass;
    if (isInVain && !m_lockedIsSaid) {
        box->SayLocked();
    }
    if (!IsModifier(event)) {
        m_lockedIsSaid = isInVain;
    }
    return result;
}

// Lets the screen and then the control's handlers have the key.
KeyResult Form::FormWindow::Offer(Control& control, const QKeyEvent& event)
{
    const int character = KeyAsciiOf(event);
    const int code = KeyCodeOf(event);
    const int shift = ShiftMaskOf(event);
    KeyResult result = m_screen.Form_KeyDown(code, shift);
    if (const Control* score = m_screen.FirstThat(Speaking::Score);
        code == KeyCode::F4 && shift == 0 && score != nullptr) {
        m_screen.Tell(score->Text());
    } else if (code == KeyCode::F3 && result == KeyResult::Pass) {
        m_screen.TellExercise();
    }
    if (result != KeyResult::Swallow) {
        result = std::max(result, control.KeyDown(code, shift));
    }
    if (result == KeyResult::Swallow) {
        return result;
    }
    if (character == 0) {
        // Where no access key has taken it, a letter with Alt is none that a box may receive.
        const bool withAlt = (shift & ShiftMask::Alt) != 0 && TypesText(event);
        return withAlt ? KeyResult::Swallow : result;
    }
    // A finger that stays on Enter must not check the answer, or skip the exercise, many times.
    if (character == KeyAscii::Enter && event.isAutoRepeat() && control.Design().kind != Kind::TextArea) {
        return KeyResult::Swallow;
    }
    return std::max(result, control.KeyPressed(character));
}

// Each character of a text that an input method commits is a key pressed, and the box gets what its handlers let pass.
void Form::FormWindow::Commit(Control& control, QInputMethodEvent& event)
{
    QString passed;
    for (const QChar character : event.commitString()) {
        if (control.KeyPressed(character.unicode()) != KeyResult::Swallow) {
            passed += character;
        }
    }
    event.setCommitString(passed, event.replacementStart(), event.replacementLength());
}

} // namespace ui
