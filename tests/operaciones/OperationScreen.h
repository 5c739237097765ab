// What the tests of the operation screens share: exercises, answers and draws.
#pragma once

#include "Draws.h"
#include "Operaciones.h"
#include "Screen.h"

#include <array>

// First numerator and denominator, second numerator and denominator.
using Operands = std::array<int, 4>;

constexpr std::array limits{10, 20, 100};

class OperationScreen : protected support::Screen
{
protected:
    QLineEdit& Text1(int index) const { return Member<QLineEdit>("Text1", index); }

    // A box that does not hold a plain number shows as -1, which no screen draws.
    Operands Shown() const
    {
        Operands values{-1, -1, -1, -1};
        for (int i = 0; i < 4; ++i) {
            const QString text = Text1(i).text();
            if (const int value = text.toInt(); QString::number(value) == text) {
                values.at(i) = value;
            }
        }
        return values;
    }

    void SetOperands(const Operands& values) const
    {
        for (int i = 0; i < 4; ++i) {
            Text1(i).setText(QString::number(values.at(i)));
        }
    }

    // The answer as it stands, "numerator/denominator".
    QString Result() const { return Text("Text1(4)") + "/" + Text("Text1(5)"); }

    // The solution that the screen shows of these operands.
    QString Solution(const Operands& operands) const
    {
        SetOperands(operands);
        Button("Command2(2)").click();
        return Result();
    }

    // Types a result and leaves the focus in its denominator.
    void Answer(const QString& numerator, const QString& denominator) const
    {
        Text1(4).setFocus();
        Text1(4).clear();
        support::Type(numerator);
        Text1(5).setFocus();
        Text1(5).clear();
        support::Type(denominator);
    }

    // Answers and presses Enter; the verdict that is heard.
    QStringList Verdict(const QString& numerator, const QString& denominator) const
    {
        Answer(numerator, denominator);
        m_ear->Take();
        support::Press(Qt::Key_Return);
        return m_ear->TakeSaid();
    }

    static void AddRanges()
    {
        QTest::addColumn<int>("range");
        for (int range = 0; range < 3; ++range) {
            QTest::addRow("to %d", limits.at(range)) << range;
        }
    }

    // The exercises of range 0, 1 or 2 are those that `rule` draws up to its limit.
    template <class Rule>
    void VerifyExercises(int range, Rule rule) const
    {
        Choose(QString("MnuOpcCanLis(%1)").arg(range));
        const auto drawn = [rule, range] {
            const auto [first, second] = rule(limits.at(range));
            return Operands{first.numerador.Valor(), first.denominador.Valor(), second.numerador.Valor(),
                            second.denominador.Valor()};
        };
        VerifyDraws(20, drawn, [this] { return Shown(); });
        DrawGreatest();
        Continue();
        QCOMPARE(Shown()[1], limits.at(range));
    }
};
