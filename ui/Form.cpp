#include "Form.h"

#include "Announcer.h"
#include "Fatal.h"
#include "Silence.h"
#include "Strings.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>
#include <QWindow>

#include <algorithm>

namespace ui {

namespace {

std::unique_ptr<Control> Create(const ControlDesign& design, QWidget* parent)
{
    switch (design.kind) {
    case Kind::OneLine:
    case Kind::MultiLine:
        return std::make_unique<TextBox>(design, parent);
    case Kind::Button:
        return std::make_unique<Button>(design, parent);
    case Kind::Label:
        return std::make_unique<Label>(design, parent);
    case Kind::Frame:
        return std::make_unique<Frame>(design, parent);
    case Kind::Picture:
        return std::make_unique<Picture>(design, parent);
    case Kind::Line:
        return std::make_unique<Line>(design, parent);
    }
    return nullptr;
}

// Whether the focus comes or goes inside the window, and not with the window or for a menu.
bool IsFocusMove(const QEvent& event)
{
    if (event.type() != QEvent::FocusIn && event.type() != QEvent::FocusOut) {
        return false;
    }
    const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason;
}

QPointer<Form> front;

} // namespace

Form::Form(const FormDesign& design) : m_design(design)
{
    setObjectName(ToQString(design.name));
    setWindowTitle(ToQString(design.caption));
    setAccessibleDescription(ToQString(design.keys));
    setAttribute(Qt::WA_DeleteOnClose);
    setCentralWidget(new QWidget);
    centralWidget()->setMinimumSize(1, 1);
    BuildControls();
    ChainTabOrder();
    if (!design.menus.empty()) { // or there would be a bar of no use, to which Alt leads
        menuBar()->setNativeMenuBar(false);
        m_menuItems = BuildMenus(*menuBar(), design.menus);
    }
    centralWidget()->installEventFilter(this);
}

Form::~Form() = default;

void Form::Open(Modality modality)
{
    if (modality == Modality::Modal) {
        // To the desktop it is one window with that which it blocks: nothing leads to the one, or takes away the other,
        // without it.
        setWindowModality(Qt::ApplicationModal);
        setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                       Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint);
        winId(); // which makes its handle
        windowHandle()->setTransientParent(front ? front->windowHandle() : nullptr);
    }
    Form_Load();
    TellExercise();
    const auto first = std::ranges::find_if(m_tabStops, [](const QWidget* stop) { return stop->isEnabled(); });
    if (focusWidget() == nullptr && first != m_tabStops.end()) {
        (*first)->setFocus();
    }
    constexpr int frame = 4; // pixels at the sides and below; what the desktop really adds is known too late
    centralWidget()->setFixedSize(OpeningSize()); // so that the window becomes this size and its menu bar
    adjustSize();
    centralWidget()->setMinimumSize(1, 1);
    centralWidget()->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    layout()->activate(); // or the window could not be smaller yet
    resize(size().boundedTo(screen()->availableSize() -
                            QSize(2 * frame, style()->pixelMetric(QStyle::PM_TitleBarHeight) + frame)));
    show();
}

void Form::BringForward()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

Form* Form::Front()
{
    return front;
}

KeyResult Form::Form_KeyDown(int, int)
{
    return KeyResult::Pass;
}

int Form::InnerWidth() const
{
    return centralWidget()->width() * twipsPerPixel;
}

int Form::InnerHeight() const
{
    return centralWidget()->height() * twipsPerPixel;
}

const Control* Form::ActiveControl() const
{
    return ControlOf(focusWidget());
}

void Form::Tell(std::string_view text)
{
    // As coming from a box: of a plain widget Orca 48 drops the second of two quick messages.
    const Control* box = FirstThat(Speaking::Spoken);
    Announcer::Instance().SayAlone(box == nullptr ? *this : box->Widget(), ToQString(text));
}

void Form::TellExercise()
{
    if (const std::string exercise = Exercise(); !exercise.empty()) {
        Tell(exercise);
    }
}

bool Form::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate) {
        QWidget* modal = QApplication::activeModalWidget();
        if (modal == nullptr || modal == this) {
            front = this;
        } else if (auto* screen = qobject_cast<Form*>(modal)) { // this one is dead
            screen->BringForward();
        }
    }
    if (event->type() == QEvent::Close) { // while a menu is open, Qt does not see which window becomes active next
        while (QWidget* menu = QApplication::activePopupWidget()) {
            menu->close();
        }
    }
    const bool handled = QMainWindow::event(event);
    if (event->type() == QEvent::ApplicationPaletteChange) { // only windows are told
        for (const std::unique_ptr<Control>& control : m_controls) {
            control->TakeColors();
        }
    }
    return handled;
}

bool Form::eventFilter(QObject* watched, QEvent* event)
{
    KeyResult result = KeyResult::Swallow;
    Run([&] { result = Handle(watched, *event); });
    return result == KeyResult::Swallow || QMainWindow::eventFilter(watched, event);
}

