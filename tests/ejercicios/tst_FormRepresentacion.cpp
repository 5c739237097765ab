#include "Draws.h"
#include "FormRepresentacion.h"
#include "Habits.h"
#include "Reparto.h"
#include "Screen.h"

#include <QClipboard>
#include <QPlainTextEdit>

using namespace support;

namespace {

const QStringList words{"", "uno", "dos", "tres", "cuatro", "cinco", "seis", "siete", "ocho", "nueve", "diez"};
const QStringList parts{"",      "entero",  "medio",  "tercio", "cuarto", "quinto",
                        "Sexto", "séptimo", "octavo", "noveno", "décimo"};

} // namespace

class tst_FormRepresentacion : public QObject, private Screen
{
    Q_OBJECT

private:
    QPushButton& Part(int index) const { return Member<QPushButton>("CbParte", index); }
    QLineEdit& Total() const { return Box("Text4(0)"); }
    QLineEdit& Coloured() const { return Box("Text4(1)"); }
    int Numerator() const { return Text("Text2(0)").toInt(); }
    int Denominator() const { return Text("Text2(1)").toInt(); }
    QStringList Fraction() const { return {Text("Text3(0)"), Text("Text3(1)")}; }

    // The shown parts, by letter: "rvv" is a red one and two green ones.
    QString Parts() const
    {
        QString seen;
        for (int i = 0; i < 10; ++i) {
            if (!Part(i).isVisible()) {
                continue;
            }
            const QColor face = Part(i).grab().toImage().pixelColor(4, 4);
            const QString red = QString("%1 - rojo").arg(i + 1);
            const QString green = QString("%1 - verde").arg(i + 1);
            if (Part(i).text() == red && face == QColor(255, 0, 0)) {
                seen += 'r';
            } else if (Part(i).text() == green && face == QColor(0, 255, 0)) {
                seen += 'v';
            } else {
                seen += '?';
            }
        }
        return seen;
    }

    void Divide(const QString& total) const
    {
        Total().setFocus();
        Total().clear();
        Type(total);
    }

    // Continues with the fraction of one over the other.
    void SeekFraction(int numerator, int denominator) const
    {
        DrawNext({numerator - 1, denominator - 2});
        Continue();
        QCOMPARE(Numerator(), numerator);
        QCOMPARE(Denominator(), denominator);
        m_ear->Take();
    }

    QStringList Done() const
    {
        m_ear->Take();
        Button("Command1").click();
        return m_ear->TakeSaid();
    }

private slots:
    void init()
    {
        numeros::FijarSemilla(7);
        OpenScreen(std::make_unique<ejercicios::FormRepresentacion>());
    }
    void cleanup() { CloseScreen(); }

    // Opening

    void opens_with_the_fraction_heard_and_a_sample_on_view()
    {
        QCOMPARE(m_form->windowTitle(), "Representación gráfica de fracciones");
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Text1", "SAY " + Fraction().join(' ')}));
        QCOMPARE(Parts(), "rvrvrvrvrv");
        QCOMPARE(Coloured().text(), "0");
        QCOMPARE(Total().text(), "");
        QCOMPARE(Text("Text5"), "");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
        QCOMPARE(Child<QPlainTextEdit>(*m_form, "Text1").toPlainText(),
                 "Escribe el número de partes a realizar y colorea las \npartes necesarias haciendo click en ellas.\n");
        Part(0).click(); // red in the sample, which counts none
        QCOMPARE(Coloured().text(), "-1");
    }

    void the_seed_is_the_time_of_day()
    {
        VerifySeedOfTheDay([] { return std::make_unique<ejercicios::FormRepresentacion>(); },
                           [this] { return Fraction(); });
    }

    void tab_goes_round_in_the_given_order()
    {
        QStringList order{"Text1", "Text2(0)", "Text2(1)", "Text3(0)", "Text3(1)", "Text4(0)", "Text4(1)"};
        for (int i = 0; i < 10; ++i) {
            order += QString("CbParte(%1)").arg(i);
        }
        order += {"Command1", "Text5", "Command2(0)", "Command2(1)", "Command2(2)", "tbResultados"};
        QCOMPARE(TabRound(), order);
        Divide("3");
        QCOMPARE(TabRound().size(), order.size() - 7); // hidden parts are no stops
    }

    void only_the_total_accepts_typing()
    {
        for (const QLineEdit* box : m_form->findChildren<QLineEdit*>()) {
            QCOMPARE(box->isReadOnly(), box->objectName() != "Text4(0)");
        }
        QVERIFY(Child<QPlainTextEdit>(*m_form, "Text1").isReadOnly());
    }

    void access_keys_of_the_labels_lead_to_the_boxes()
    {
        Press(Qt::Key_P, Qt::AltModifier);
        QCOMPARE(Focus(), "Text4(0)");
        Press(Qt::Key_A, Qt::AltModifier);
        QCOMPARE(Focus(), "Text4(1)");
    }

