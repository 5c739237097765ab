#include "Draws.h"
#include "FormConversion.h"
#include "Screen.h"

#include <QGroupBox>
#include <QPlainTextEdit>

using namespace support;

namespace {

} // namespace

class tst_FormConversion : public QObject, private Screen
{
    Q_OBJECT

private:
    QLineEdit& Given(int index) const { return Member<QLineEdit>("TBIni", index); }
    QLineEdit& Working(int index) const { return Member<QLineEdit>("TBMedi", index); }
    QLineEdit& Answer(int index) const { return Member<QLineEdit>("TBFin", index); }

    static QStringList Texts(const std::function<QLineEdit&(int)>& box)
    {
        QStringList texts;
        for (int i = 0; i < 4; ++i) {
            texts += box(i).text();
        }
        return texts;
    }
    QStringList GivenTexts() const
    {
        return Texts([this](int i) -> QLineEdit& { return Given(i); });
    }
    QStringList WorkingTexts() const
    {
        return Texts([this](int i) -> QLineEdit& { return Working(i); });
    }
    QStringList AnswerTexts() const
    {
        return Texts([this](int i) -> QLineEdit& { return Answer(i); });
    }

    // What the boxes of the last row must hold: a, c, b, d are given in this order.
    QStringList Right() const
    {
        std::array<int, 4> given{};
        for (int i = 0; i < 4; ++i) {
            given.at(i) = Given(i).text().toInt();
        }
        const auto [a, c, b, d] = given;
        const QString common = QString::number(b * d);
        return {QString::number(a * d), QString::number(c * b), common, common};
    }

    QStringList Verdict(const QStringList& answers) const
    {
        for (int i = 0; i < 4; ++i) {
            Answer(i).setText(answers.value(i));
        }
        m_ear->Take();
        Button("Command1").click();
        return m_ear->TakeSaid();
    }

private slots:
    void init()
    {
        numeros::FijarSemilla(7);
        OpenScreen(std::make_unique<ejercicios::FormConversion>());
    }
    void cleanup() { CloseScreen(); }

    void opens_with_its_texts()
    {
        QCOMPARE(m_form->windowTitle(), "Convertir a común denominador");
        QCOMPARE(m_ear->Take(), QStringList("FOCUS TBInstruc")); // there is nothing to announce
        QCOMPARE(Child<QPlainTextEdit>(*m_form, "TBInstruc").toPlainText(),
                 "Convierte estas fracciones al mismo denominador.\nEscribe primero los cálculos intermedios. \n");
        QCOMPARE(Child<QGroupBox>(*m_form, "Frame1").title(), "Iniciales");
        QCOMPARE(Child<QGroupBox>(*m_form, "Frame2").title(), "Intermedios");
        QCOMPARE(Child<QGroupBox>(*m_form, "Frame3").title(), "Finales");
        QCOMPARE(Text("TBMensajes"), "");
        QCOMPARE(Text("TBResultados"), "Ejercicios: 0; Errores: 0");
        QCOMPARE(WorkingTexts().join("") + AnswerTexts().join(""), "");
        QVERIFY(!GivenTexts().contains(""));
    }

    void the_seed_is_the_timer()
    {
        VerifySeedOfTheTimer([] { return std::make_unique<ejercicios::FormConversion>(); },
                             [this] { return GivenTexts(); });
    }

    void each_fraction_is_a_numerator_over_a_bar_over_a_denominator()
    {
        for (int i = 0; i < 2; ++i) {
            for (const auto& [above, below, bar] :
                 {std::tuple(&Given(i), &Given(i + 2), i), std::tuple(&Working(i), &Working(i + 2), i + 2),
                  std::tuple(&Answer(i), &Answer(i + 2), i + 4)}) {
                const QRect line = Member<QWidget>("Line1", bar).geometry();
                QCOMPARE(above->parentWidget(), below->parentWidget());
                QCOMPARE(Member<QWidget>("Line1", bar).parentWidget(), above->parentWidget());
                QVERIFY(above->geometry().bottom() < line.top() && line.bottom() < below->geometry().top());
                QVERIFY(above->parentWidget()->rect().contains(above->geometry() | below->geometry()));
            }
        }
    }

    void only_working_and_answer_accept_typing()
    {
        for (int i = 0; i < 4; ++i) {
            QVERIFY(Given(i).isReadOnly() && !Working(i).isReadOnly() && !Answer(i).isReadOnly());
        }
        QVERIFY(Box("TBMensajes").isReadOnly() && Box("TBResultados").isReadOnly());
    }

