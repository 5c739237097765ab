#include "FormOrdenar.h"
#include "Lectura.h"
#include "Screen.h"

#include <QPlainTextEdit>

#include <algorithm>

using namespace support;

namespace {

// Four numerators and four denominators, from left to right.
struct Row
{
    std::array<int, 4> numerators{};
    std::array<int, 4> denominators{};

    bool operator==(const Row&) const = default;

    bool Increasing() const
    {
        for (int i = 1; i < 4; ++i) {
            if (numerators[i - 1] * denominators[i] >= numerators[i] * denominators[i - 1]) {
                return false;
            }
        }
        return true;
    }
    // The same fractions, whatever their order.
    Row Sorted() const
    {
        std::array<std::pair<int, int>, 4> pairs;
        for (int i = 0; i < 4; ++i) {
            pairs[i] = {numerators[i], denominators[i]};
        }
        std::ranges::sort(pairs, [](const auto& x, const auto& y) { return x.first * y.second < y.first * x.second; });
        Row sorted;
        for (int i = 0; i < 4; ++i) {
            std::tie(sorted.numerators[i], sorted.denominators[i]) = pairs[i];
        }
        return sorted;
    }
};

Row Of(const reglas::Ordenacion& order)
{
    Row row;
    for (int i = 0; i < 4; ++i) {
        row.numerators[i] = order[i].numerador.Valor();
        row.denominators[i] = order[i].denominador.Valor();
    }
    return row;
}

} // namespace

class tst_FormOrdenar : public QObject, private Screen
{
    Q_OBJECT

private:
    QPushButton& Fraction(int index) const { return Member<QPushButton>("Command1", index); }

    Row Shown() const
    {
        Row row;
        for (int i = 0; i < 4; ++i) {
            const QStringList lines = Fraction(i).text().split("\r\n");
            if (lines.size() == 3 && lines[1] == "-") {
                row.numerators[i] = lines[0].toInt();
                row.denominators[i] = lines[2].toInt();
            }
        }
        return row;
    }

    QStringList Verdict() const
    {
        m_ear->Take();
        Button("CBHecho").click();
        return m_ear->TakeSaid();
    }

    static QString Words(int numerator, int denominator)
    {
        return QString::fromStdString(lenguaje::FraccionEnLetras(numerator, denominator, {}));
    }

    QString RowInWords() const
    {
        const Row row = Shown();
        QStringList words;
        for (int i = 0; i < 4; ++i) {
            words += Words(row.numerators[i], row.denominators[i]);
        }
        return words.join(", ");
    }

private slots:
    void init()
    {
        numeros::FijarSemilla(7);
        OpenScreen(std::make_unique<ejercicios::FormOrdenar>());
    }
    void cleanup() { CloseScreen(); }

    void opens_with_its_texts()
    {
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Text1", "SAY " + RowInWords()}));
        QCOMPARE(Text("TBMensajes"), "");
        QCOMPARE(Text("TbResultados"), "Ejercicios: 0; Errores: 0");
        QVERIFY(!Shown().Increasing());
    }

    void draws_by_its_rule()
    {
        VerifyDraws(
            20, [] { return Of(reglas::Ordenacion::Sortear()); }, [this] { return Shown(); });
    }

    void the_seed_is_the_timer()
    {
        VerifySeedOfTheTimer([] { return std::make_unique<ejercicios::FormOrdenar>(); }, [this] { return Shown(); });
    }

