// What the tests of the operation screens share: exercises, answers and draws.
#pragma once

#include "Screen.h"

#include <array>
#include <vector>

// First numerator and denominator, second numerator and denominator.
using Operands = std::array<int, 4>;

constexpr std::array limits{10, 20, 100};
constexpr int manyExercises = 10'000;

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

    static void Collect(const Operands& values, std::array<QSet<int>, 4>& seen)
    {
        for (int i = 0; i < 4; ++i) {
            seen.at(i).insert(values.at(i));
        }
    }

    static QSet<int> From(int first, int last)
    {
        QSet<int> values;
        for (int value = first; value <= last; ++value) {
            values.insert(value);
        }
        return values;
    }

    // Numerator and denominator of "n/d".
    static std::pair<qint64, qint64> Parts(const QString& fraction)
    {
        return {fraction.section('/', 0, 0).toLongLong(), fraction.section('/', 1).toLongLong()};
    }

    // Every value from 2 to the limit comes up in each of the four boxes.
    static void VerifyAllSeen(const std::array<QSet<int>, 4>& seen, int range)
    {
        for (const QSet<int>& values : seen) {
            QCOMPARE(values, From(2, limits.at(range)));
        }
    }

    // The boxes hold what was drawn, without any further rule.
    void VerifyFreeDraws(int range) const
    {
        std::array<QSet<int>, 4> seen;
        int sameDenominators = 0;
        DrawExercises(range, [&](const Operands& drawn, const Operands& shown) {
            QCOMPARE(shown, drawn);
            Collect(shown, seen);
            sameDenominators += shown[1] == shown[3] ? 1 : 0;
        });
        VerifyAllSeen(seen, range);
        QVERIFY(sameDenominators > 50);
    }

    // Four values drawn for different denominators: a clash is resolved downwards.
    static Operands WithoutClash(Operands values)
    {
        if (values[1] == values[3]) {
            values[3] = values[3] == 2 ? 3 : values[3] - 1;
        }
        return values;
    }

    // Chooses range 0, 1 or 2 and has many exercises made. Of each, `verify` gets the four values drawn with the same
    // seed, in their order, and the four shown.
    template <class Verify>
    void DrawExercises(int range, Verify verify) const
    {
        Choose(QString("MnuOpcCanLis(%1)").arg(range));
        numeros::FijarSemilla(99);
        numeros::Sembrar(0);
        std::vector<Operands> drawn(manyExercises);
        for (Operands& values : drawn) {
            for (int& value : values) {
                value = numeros::Sortear(limits.at(range) - 1, 2);
            }
        }
        numeros::Sembrar(0);
        for (const Operands& values : drawn) {
            Continue();
            verify(values, Shown());
            if (QTest::currentTestFailed()) {
                return;
            }
        }
    }
};