    void the_menu_leads_out()
    {
        Choose("MnuOpcSal");
        Settle();
        QVERIFY(!m_form);
    }

    // The fraction

    void the_first_fraction_counts()
    {
        Done();
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  1");
    }

    void draws_by_its_rule()
    {
        const auto rule = [] {
            const numeros::Fraccion fraction = reglas::SortearFraccion();
            return QString("%1/%2").arg(fraction.numerador.Valor()).arg(fraction.denominador.Valor());
        };
        VerifyDraws(20, rule, [this] { return QString("%1/%2").arg(Numerator()).arg(Denominator()); });
    }

    void every_fraction_is_shown_in_digits_and_words()
    {
        for (int denominator = 2; denominator <= 10; ++denominator) {
            for (int numerator = 1; numerator <= denominator; ++numerator) {
                SeekFraction(numerator, denominator);
                QCOMPARE(Text("Text2(0)"), QString::number(numerator));
                QCOMPARE(Text("Text2(1)"), QString::number(denominator));
                const QString name = parts[denominator] + (numerator == 1 ? "" : "s");
                QCOMPARE(Fraction(), QStringList({words[numerator], name}));
            }
        }
    }

    void the_fraction_is_heard_after_the_focus()
    {
        Press(Qt::Key_C, Qt::AltModifier);
        m_ear->Take();
        Press(Qt::Key_C, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command2(0)", "FOCUS Text4(0)", "SAY " + Fraction().join(' ')}));
    }

    void reading_again_appends_a_blank_to_both_and_takes_it_away()
    {
        SeekFraction(1, 4);
        Press(Qt::Key_F3);
        QCOMPARE(Fraction(), QStringList({"uno ", "cuarto "}));
        QCOMPARE(m_ear->TakeSaid(), QStringList("uno  cuarto "));
        Press(Qt::Key_F3);
        QCOMPARE(Fraction(), QStringList({"uno", "cuarto"}));
        QCOMPARE(m_ear->TakeSaid(), QStringList("uno cuarto"));
        SeekFraction(3, 4);
        Choose("MnuOpcLee");
        QCOMPARE(m_ear->TakeSaid(), QStringList("tres  cuartos "));
    }

    // Dividing

    void every_number_of_parts_has_its_layout()
    {
        const QSize whole = Child<QWidget>(*m_form, "Picture1").size();
        for (int n = 1; n <= 10; ++n) {
            Divide(QString::number(n));
            QCOMPARE(Parts(), QString(n, 'v'));
            const int columns = n == 9 ? 3 : (n == 4 || n == 6 || n == 8 || n == 10) ? 2 : 1;
            const int rows = n / columns;
            int area = 0;
            for (int i = 0; i < n; ++i) {
                const double width = 4000.0 / columns;
                const double height = 2400.0 / rows;
                const int column = i / rows;
                const int row = i % rows;
                QVERIFY2(StandsAt(QString("CbParte(%1)").arg(i), column * width, row * height, width, height),
                         qPrintable(QString("part %1 of %2").arg(i).arg(n)));
                area += Part(i).width() * Part(i).height();
            }
            QCOMPARE(area, whole.width() * whole.height()); // no gap and no overlap
        }
    }

    void a_total_out_of_range_is_put_right_with_its_value_heard_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("total");
        QTest::addColumn<int>("shown");
        const auto row = [](const char* typed, const char* total, int count) {
            QTest::newRow(typed) << typed << total << count;
        };
        row("12", "10", 10);
        row("-3", "1", 1);
        row("99", "10", 10);
        row("-0.5", "1", 1);
        row("10.4", "10", 10);
    }
    void a_total_out_of_range_is_put_right_with_its_value_heard()
    {
        QFETCH(QString, typed);
        QFETCH(QString, total);
        QFETCH(int, shown);
        Divide("2");
        // The last character is what makes the number too large or too small.
        Total().setText(typed.chopped(1));
        m_ear->Take();
        Total().end(false);
        Type(typed.right(1));
        QCOMPARE(Total().text(), total);
        QStringList heard = m_ear->Take();
        QCOMPARE(heard.removeAll("BEEP"), 1);
        QCOMPARE(heard, QStringList("SAY " + total));
        QCOMPARE(Parts(), QString(shown, 'v'));
        QCOMPARE(Coloured().text(), "0");
    }

