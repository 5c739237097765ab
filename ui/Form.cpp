#include "Form.h"

#include "Fatal.h"
#include "Silence.h"
#include "Strings.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>

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

} // namespace

Form::Form(const FormDesign& design) : m_design(design)
{
    setObjectName(ToQString(design.name));
    setWindowTitle(ToQString(design.caption));
    setAttribute(Qt::WA_DeleteOnClose);
    setCentralWidget(new QWidget);
    centralWidget()->setMinimumSize(1, 1);
    BuildControls();
    ChainTabOrder();
    menuBar()->setNativeMenuBar(false);
    m_menuItems = BuildMenus(*menuBar(), design.menus);
    centralWidget()->installEventFilter(this);
}

Form::~Form() = default;

void Form::Open(Modality modality)
{
    setWindowModality(modality == Modality::Modal ? Qt::ApplicationModal : Qt::NonModal);
    Form_Load();
    const auto first = std::ranges::find_if(m_tabStops, [](const QWidget* stop) { return stop->isEnabled(); });
    if (focusWidget() == nullptr && first != m_tabStops.end()) {
        (*first)->setFocus();
    }
    constexpr int frame = 4; // pixels at the sides and below; what the desktop really adds is known too late
    const double textScale = std::max(1.0, logicalDpiX() / 96.0); // what the desktop's texts are enlarged by
    const QSize wanted = ToPixels({0, 0, m_design.width, m_design.height}, textScale).size();
    centralWidget()->setFixedSize(wanted); // so that the window becomes this size and its menu bar
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

bool Form::event(QEvent* event)
{
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
    // A key that a box in a frame leaves alone comes to the frame too, and is none of the frame's.
    Control* control = watched == focusWidget() ? ControlOf(watched) : nullptr;
    if (Control* other = ControlOf(watched); other != nullptr && IsFocusMove(event)) {
        // The reader learns of the focus first: a box that is told of before is taken for the one in focus, and its
        // focus for no news.
        Silently([&] { event.type() == QEvent::FocusIn ? other->GotFocus() : other->Validate(); });
    }
    if (control != nullptr && event.type() == QEvent::KeyPress) {
        return KeyPressed(*control, static_cast<QKeyEvent&>(event));
    }
    if (control != nullptr && event.type() == QEvent::InputMethod) {
        Commit(*control, static_cast<QInputMethodEvent&>(event));
    }
    return KeyResult::Pass;
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

void Form::Arrange()
{
    const QSize size = centralWidget()->size();
    const double scale = twipsPerPixel * std::min(static_cast<double>(size.width()) / m_design.width,
                                                  static_cast<double>(size.height()) / m_design.height);
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
    const int character = KeyAsciiOf(event);
    const int code = KeyCodeOf(event);
    const int shift = ShiftMaskOf(event);
    if (Form_KeyDown(code, shift) == KeyResult::Swallow || control.KeyDown(code, shift) == KeyResult::Swallow) {
        return KeyResult::Swallow;
    }
    if (character == 0) {
        // Where no access key has taken it, a letter with Alt is none that a box may receive.
        const bool withAlt = (shift & ShiftMask::Alt) != 0 && TypesText(event);
        return withAlt ? KeyResult::Swallow : KeyResult::Pass;
    }
    // A finger that stays on Enter must not check the answer, or skip the exercise, many times.
    if (character == KeyAscii::Enter && event.isAutoRepeat() && control.Design().kind != Kind::MultiLine) {
        return KeyResult::Swallow;
    }
    return control.KeyPressed(character);
}

// Each character of a text that an input method commits is a key pressed, and the box gets what its handlers let pass.
void Form::Commit(Control& control, QInputMethodEvent& event)
{
    QString passed;
    for (const QChar character : event.commitString()) {
        if (control.KeyPressed(character.unicode()) == KeyResult::Pass) {
            passed += character;
        }
    }
    event.setCommitString(passed, event.replacementStart(), event.replacementLength());
}

Control* Form::ControlOf(const QObject* widget) const
{
    const auto found = std::ranges::find_if(
        m_controls, [widget](const std::unique_ptr<Control>& control) { return &control->Widget() == widget; });
    return found == m_controls.end() ? nullptr : found->get();
}

} // namespace ui
