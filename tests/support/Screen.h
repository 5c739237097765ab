// A screen that is open, the pupil's hands on it, and an ear: what a test of a screen is built on.
#pragma once

#include "Azar.h"
#include "Clock.h"
#include "Form.h"
#include "Support.h"

#include <QAction>
#include <QActionGroup>
#include <QLineEdit>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QTime>

#include <memory>
#include <vector>

namespace support {

class Screen
{
protected:
    void OpenScreen(std::unique_ptr<ui::Form> form)
    {
        m_ear = std::make_unique<Ear>();
        m_form = &form->Window();
        ui::Form::Open(std::move(form), ui::Modality::Modeless);
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
        numeros::FijarSemilla({});
        numeros::SustituirSorteo({});
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
    // Of a list, the entry chosen is the one that is marked afterwards.
    void Choose(const QString& name) const
    {
        const QAction& entry = Entry(name);
        const QActionGroup* list = entry.actionGroup();
        Entry(name).trigger();
        if (list != nullptr) {
            for (const QAction* other : list->actions()) {
                QCOMPARE(other->isChecked(), other == &entry);
            }
        }
    }
    void Continue() const { Button("Command2(0)").click(); }

    // As a window manager does when a dialog has closed.
    void Activate() const
    {
        m_form->activateWindow();
        QVERIFY(WaitActive(*m_form));
    }

    // Has a seed draw `count` exercises, by the screen and by the rule that is to be its own: `show` tells what is on
    // view, `rule` what should be.
    template <class Rule, class Show>
    void VerifyDraws(int count, Rule rule, Show show) const
    {
        numeros::FijarSemilla(99);
        numeros::Sembrar(0);
        std::vector<std::decay_t<decltype(rule())>> drawn;
        drawn.reserve(count);
        for (int i = 0; i < count; ++i) {
            drawn.push_back(rule());
        }
        numeros::Sembrar(0);
        for (const auto& exercise : drawn) {
            Continue();
            QCOMPARE(show(), exercise);
        }
    }

    // Screens that take their seed from the timer open with different exercises.
    template <class Create, class Read>
    void VerifySeedOfTheTimer(Create create, Read read)
    {
        const auto reopened = [&] {
            CloseScreen();
            numeros::FijarSemilla(7);
            numeros::Sembrar(0); // so that it is not for what was drawn before that they differ
            numeros::FijarSemilla({});
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

    // Screens that take their seed from the time of day open with the exercise of that time: the same at the same time,
    // the one that the seed of the time draws, and another at another time.
    template <class Create, class Read>
    void VerifySeedOfTheDay(Create create, Read read)
    {
        const auto restore = qScopeGuard([] { ui::FixTimeOfDay({}); });
        const auto reopened = [&](std::optional<std::uint32_t> seed) {
            CloseScreen();
            numeros::FijarSemilla(seed);
            OpenScreen(create());
            return read();
        };
        QList<std::decay_t<decltype(read())>> exercises;
        for (const QTime& time :
             {QTime(0, 0, 0), QTime(8, 30, 15), QTime(8, 30, 16), QTime(12, 0, 0), QTime(23, 59, 59)}) {
            ui::FixTimeOfDay(QTime(0, 0).secsTo(time));
            const auto exercise = reopened({});
            QCOMPARE(reopened({}), exercise);
            QCOMPARE(reopened((time.hour() + 1) * (time.minute() + 1) * (time.second() + 1)), exercise);
            QVERIFY(!exercises.contains(exercise));
            exercises += exercise;
        }
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
        const QPoint topLeft = (QPointF(left, top) / 15).toPoint();
        const QPoint end = (QPointF(left + width, top + height) / 15).toPoint();
        return Child<QWidget>(*m_form, name).geometry() == QRect(topLeft, end - QPoint(1, 1));
    }

    QPointer<QMainWindow> m_form;
    std::unique_ptr<Ear> m_ear;
};

} // namespace support