    void draws_by_its_rule()
    {
        const auto rule = [] {
            QStringList texts;
            for (const numeros::Entero16 number : reglas::Conversion::Sortear().Inicial()) {
                texts += QString::number(number.Valor());
            }
            return texts;
        };
        VerifyDraws(20, rule, [this] { return GivenTexts(); });
    }

    void every_box_of_the_answer_must_be_right()
    {
        QCOMPARE(Verdict(Right()), QStringList("Resultado correcto"));
        QCOMPARE(Focus(), "Command2(0)");
        for (int i = 0; i < 4; ++i) {
            for (const QString& wrong : {QString(), QString("x"), QString("99"), QString("-1"), Right()[i] + ".4"}) {
                QStringList answers = Right();
                answers[i] = wrong;
                QCOMPARE(Verdict(answers), QStringList("Resultado incorrecto"));
            }
        }
        QStringList lenient = Right();
        lenient[0] = " " + lenient[0] + ".0 partes";
        QCOMPARE(Verdict(lenient), QStringList("Resultado correcto"));
    }

    void a_smaller_common_denominator_is_wrong()
    {
        DrawNext({0, 2, 0, 2});
        Continue();
        QCOMPARE(GivenTexts(), QStringList({"1", "3", "2", "4"}));
        QCOMPARE(Verdict({"2", "3", "4", "4"}), QStringList("Resultado incorrecto"));
        QCOMPARE(Verdict({"4", "6", "8", "8"}), QStringList("Resultado correcto"));
    }

    void the_working_is_never_looked_at()
    {
        for (int i = 0; i < 4; ++i) {
            Working(i).setText("tonterías");
        }
        QCOMPARE(Verdict(Right()), QStringList("Resultado correcto"));
        QCOMPARE(WorkingTexts(), QStringList({"tonterías", "tonterías", "tonterías", "tonterías"}));
    }

    void an_equal_verdict_is_the_same_text_and_heard_again()
    {
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(Verdict({}), QStringList("Resultado incorrecto"));
            QCOMPARE(Text("TBMensajes"), "Resultado incorrecto");
        }
    }

    void a_wrong_answer_leaves_focus_and_boxes()
    {
        Answer(1).setFocus();
        Verdict({"1", "2", "3", "4"});
        QCOMPARE(Focus(), "TBFin(1)");
        QCOMPARE(AnswerTexts(), QStringList({"1", "2", "3", "4"}));
    }

    void the_verdict_is_heard_after_the_focus()
    {
        Click("Command2(2)");
        m_ear->Take();
        Press(Qt::Key_H, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command1", "FOCUS Command2(0)", "SAY Resultado correcto"}));
    }

    void the_score_line_never_changes()
    {
        Verdict(Right());
        Verdict({});
        QCOMPARE(Text("TBResultados"), "Ejercicios: 0; Errores: 0");
    }

    void the_solution_shows_working_and_answer()
    {
        for (int i = 0; i < 20; ++i) {
            Continue();
            const QString message = Text("TBMensajes");
            const QStringList given = GivenTexts();
            Button("Command2(2)").setFocus();
            m_ear->Take();
            Press(Qt::Key_Return);
            QCOMPARE(m_ear->Take(), QStringList());
            const QString& a = given[0];
            const QString& c = given[1];
            const QString& b = given[2];
            const QString& d = given[3];
            QCOMPARE(WorkingTexts(), QStringList({a + "x" + d, b + "x" + c, b + "x" + d, b + "x" + d}));
            QCOMPARE(AnswerTexts(), Right());
            QCOMPARE(Focus(), "Command2(2)");
            QCOMPARE(Text("TBMensajes"), message);
        }
        Button("Command1").click();
        QCOMPARE(Text("TBMensajes"), "Resultado correcto");
    }

    void clearing_leaves_the_given_fractions()
    {
        const QStringList given = GivenTexts();
        Verdict({"1"});
        Click("Command2(2)");
        Press(Qt::Key_B, Qt::AltModifier);
        QCOMPARE(Focus(), "Command2(1)");
        QCOMPARE(WorkingTexts().join("") + AnswerTexts().join(""), "");
        QCOMPARE(GivenTexts(), given);
        QCOMPARE(Text("TBMensajes"), "Resultado incorrecto");
    }

    void continuing_empties_the_rows_and_keeps_message_and_focus()
    {
        Verdict({"1"});
        Click("Command2(2)");
        m_ear->Take();
        Press(Qt::Key_C, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList("FOCUS Command2(0)"));
        QCOMPARE(WorkingTexts().join("") + AnswerTexts().join(""), "");
        QCOMPARE(Text("TBMensajes"), "Resultado incorrecto");
    }
};

KELVORA_TEST_MAIN(tst_FormConversion)
#include "tst_FormConversion.moc"