    void continuing_leads_to_the_first_fraction()
    {
        Verdict();
        const QString message = Text("TBMensajes");
        m_ear->Take();
        Press(Qt::Key_C, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command2(0)", "FOCUS Command1(0)", "SAY " + RowInWords()}));
        QCOMPARE(Text("TBMensajes"), message);
        Fraction(2).setFocus();
        m_ear->Take();
        Button("Command2(0)")
            .click(); // as a screen reader's own command does; the new names of the buttons are not told
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command1(0)", "SAY " + RowInWords()}));
    }

    void a_fraction_says_itself_in_words()
    {
        for (int round = 0; round < 50; ++round) {
            const Row row = Shown();
            for (int i = 0; i < 4; ++i) {
                QCOMPARE(Name(QString("Command1(%1)").arg(i)), Words(row.numerators[i], row.denominators[i]));
            }
            Continue();
        }
    }

    void a_press_moves_a_fraction_to_the_left_and_keeps_the_focus()
    {
        for (int index = 1; index < 4; ++index) {
            Row expected = Shown();
            std::swap(expected.numerators[index], expected.numerators[index - 1]);
            std::swap(expected.denominators[index], expected.denominators[index - 1]);
            Fraction(index).setFocus();
            m_ear->Take();
            Press(index == 1 ? Qt::Key_Return : Qt::Key_Space);
            QCOMPARE(Shown(), expected);
            QCOMPARE(Focus(), Fraction(index).objectName());
            const QString moved = Words(expected.numerators[index - 1], expected.denominators[index - 1]);
            QCOMPARE(m_ear->Take(), QStringList(QString("SAY %1, posición %2 de 4").arg(moved).arg(index)));
        }
    }

    void the_leftmost_fraction_stays_and_says_so()
    {
        const Row before = Shown();
        Fraction(0).setFocus();
        m_ear->Take();
        Press(Qt::Key_Space);
        QCOMPARE(Shown(), before);
        QCOMPARE(m_ear->Take(), QStringList({"BEEP", "SAY " + Words(before.numerators[0], before.denominators[0])}));
    }

    void the_verdict_alternates_and_leads_on()
    {
        Box("TBMensajes").setFocus();
        QCOMPARE(Verdict(), QStringList("Resultado incorrecto"));
        QCOMPARE(Focus(), "Command1(0)");
        QCOMPARE(Verdict(), QStringList("Resultado incorrecto "));
        QCOMPARE(Verdict(), QStringList("Resultado incorrecto"));
        Click("Command2(2)");
        QCOMPARE(Verdict(), QStringList(" Resultado correcto"));
        QCOMPARE(Focus(), "Command2(0)");
        QCOMPARE(Verdict(), QStringList(" Resultado correcto "));
        QCOMPARE(Verdict(), QStringList(" Resultado correcto"));
        QCOMPARE(Text("TbResultados"), "Ejercicios: 0; Errores: 0");
    }

    void the_verdict_is_heard_after_the_focus()
    {
        m_ear->Take();
        Press(Qt::Key_H, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS CBHecho", "FOCUS Command1(0)", "SAY Resultado incorrecto"}));
    }

    void every_exercise_can_be_put_in_order_by_moving()
    {
        for (int round = 0; round < 20; ++round) {
            Continue();
            const Row sorted = Shown().Sorted();
            for (int pass = 0; pass < 4; ++pass) {
                for (int i = 1; i < 4; ++i) {
                    const Row row = Shown();
                    if (row.numerators[i] * row.denominators[i - 1] < row.numerators[i - 1] * row.denominators[i]) {
                        Fraction(i).click();
                    }
                }
            }
            QCOMPARE(Shown(), sorted);
            Button("CBHecho").click();
            QVERIFY(Text("TBMensajes").startsWith(" Resultado correcto"));
        }
    }

    void the_solution_puts_them_in_order_and_moves_nothing_else()
    {
        for (int round = 0; round < 20; ++round) {
            Continue();
            const Row sorted = Shown().Sorted();
            Button("Command2(2)").setFocus();
            m_ear->Take();
            Press(Qt::Key_Return);
            QCOMPARE(m_ear->Take(), QStringList("SAY " + RowInWords()));
            QCOMPARE(Shown(), sorted);
            QVERIFY(Shown().Increasing());
            QCOMPARE(Focus(), "Command2(2)");
        }
    }

    void f3_tells_the_row_on_any_control_and_moves_nothing()
    {
        Verdict();
        const QString message = Text("TBMensajes");
        for (const char* name : {"Text1", "Command1(3)", "CBHecho", "Command2(1)", "TBMensajes", "TbResultados"}) {
            Child<QWidget>(*m_form, name).setFocus();
            m_ear->Take();
            Press(Qt::Key_F3);
            QCOMPARE(m_ear->Take(), QStringList("SAY " + RowInWords()));
            QCOMPARE(Focus(), name);
            Press(Qt::Key_F2);
            QCOMPARE(m_ear->Take(), QStringList());
        }
        QCOMPARE(Text("TBMensajes"), message);
    }

    void clearing_tells_the_new_order_and_stays_on_its_button()
    {
        m_ear->Take();
        Press(Qt::Key_B, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command2(1)", "SAY " + RowInWords()}));
        Fraction(1).setFocus();
        m_ear->Take();
        Button("Command2(1)").click(); // the new name of the button in focus is not told beside it
        QCOMPARE(m_ear->Take(), QStringList("SAY " + RowInWords()));
    }

    void clearing_exchanges_what_is_drawn()
    {
        QSet<bool> kinds;
        for (unsigned round = 0; round < 20; ++round) {
            numeros::FijarSemilla(round);
            Continue();
            Row expected = Shown();
            const bool same = expected.denominators[0] == expected.denominators[1];
            kinds.insert(same);
            auto& varying = same ? expected.numerators : expected.denominators;
            numeros::Sembrar(0);
            do {
                const int i = numeros::Sortear(4, 0);
                const int j = numeros::Sortear(4, 0);
                std::swap(varying.at(i), varying.at(j));
            } while (expected.Increasing());
            numeros::Sembrar(0);
            Button("Command2(1)").click();
            QCOMPARE(Shown(), expected);
        }
        QCOMPARE(kinds.size(), 2);
    }

    void clearing_shuffles_until_they_are_out_of_order()
    {
        QSet<QString> orders;
        const Row sorted = Shown().Sorted();
        for (int i = 0; i < 100; ++i) {
            Click("Command2(2)");
            Button("Command2(1)").click();
            QVERIFY(!Shown().Increasing());
            QCOMPARE(Shown().Sorted(), sorted);
            orders.insert(Fraction(0).text() + Fraction(1).text() + Fraction(2).text() + Fraction(3).text());
        }
        QVERIFY(orders.size() > 5);
        QCOMPARE(Focus(), "Command2(2)");
    }
};

KELVORA_TEST_MAIN(tst_FormOrdenar)
#include "tst_FormOrdenar.moc"
