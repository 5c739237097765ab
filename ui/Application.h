// The application: its Spanish surroundings and its event dispatch, which is where announcements go out.
#pragma once

#include "Announcer.h"
#include "KeyOrder.h"

#include <QApplication>
#include <QTranslator>

namespace ui {

class Application final : public QApplication
{
    Q_OBJECT

public:
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

protected:
    bool event(QEvent* event) override;

private:
    void MakeSelectionLegible();

    KeyOrder m_keys;
    int m_depth = 0;
    Announcer m_announcer;
    QTranslator m_translator;
};

// Closes every window and ends the program, at once and without a question.
void End();

} // namespace ui