KeyResult Form::Handle(QObject* watched, QEvent& event)
{
    if (watched == centralWidget() && event.type() == QEvent::Resize) {
        Arrange();
    }
    Control* control = ControlOf(watched);
    if (control == nullptr) {
        return KeyResult::Pass;
    }
    if (IsFocusMove(event)) {
        m_lockedIsSaid = false;
        // The reader learns of the focus first: a box that is told of before is taken for the one in focus, and its
        // focus for no news.
        Silently([&] { event.type() == QEvent::FocusIn ? control->GotFocus() : control->Validate(); });
    }
    if (auto* button = dynamic_cast<Button*>(control); button != nullptr && event.type() == QEvent::Shortcut) {
        AccessKey(*button, static_cast<QShortcutEvent&>(event));
        return KeyResult::Swallow;
    }
    // A key that a box in a frame leaves alone comes to the frame too, and is none of the frame's.
    return watched == focusWidget() ? HandleKey(*control, event) : KeyResult::Pass;
}

KeyResult Form::HandleKey(Control& control, QEvent& event)
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
void Form::AccessKey(Button& button, const QShortcutEvent& event)
{
    if (!event.isAmbiguous()) {
        button.Press();
        return;
    }
    std::vector<QWidget*> round = m_tabStops;
    const auto focus = std::ranges::find(round, focusWidget());
    std::ranges::rotate(round, focus == round.end() ? round.begin() : focus + 1);
    const auto next = std::ranges::find_if(round, [this, &event](const QWidget* stop) {
        const auto* other = dynamic_cast<const Button*>(ControlOf(stop));
        return other != nullptr && other->HasAccessKey(event.key()) && stop->isEnabled() && stop->isVisible();
    });
    (*next)->setFocus(Qt::ShortcutFocusReason);
}

void Form::BuildControls()
{
    for (const ControlDesign& design : m_design.controls) {
        QWidget* parent = centralWidget();
        if (!design.inside.empty()) {
            parent = parent->findChild<QWidget*>(ToQString(design.inside));
        }
        m_controls.push_back(Create(design, parent));
        m_controls.back()->Widget().installEventFilter(this);
    }
}

void Form::ChainTabOrder()
{
    std::vector<const Control*> ordered;
    for (const std::unique_ptr<Control>& control : m_controls) {
        if (control->Design().tab != noTab) {
            ordered.push_back(control.get());
        }
    }
    std::ranges::sort(ordered, {}, [](const Control* control) { return control->Design().tab; });
    QLabel* label = nullptr;
    for (const Control* control : ordered) {
        if (label != nullptr) {
            label->setBuddy(&control->Widget());
        }
        label = qobject_cast<QLabel*>(&control->Widget());
        if (label == nullptr) {
            m_tabStops.push_back(&control->Widget());
        }
    }
    for (std::size_t i = 1; i < m_tabStops.size(); ++i) {
        setTabOrder(m_tabStops[i - 1], m_tabStops[i]);
    }
}

// What the desktop's texts are enlarged by.
double Form::TextScale() const
{
    return std::max(1.0, logicalDpiX() / 96.0);
}

QSize Form::OpeningSize() const
{
    return ToPixels({0, 0, m_design.width, m_design.height}, TextScale()).size();
}

void Form::Arrange()
{
    const QSize size = centralWidget()->size();
    const QSize opening = OpeningSize(); // in whole pixels, so that at this size the scale is exact
    const double scale = TextScale() * std::min(static_cast<double>(size.width()) / opening.width(),
                                                static_cast<double>(size.height()) / opening.height());
    if (m_design.resizing == Resizing::Own) {
        for (const std::unique_ptr<Control>& control : m_controls) {
            control->ScaleType(scale);
        }
        Form_Resize();
        return;
    }
    const QSize drawn = ToPixels({0, 0, m_design.width, m_design.height}, scale).size();
    const QPoint centred((size.width() - drawn.width()) / 2, (size.height() - drawn.height()) / 2);
    for (const std::unique_ptr<Control>& control : m_controls) {
        control->Scale(scale, control->Design().inside.empty() ? centred : QPoint());
    }
}

KeyResult Form::KeyPressed(Control& control, const QKeyEvent& event)
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
KeyResult Form::Offer(Control& control, const QKeyEvent& event)
{
    const int character = KeyAsciiOf(event);
    const int code = KeyCodeOf(event);
    const int shift = ShiftMaskOf(event);
    KeyResult result = Form_KeyDown(code, shift);
    if (const Control* score = FirstThat(Speaking::Score); code == KeyCode::F4 && shift == 0 && score != nullptr) {
        Tell(score->Text());
    } else if (code == KeyCode::F3 && result == KeyResult::Pass) {
        TellExercise();
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
    if (character == KeyAscii::Enter && event.isAutoRepeat() && control.Design().kind != Kind::MultiLine) {
        return KeyResult::Swallow;
    }
    return std::max(result, control.KeyPressed(character));
}

// Each character of a text that an input method commits is a key pressed, and the box gets what its handlers let pass.
void Form::Commit(Control& control, QInputMethodEvent& event)
{
    QString passed;
    for (const QChar character : event.commitString()) {
        if (control.KeyPressed(character.unicode()) != KeyResult::Swallow) {
            passed += character;
        }
    }
    event.setCommitString(passed, event.replacementStart(), event.replacementLength());
}

Control* Form::FirstThat(Speaking speaking) const
{
    const auto found = std::ranges::find_if(m_controls, [speaking](const std::unique_ptr<Control>& control) {
        return control->Design().speaking == speaking;
    });
    return found == m_controls.end() ? nullptr : found->get();
}

Control* Form::ControlOf(const QObject* widget) const
{
    const auto found = std::ranges::find_if(
        m_controls, [widget](const std::unique_ptr<Control>& control) { return &control->Widget() == widget; });
    return found == m_controls.end() ? nullptr : found->get();
}

} // namespace ui