    void halves_are_rounded_to_even_and_nothing_usable_changes_nothing()
    {
        Divide("4");
        Part(1).click();
        for (const char* typed : {"a", "0", "", "cuatro"}) {
            Total().setText(typed);
            QCOMPARE(Parts(), "vrvv");
            QCOMPARE(Coloured().text(), "1");
        }
        Total().clear();
        Type("2.5");
        QCOMPARE(Parts(), "vv");
        Total().clear();
        Type("3.5");
        QCOMPARE(Parts(), "vvvv");
        Total().clear();
        Type("0.4");
        QCOMPARE(Parts(), "");
        QCOMPARE(Coloured().text(), "0");
        Part(0).setFocus(); // hidden
        QCOMPARE(Focus(), "Text4(0)");
    }

    void a_number_beyond_measure_is_put_right_too()
    {
        Total().setFocus();
        Total().clear();
        QApplication::clipboard()->setText(QString(400, '9'));
        Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(Total().text(), "10");
        QCOMPARE(Parts().size(), 10);
    }

    // Colouring

    void a_part_changes_with_each_click_and_is_counted()
    {
        Divide("3");
        QTest::mouseClick(&Part(1), Qt::LeftButton);
        QCOMPARE(Parts(), "vrv");
        QCOMPARE(Coloured().text(), "1");
        Part(2).setFocus();
        Press(Qt::Key_Space);
        QCOMPARE(Parts(), "vrr");
        QCOMPARE(Coloured().text(), "2");
        Press(Qt::Key_Return);
        QCOMPARE(Parts(), "vrv");
        QCOMPARE(Coloured().text(), "1");
        QCOMPARE(Name("CbParte(1)"), "2 - rojo");
        QCOMPARE(Name("CbParte(2)"), "3 - verde");
    }

    void a_part_tells_its_new_caption_and_how_many_are_coloured_once()
    {
        Divide("3");
        m_ear->Take();
        const auto pressed = [this](int part, const QString& caption, const QString& count) {
            Part(part).setFocus();
            m_ear->Take();
            Press(Qt::Key_Space);
            const QString name = ui::ReaderHabits().newNamesAreRead ? QString() : caption + "; ";
            QCOMPARE(Name(QString("CbParte(%1)").arg(part)), caption);
            QCOMPARE(m_ear->Take(), QStringList("SAY " + name + "partes coloreadas: " + count));
        };
        pressed(1, "2 - rojo", "1");
        pressed(2, "3 - rojo", "2");
        pressed(1, "2 - verde", "1");
        pressed(2, "3 - verde", "0");
        Button("Command1").setFocus();
        m_ear->Take();
        Part(0).click(); // as a reader's own command does
        QCOMPARE(m_ear->Take(), QStringList("SAY 1 - rojo; partes coloreadas: 1"));
    }

    void dividing_says_nothing_of_the_parts()
    {
        Divide("3");
        m_ear->Take();
        Total().setText("4");
        QCOMPARE(m_ear->TakeSaid(), QStringList());
    }

    void typing_a_total_makes_all_parts_green_again()
    {
        Divide("5");
        Part(0).click();
        Part(4).click();
        QCOMPARE(Parts(), "rvvvr");
        Divide("3");
        QCOMPARE(Parts(), "vvv");
        QCOMPARE(Coloured().text(), "0");
        Part(0).click();
        QCOMPARE(Coloured().text(), "1");
    }

    void the_count_drifts_on_purpose()
    {
        SeekFraction(2, 5);
        Divide("5");
        for (const int i : {0, 1, 2}) {
            Part(i).click();
        }
        Click("Command2(1)"); // "Borrar"
        QCOMPARE(Coloured().text(), "0");
        QCOMPARE(Parts(), "vvvvv");
        Part(0).click();
        QCOMPARE(Coloured().text(), "4");
        Continue();
        QCOMPARE(Coloured().text(), "0");
        QCOMPARE(Parts(), "rvvvv"); // the last exercise stays on view
        Part(1).click();
        QCOMPARE(Coloured().text(), "5");
        SeekFraction(2, 5);
        Click("Command2(2)"); // "Ver solución"
        QCOMPARE(Coloured().text(), "2");
        Part(0).click();
        QCOMPARE(Coloured().text(), "-1");
        Part(4).click();
        QCOMPARE(Coloured().text(), "0");
    }

    // Checking

    void the_answer_is_the_two_numbers()
    {
        SeekFraction(3, 4);
        Divide("4");
        for (const int i : {0, 2, 3}) { // whichever
            Part(i).click();
        }
        QCOMPARE(Done(), QStringList("Respuesta correcta"));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  0");
        QCOMPARE(Focus(), "Command2(0)");
        QCOMPARE(Done(), QStringList("Respuesta correcta "));
        QCOMPARE(Done(), QStringList("Respuesta correcta"));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  0");
    }

    void a_number_of_parts_beside_the_right_one_is_wrong()
    {
        SeekFraction(3, 4);
        Divide("4.4"); // four parts
        for (const int i : {0, 1, 2}) {
            Part(i).click();
        }
        QCOMPARE(Done(), QStringList("Respuesta incorrecta"));
    }

