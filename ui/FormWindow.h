// The window of a screen, which the screen belongs to once it is open: its size, and its keys.
#pragma once

#include "Form.h"

#include <QMainWindow>
#include <QTimer>

class QShortcutEvent;

namespace ui {

// Brings a window to the front, and back if it was minimised.
void BringForward(QWidget& window);

class Form::FormWindow final : public QMainWindow
{
public:
    explicit FormWindow(Form& screen);

    // Takes the screen over and shows it.
    void Open(std::shared_ptr<Form> screen, Modality modality, const Form* opener);

    // Shows the controls' key presses, focus changes and the like to the screen before the controls get them.
    void Watch(Control& control);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    double TextScale() const;
    QSize OpeningSize() const;
    void BelongTo(const Form* opener);
    void TakeOpeningSize();
    QWidget* Blocking() const;
    void LeadTo(QWidget& blocking);
    void OpenBlockingAgain();
    void Arrange();

    KeyResult Handle(QObject* watched, QEvent& event);
    KeyResult HandleKey(Control& control, QEvent& event);
    void AccessKey(Button& button, const QShortcutEvent& event);
    KeyResult KeyPressed(Control& control, const QKeyEvent& event);
    KeyResult Offer(Control& control, const QKeyEvent& event);
    static void Commit(Control& control, QInputMethodEvent& event);

    Form& m_screen;
    std::shared_ptr<Form> m_owned;
    QTimer m_patience;           // with the desktop, which is to bring forward what this window waits for
    bool m_lockedIsSaid = false; // of the box in focus, since the pupil began to type into it
};

} // namespace ui
