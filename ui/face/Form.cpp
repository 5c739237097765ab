#include "Form.h"

#include "Announcer.h"
#include "FormWindow.h"
#include "Handlers.h"
#include "Strings.h"
#include "Timing.h"

#include <QMenuBar>
#include <QPointer>

#include <algorithm>
#include <cstdlib>

namespace ui {

namespace {

std::unique_ptr<Control> Create(const ControlDesign& design, QWidget* parent)
{
    switch (design.kind) {
    case Kind::TextBox:
        return std::make_unique<TextBox>(design, parent);
    case Kind::TextArea:
        return std::make_unique<TextArea>(design, parent);
    case Kind::Button:
        return std::make_unique<Button>(design, parent);
    case Kind::Label:
        return std::make_unique<Label>(design, parent);
    case Kind::Frame:
        return std::make_unique<Frame>(design, parent);
    case Kind::Picture:
        return std::make_unique<Picture>(design, parent);
    case Kind::Line:
        break;
    }
    return std::make_unique<Line>(design, parent);
}

} // namespace

Form::Form(const FormDesign& design)
    : m_design(design), m_unopened(std::make_unique<FormWindow>(*this)), m_window(*m_unopened)
{
    m_window.setObjectName(ToQString(design.name));
    m_window.setWindowTitle(ToQString(design.caption));
    m_window.setAccessibleDescription(ToQString(design.keys));
    BuildControls();
    ChainTabOrder();
    if (!design.menus.IsEmpty()) { // or there would be a bar of no use, to which Alt leads
        m_window.menuBar()->setNativeMenuBar(false);
        m_menuItems = BuildMenus(*m_window.menuBar(), design.menus.Entries());
    }
}

Form::~Form() = default;

std::weak_ptr<Form> Form::Open(std::unique_ptr<Form> screen, Modality modality, const Form* opener)
{
    const std::shared_ptr<Form> opened = std::move(screen);
    opened->m_unopened.release()->Open(opened, modality, opener); // destroys itself, and the screen, when it is closed
    return opened;
}

void Form::BringForward()
{
    ui::BringForward(m_window);
}

void Form::Close()
{
    m_window.close();
}

QMainWindow& Form::Window() const
{
    return m_window;
}

KeyResult Form::Form_KeyDown(int, int)
{
    return KeyResult::Pass;
}

int Form::InnerWidth() const
{
    return m_window.centralWidget()->width() * twipsPerPixel;
}

int Form::InnerHeight() const
{
    return m_window.centralWidget()->height() * twipsPerPixel;
}

const Control* Form::ActiveControl() const
{
    return ControlOf(m_window.focusWidget());
}

void Form::Tell(std::string_view text)
{
    // As coming from a box: of a plain widget Orca 48 drops the second of two quick messages.
    const Control* box = FirstThat(Speaking::Spoken);
    Announcer::Instance().SayAlone(box == nullptr ? m_window : box->Widget(), ToQString(text));
}

void Form::TellExercise()
{
    if (const std::string exercise = Exercise(); !exercise.empty()) {
        Tell(exercise);
    }
}

void Form::SayWhereItLeads(const std::function<void()>& action) const
{
    const FocusTrace trace;
    const QPointer<QMainWindow> window(&m_window);
    action();
    if (!window) {
        return; // it has closed the screen
    }
    if (const auto* box = dynamic_cast<const TextBox*>(ControlOf(trace.Unheard()))) {
        box->SayWhereItIs();
    }
}

bool Form::IsMenuItem(std::string_view name) const
{
    return std::ranges::any_of(m_menuItems,
                               [name](const std::unique_ptr<MenuItem>& item) { return item->Name() == name; });
}

void Form::EndOnName(std::string_view name) const
{
    qCritical("%s has no such control as %s", qPrintable(ToQString(m_design.name)), qPrintable(ToQString(name)));
    std::_Exit(EXIT_FAILURE); // the mistake is the screen's author's, who sees it before anybody else does
}

void Form::BuildControls()
{
    for (const ControlDesign& design : m_design.controls) {
        QWidget* parent = m_window.centralWidget();
        if (!design.inside.empty()) {
            parent = parent->findChild<QWidget*>(ToQString(design.inside));
        }
        m_controls.push_back(Create(design, parent));
        m_window.Watch(*m_controls.back());
        if (auto* button = dynamic_cast<Button*>(m_controls.back().get())) {
            button->around = [this](const std::function<void()>& handler) {
                SayWhereItLeads([&handler] { Run(handler); });
            };
        }
    }
}

void Form::ChainTabOrder()
{
    std::vector<Control*> ordered;
    for (const std::unique_ptr<Control>& control : m_controls) {
        if (control->Design().tab != noTab) {
            ordered.push_back(control.get());
        }
    }
    std::ranges::sort(ordered, {}, [](const Control* control) { return control->Design().tab; });
    Label* before = nullptr;
    for (Control* control : ordered) {
        if (before != nullptr) {
            before->LeadTo(*control);
        }
        before = dynamic_cast<Label*>(control);
        if (before == nullptr) {
            m_tabStops.push_back(control);
        }
    }
    for (std::size_t i = 1; i < m_tabStops.size(); ++i) {
        QWidget::setTabOrder(&m_tabStops[i - 1]->Widget(), &m_tabStops[i]->Widget());
    }
}

Control* Form::FirstThat(Speaking speaking) const
{
    const auto found = std::ranges::find_if(m_controls, [speaking](const std::unique_ptr<Control>& control) {
        return control->Design().speaking == speaking;
    });
    return found == m_controls.end() ? nullptr : found->get();
}

Control* Form::ControlOf(const QWidget* widget) const
{
    const auto found = std::ranges::find_if(
        m_controls, [widget](const std::unique_ptr<Control>& control) { return &control->Widget() == widget; });
    return found == m_controls.end() ? nullptr : found->get();
}

} // namespace ui
