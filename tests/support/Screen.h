// A screen that is open, the pupil's hands on it, and an ear: what a test of a screen is built on.
#pragma once

#include "Form.h"
#include "Random.h"
#include "Support.h"

#include <QAction>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTime>

#include <memory>

namespace support {

class Screen
{
protected:
    void OpenScreen(ui::Form* form)
    {
        m_ear = std::make_unique<Ear>();
        m_form = form;
        m_form->Open(ui::Modality::Modeless);
        QVERIFY(WaitActive(*m_form));
    }

    void CloseScreen()
    {
        if (m_form) {
            m_form->close();
        }
        Settle();
        QVERIFY(!m_form);
        m_ear.reset();
        ui::FixSeed({});
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    template <class T>
    T& Member(const QString& name, int index) const
    {
        return Child<T>(*m_form, QString("%1(%2)").arg(name).arg(index));
    }
    QLineEdit& Box(const QString& name) const { return Child<QLineEdit>(*m_form, name); }
    QString Text(const QString& name) const { return Box(name).text(); }
    QAction& Entry(const QString& name) const { return Child<QAction>(*m_form, name); }
    QPushButton& Button(const QString& name) const { return Child<QPushButton>(*m_form, name); }
    QString Name(const QString& name) const
    {
        return QAccessible::queryAccessibleInterface(&Child<QWidget>(*m_form, name))->text(QAccessible::Name);
    }

    void Click(const QString& name) const { QTest::mouseClick(&Button(name), Qt::LeftButton); }
    void Choose(const QString& name) const { Entry(name).trigger(); }
    void Continue() const { Button("Command2(0)").click(); }

    // As a window manager does when a dialog has closed.
    void Activate() const
    {
        m_form->activateWindow();
        QVERIFY(WaitActive(*m_form));
    }

    void VerifyButtonColours() const
    {
        const auto face = [this](const QString& name) { return Button(name).grab().toImage().pixelColor(5, 5); };
        QCOMPARE(face("Command1"), QColor(255, 255, 0));
        QCOMPARE(face("Command2(0)"), QColor(0, 255, 255));
        QCOMPARE(face("Command2(1)"), QColor(0, 255, 0));
        QCOMPARE(face("Command2(2)"), QColor(255, 0, 0));
    }

    // Screens that take their seed from the timer open with different exercises.
    template <class Create, class Read>
    void VerifySeedOfTheTimer(Create create, Read read)
    {
        const auto reopened = [&] {
            CloseScreen();
            ui::FixSeed(7);
            ui::Randomize(0); // so that it is not for what was drawn before that they differ
            ui::FixSeed({});
            OpenScreen(create());
            return read();
        };
        const auto first = reopened();
        for (int tries = 0; tries < 20; ++tries) {
            if (reopened() != first) {
                return;
            }
        }
        QFAIL("every opening brings the same exercise");
    }

    // Two screens that take their seed from the time of day draw the same first exercise within one second. The clock
    // is watched until none passes between.
    template <class Create, class Read>
    void VerifySeedOfTheDay(Create create, Read read)
    {
        ui::FixSeed({});
        for (int tries = 0; tries < 20; ++tries) {
            const int before = QTime::currentTime().second();
            CloseScreen();
            OpenScreen(create());
            const auto first = read();
            CloseScreen();
            OpenScreen(create());
            if (QTime::currentTime().second() == before) {
                QCOMPARE(read(), first);
                return;
            }
        }
        QFAIL("no two openings within one second");
    }

    // Walks round with Tab from the control in focus; the names met, each once.
    QStringList TabRound() const
    {
        QStringList names;
        while (!names.contains(Focus())) {
            names += Focus();
            Press(Qt::Key_Tab);
        }
        return names;
    }

    // Whether the control stands where it should, in twips, to the pixel.
    bool StandsAt(const QString& name, double left, double top, double width, double height) const
    {
        const QRect seen = Child<QWidget>(*m_form, name).geometry();
        const auto near = [](int pixels, double twips) { return std::abs(pixels - twips / 15) <= 1; };
        return near(seen.left(), left) && near(seen.top(), top) && near(seen.width(), width) &&
               near(seen.height(), height);
    }

    // Every stop of the tab order, and every button, has a Spanish name of its own.
    void VerifyNames() const
    {
        QStringList names;
        for (QWidget* widget : m_form->findChildren<QWidget*>()) {
            if (widget->focusPolicy() != Qt::NoFocus && widget->isVisible() &&
                !widget->objectName().startsWith("qt_")) {
                const QString name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
                QVERIFY2(!name.isEmpty() && !name.contains('&'), qPrintable(widget->objectName()));
                names += name;
            }
        }
        QVERIFY(names.size() >= 10);
        QCOMPARE(names.removeDuplicates(), 0);
    }

    QPointer<ui::Form> m_form;
    std::unique_ptr<Ear> m_ear;
};

} // namespace support
