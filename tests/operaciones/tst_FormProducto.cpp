#include "FormProducto.h"
#include "OperationScreen.h"

using namespace support;

class tst_FormProducto : public QObject, private OperationScreen
{
    Q_OBJECT

private slots:
    void init()
    {
        numeros::FijarSemilla(7);
        OpenScreen(std::make_unique<operaciones::FormProducto>());
    }
    void cleanup() { CloseScreen(); }

    void draws_four_values_without_any_rule_data() { AddRanges(); }
    void draws_four_values_without_any_rule()
    {
        QFETCH(int, range);
        VerifyExercises(range, reglas::SortearOperandos);
    }

    void shows_the_product()
    {
        QCOMPARE(Solution({2, 3, 3, 4}), "6/12");
        QCOMPARE(Solution({4, 6, 3, 8}), "12/48");
        QCOMPARE(Solution({100, 100, 100, 100}), "10000/10000");
    }

    void accepts_any_equivalent_fraction()
    {
        SetOperands({2, 3, 3, 4});
        for (const QString right : {"6/12", "1/2", "3/6"}) {
            Verdict(right.section('/', 0, 0), right.section('/', 1));
            QCOMPARE(Text("Text3"), "Resultado correcto ");
        }
    }

    void whatever_is_typed_into_a_fraction_box_empties_the_verdict()
    {
        const auto verdictAfter = [this](int box, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
            Button("Command1").click();
            Text1(box).setFocus();
            m_ear->Take();
            Press(key, modifiers);
            const QString left = Text("Text3");
            return m_ear->TakeSaid().isEmpty() ? left : "something was said";
        };
        for (int box = 0; box < 6; ++box) {
            for (const Qt::Key key : {Qt::Key_A, Qt::Key_7, Qt::Key_Space, Qt::Key_Backspace, Qt::Key_Escape}) {
                QCOMPARE(verdictAfter(box, key), "");
            }
            QCOMPARE(verdictAfter(box, Qt::Key_A, Qt::ControlModifier), "");
            for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Home, Qt::Key_Delete, Qt::Key_Shift, Qt::Key_Tab}) {
                QVERIFY(verdictAfter(box, key).startsWith("Resultado incorrecto "));
            }
            for (const Qt::Key key : {Qt::Key_F2, Qt::Key_F3}) { // which say something, but not by the verdict box
                verdictAfter(box, key);
                QVERIFY(Text("Text3").startsWith("Resultado incorrecto "));
            }
            verdictAfter(box, Qt::Key_Right, Qt::ControlModifier);
            QVERIFY(Text("Text3").startsWith("Resultado incorrecto "));
        }
        for (int box = 0; box < 4; ++box) {
            QCOMPARE(verdictAfter(box, Qt::Key_Return), "");
        }
    }

    void a_locked_operand_says_so_where_there_is_no_verdict_to_empty()
    {
        for (int box = 0; box < 4; ++box) {
            Button("Command1").click();
            Text1(box).setFocus();
            m_ear->Take();
            Type("7");
            QCOMPARE(m_ear->Take(), QStringList());
            Type("7");
            QCOMPARE(m_ear->Take(), QStringList("SAY solo lectura"));
            Type("7");
            QCOMPARE(m_ear->Take(), QStringList());
        }
    }

    void keys_elsewhere_leave_the_verdict()
    {
        for (const QString name : {"Text2(0)", "Text3", "TbMensajes", "Command2(1)"}) {
            Button("Command1").click();
            Child<QWidget>(*m_form, name).setFocus();
            Press(Qt::Key_7);
            QVERIFY(Text("Text3").startsWith("Resultado incorrecto "));
        }
    }

    void enter_in_an_operand_box_does_nothing_else()
    {
        const QString exercise = Text("TbMensajes");
        for (int box = 0; box < 4; ++box) {
            Text1(box).setFocus();
            m_ear->Take();
            Press(Qt::Key_Return);
            Press(Qt::Key_Enter);
            QCOMPARE(m_ear->Take(), QStringList());
            QCOMPARE(Focus(), Text1(box).objectName());
        }
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
        QCOMPARE(Text("TbMensajes"), exercise);
    }

    void enter_always_says_the_same_verdict_since_it_empties_it_first()
    {
        SetOperands({2, 3, 3, 4});
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(Verdict("1", "7"), QStringList("Resultado incorrecto "));
        }
        QCOMPARE(Text("tbResultados"), "Ejercicios:  3; Errores:  3");
    }
};

KELVORA_TEST_MAIN(tst_FormProducto)
#include "tst_FormProducto.moc"
