#include "Button.h"

#include "Accessible.h"
#include "Announcer.h"
#include "Bell.h"
#include "EditWidget.h"
#include "Fatal.h"
#include "Strings.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>

namespace ui {

namespace {

constexpr QRgb disabledType = qRgb(64, 64, 64);
constexpr int smallestType = 9; // pixels
constexpr int edgeWidth = 1;
constexpr int focusWidth = 3;
constexpr int captionMargin = focusWidth + 2;

// Runs `action`, which presses a button. Where that leaves the focus in the box where it was, perhaps by way of the
// button, a reader tells nothing, and the pupil would not know whether the key has done anything. Coming back from
// another window is told.
template <class Action>
void SayWhereItLeads(Action action)
{
    const QPointer<QWidget> before = QApplication::focusWidget();
    bool wasElsewhere = false;
    const auto look = QObject::connect(qApp, &QApplication::focusChanged, qApp, [&](QWidget*, const QWidget* now) {
        wasElsewhere = wasElsewhere || now == nullptr || !before || now->window() != before->window();
    });
    action();
    QObject::disconnect(look);
    const auto* box = dynamic_cast<const EditWidget*>(QApplication::focusWidget());
    if (box != nullptr && before == QApplication::focusWidget() && !wasElsewhere &&
        Announcer::Instance().IsSilent(*before->window())) {
        Announcer::Instance().Say(*before, (before->accessibleName() + ' ' + box->CaretLine()).simplified());
    }
}

} // namespace

FaceButton::FaceButton(const QColor& face, QWidget* parent) : QPushButton(parent), m_face(face)
{
}

void FaceButton::SetFace(const QColor& face)
{
    m_face = face;
    update();
}

void FaceButton::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        return;
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Right:
    case Qt::Key_Down:
        if (event->modifiers().testFlag(Qt::ControlModifier)) {
            return; // the screens' own keys; Qt would step to the next button
        }
        break;
    default:
        break;
    }
    QPushButton::keyPressEvent(event);
}

void FaceButton::paintEvent(QPaintEvent*)
{
    const QRect area = mask().isEmpty() ? rect() : mask().boundingRect();
    QPainter painter(this);
    painter.fillRect(area, m_face);
    const int width = hasFocus() ? focusWidth : edgeWidth;
    painter.setPen(QPen(Qt::black, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(area.adjusted(width / 2, width / 2, -(width + 1) / 2, -(width + 1) / 2));

    const int flags = Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextWordWrap;
    const QRect captionArea = area.adjusted(captionMargin, 1, -captionMargin, -1);
    painter.setFont(Fitting(font(), text(), captionArea.size(), flags, smallestType));
    painter.setPen(isEnabled() ? QColor(Qt::black) : QColor(disabledType));
    painter.drawText(isDown() ? captionArea.translated(1, 1) : captionArea, flags, text());
}

Button::Button(const ControlDesign& design, QWidget* parent)
    : Button(design, new FaceButton(ToQColor(design.color.value_or(Color::Green)), parent))
{
}

Button::Button(const ControlDesign& design, FaceButton* button)
    : Control(design, *button), m_button(*button), m_says(ToQString(design.says))
{
    Caption(design.text);
    QObject::connect(button, &QPushButton::clicked, button, [this] {
        if (OnClick) {
            SayWhereItLeads([this] { Run([this] { OnClick(Index()); }); });
        }
    });
}

void Button::Caption(std::string_view caption)
{
    if (const QString text = ToQString(caption); text != m_button.text()) {
        m_button.setText(text);
        NameChanged();
    }
}

void Button::Says(std::string_view name)
{
    if (const QString says = ToQString(name); says != m_says) {
        m_says = says;
        NameChanged();
    }
}

void Button::Press()
{
    SayWhereItLeads([this] {
        m_button.setFocus(Qt::ShortcutFocusReason);
        m_button.click();
    });
}

void Button::Refuse() const
{
    Beep();
    Announcer::Instance().Say(m_button, m_name);
}

void Button::SayWith(std::string_view more) const
{
    const bool isRead = newNamesAreRead && m_button.hasFocus();
    Announcer::Instance().Say(m_button, (isRead ? QString() : m_name + "; ") + ToQString(more));
}

void Button::NameChanged()
{
    QString name = m_says;
    if (name.isEmpty()) {
        name = m_button.text().remove('&').remove('\r').replace('\n', ' ');
    }
    if (name == m_name) {
        return;
    }
    m_name = name;
    // Qt makes the name of a caption of one line itself, and tells of it once.
    const bool byQt = m_says.isEmpty() && !m_button.text().contains('\n');
    m_button.setAccessibleName(byQt ? QString() : name);
    if (!newNamesAreRead && m_button.hasFocus()) {
        Announcer::Instance().Say(m_button, name);
    }
}

} // namespace ui
