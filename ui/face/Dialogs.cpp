#include "Dialogs.h"

#include "Announcer.h"
#include "Form.h"
#include "Strings.h"
#include "Timing.h"

#include <QApplication>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>

namespace ui {

namespace {

QString TitleOr(std::string_view title)
{
    return title.empty() ? QApplication::applicationName() : ToQString(title);
}

// A finger that stays on the Enter that opened a box must not answer it too, unread.
class HeldEnter final : public QObject
{
public:
    explicit HeldEnter(const QDialog& box)
    {
        for (QWidget* widget : box.findChildren<QWidget*>()) {
            widget->installEventFilter(this);
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress) {
            const auto* key = static_cast<QKeyEvent*>(event);
            return key->isAutoRepeat() && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter);
        }
        return QObject::eventFilter(watched, event);
    }
};

// Captions of our own, since Qt's Spanish ones come from a file that may be missing.
QMessageBox::StandardButton Show(QMessageBox::Icon icon, std::string_view title, std::string_view text,
                                 QMessageBox::StandardButtons buttons)
{
    QWidget* screen = Form::FrontWindow();
    const QString said = screen == nullptr ? QString() : Announcer::Instance().Take(*screen).text;
    QMessageBox box(icon, TitleOr(title), ToQString(text), buttons, screen);
    box.setTextFormat(Qt::PlainText);
    if (QAbstractButton* ok = box.button(QMessageBox::Ok)) {
        ok->setText("Aceptar");
    }
    if (QAbstractButton* yes = box.button(QMessageBox::Yes)) {
        yes->setText("&Sí");
        box.button(QMessageBox::No)->setText("&No");
        box.setDefaultButton(QMessageBox::Yes); // some desktops have "No" first, and the focus would be there
        box.setEscapeButton(QMessageBox::No);
    }
    if (screen != nullptr && !said.isEmpty()) { // what the screen has just said is heard before the box's text
        SayBeforeBox(box, *screen, said);
    }
    const HeldEnter ignored(box);
    return static_cast<QMessageBox::StandardButton>(OpenBox(box));
}

} // namespace

void MsgBox(std::string_view text, std::string_view title)
{
    Show(QMessageBox::NoIcon, title, text, QMessageBox::Ok);
}

Answer MsgBoxYesNo(std::string_view question, std::string_view title)
{
    const auto buttons = QMessageBox::Yes | QMessageBox::No;
    return Show(QMessageBox::Warning, title, question, buttons) == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

void FatalBox(std::string_view text)
{
    Show(QMessageBox::Critical, {}, text, QMessageBox::Ok);
}

std::string InputBox(std::string_view prompt, std::string_view title, std::string_view initial)
{
    QInputDialog box(Form::FrontWindow());
    box.setWindowTitle(TitleOr(title));
    box.setLabelText(ToQString(prompt));
    Silently([&] { box.setTextValue(ToQString(initial)); }); // it is read when the box opens
    box.setOkButtonText("Aceptar");
    box.setCancelButtonText("Cancelar");
    const HeldEnter ignored(box);
    return OpenBox(box) == QDialog::Accepted ? box.textValue().toStdString() : std::string();
}

} // namespace ui