    void an_equivalent_fraction_is_wrong()
    {
        SeekFraction(2, 4);
        Divide("2");
        Part(0).click();
        QCOMPARE(Done(), QStringList("Respuesta incorrecta"));
    }

    void every_wrong_answer_counts()
    {
        SeekFraction(3, 4);
        Box("Text5").setFocus();
        QCOMPARE(Done(), QStringList("Respuesta incorrecta"));
        QCOMPARE(Done(), QStringList("Respuesta incorrecta "));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  2; Errores:  2");
        QCOMPARE(Focus(), "Text5"); // where it was
        Divide("4");
        for (const int i : {0, 1, 2}) {
            Part(i).click();
        }
        Done();
        QCOMPARE(Text("tbResultados"), "Ejercicios:  3; Errores:  2");
        Part(0).click();
        Done();
        QCOMPARE(Text("tbResultados"), "Ejercicios:  3; Errores:  2"); // it has been counted
    }

    void the_verdict_is_heard_after_the_focus()
    {
        SeekFraction(3, 4);
        Click("Command2(2)");
        m_ear->Take();
        Press(Qt::Key_H, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command1", "FOCUS Command2(0)", "SAY Respuesta correcta"}));
    }

    // The other buttons

    void continue_empties_the_answer_and_lets_it_count_again()
    {
        SeekFraction(3, 4);
        Divide("4");
        Done();
        Click("Command2(2)");
        Continue();
        QCOMPARE(Total().text(), "");
        QCOMPARE(Coloured().text(), "0");
        QCOMPARE(Text("Text5"), "");
        QCOMPARE(Focus(), "Text4(0)");
        Done();
        QCOMPARE(Text("tbResultados"), "Ejercicios:  2; Errores:  2");
    }

    void clear_makes_all_parts_green_and_keeps_the_verdict()
    {
        SeekFraction(3, 4);
        Divide("4");
        Part(0).click();
        Done();
        m_ear->Take();
        Press(Qt::Key_B, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command2(1)", "FOCUS Text4(0)", "SAY Partes en total"}));
        QCOMPARE(Total().text(), "");
        QCOMPARE(Coloured().text(), "0");
        QCOMPARE(Parts(), "vvvv");
        QCOMPARE(Text("Text5"), "Respuesta incorrecta");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  1");
        Done();
        QCOMPARE(Text("tbResultados"), "Ejercicios:  2; Errores:  2"); // still pending
    }

    void clearing_changes_nothing_about_the_counting()
    {
        Click("Command2(2)");
        Click("Command2(1)");
        Done();
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
    }

    void the_solution_is_drawn_and_no_longer_counts()
    {
        SeekFraction(2, 5);
        Button("Command2(2)").setFocus();
        m_ear->Take();
        Press(Qt::Key_Return);
        QCOMPARE(m_ear->Take(), QStringList("FOCUS Text4(0)"));
        QCOMPARE(Parts(), "rrvvv");
        QCOMPARE(Total().text(), "5");
        QCOMPARE(Total().selectedText(), "5");
        QCOMPARE(Coloured().text(), "2");
        QCOMPARE(Coloured().selectedText(), "2");
        QCOMPARE(Done(), QStringList("Respuesta correcta"));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
        Divide("3");
        QCOMPARE(Done(), QStringList("Respuesta incorrecta"));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
    }

    void the_solution_over_the_same_total_divides_nothing_anew()
    {
        SeekFraction(2, 5);
        Divide("5");
        for (const int i : {2, 3, 4}) {
            Part(i).click();
        }
        Click("Command2(2)"); // the text of the total does not change
        QCOMPARE(Parts(), "rrvvv");
        Part(4).click();
        QCOMPARE(Coloured().text(), "4"); // the count goes on from 3
    }

    void every_fraction_is_solved_by_its_solution()
    {
        for (int i = 0; i < 30; ++i) {
            Continue();
            Button("Command2(2)").click();
            QCOMPARE(Parts(), QString(Numerator(), 'r') + QString(Denominator() - Numerator(), 'v'));
            QVERIFY(Done().front().startsWith("Respuesta correcta"));
        }
    }

    void parts_keep_their_places_when_the_window_grows()
    {
        Divide("9");
        m_form->resize(m_form->width() * 2, m_form->height() * 2);
        Settle();
        const QSize whole = Child<QWidget>(*m_form, "Picture1").size();
        QVERIFY(whole.width() > 500);
        QCOMPARE(Part(8).geometry().right() + 1, whole.width());
        QCOMPARE(Part(8).geometry().bottom() + 1, whole.height());
        Divide("7");
        QCOMPARE(Part(6).geometry().bottom() + 1, whole.height());
    }
};

KELVORA_TEST_MAIN(tst_FormRepresentacion)
#include "tst_FormRepresentacion.moc"
