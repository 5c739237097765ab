#include "FormSeries.h"
#include "Lectura.h"
#include "Screen.h"
#include "Serie.h"

#include <algorithm>
#include <optional>

using namespace support;

namespace {

// What a run of numbers is, told from its terms alone.
enum class Progression { Constant, Arithmetic, Changing, None };

template <class Terms>
Progression ProgressionOf(const Terms& terms)
{
    QSet<int> steps;
    QSet<int> changes;
    for (qsizetype i = 1; i < terms.size(); ++i) {
        steps.insert(terms[i] - terms[i - 1]);
        if (i > 1) {
            changes.insert(terms[i] - 2 * terms[i - 1] + terms[i - 2]);
        }
    }
    if (steps.size() == 1) {
        return *steps.begin() == 0 ? Progression::Constant : Progression::Arithmetic;
    }
    return changes.size() == 1 ? Progression::Changing : Progression::None;
}

} // namespace

class tst_FormSeries : public QObject, private Screen
{
    Q_OBJECT

private:
    QLineEdit& Numerator(int index) const { return Member<QLineEdit>("Text1", index); }
    QLineEdit& Denominator(int index) const { return Member<QLineEdit>("Text2", index); }

    // The index of the blank: the last term on view.
    int Blank() const
    {
        int last = -1;
        while (last < 7 && Numerator(last + 1).isVisible()) {
            ++last;
        }
        return last;
    }

    QList<int> Numerators() const { return Shown("Text1"); }
    QList<int> Denominators() const { return Shown("Text2"); }
    QList<int> Shown(const char* row) const
    {
        QList<int> terms;
        for (int i = 0; i < Blank(); ++i) {
            terms += Member<QLineEdit>(row, i).text().toInt();
        }
        return terms;
    }

    // The term that the screen itself shows as the solution, which now counts as seen.
    std::pair<QString, QString> Solution() const
    {
        Button("Command2(2)").click();
        return {Numerator(Blank()).text(), Denominator(Blank()).text()};
    }

    // The next term of a series of level 1A, from those on view.
    QString ByTheRule(const char* row) const
    {
        const QList<int> terms = Shown(row);
        return QString::number(2 * terms.back() - terms[terms.size() - 2]);
    }

    QStringList Verdict(const QString& numerator, const QString& denominator) const
    {
        Numerator(Blank()).setText(numerator);
        Denominator(Blank()).setText(denominator);
        m_ear->Take();
        Button("Command1").click();
        return m_ear->TakeSaid();
    }

    // Level and letter of the series on view, told from its terms alone.
    void VerifyKind(int level, int letter) const
    {
        QList<int> above = Numerators();
        QList<int> below = Denominators();
        if (letter == 2) { // every second term is upside down
            for (qsizetype i = 1; i < above.size(); i += 2) {
                std::swap(above[i], below[i]);
            }
        }
        QList<Progression> seen{ProgressionOf(above), ProgressionOf(below)};
        std::ranges::sort(seen);
        const std::array<QList<Progression>, 4> levels{{{Progression::Constant, Progression::Arithmetic},
                                                        {Progression::Arithmetic, Progression::Arithmetic},
                                                        {Progression::Arithmetic, Progression::Changing},
                                                        {Progression::Changing, Progression::Changing}}};
        QCOMPARE(seen, levels.at(level - 1));
        for (const int term : above + below) {
            QVERIFY(term >= 0);
        }
    }

    static QString Words(int numerator, int denominator)
    {
        return QString::fromStdString(lenguaje::FraccionEnLetras(numerator, denominator, {}));
    }

    // The series on view as it is to be told.
    QString InWords() const
    {
        QStringList terms;
        for (int i = 0; i < Blank(); ++i) {
            terms += Words(Numerators()[i], Denominators()[i]);
        }
        return QString("%1; falta el término %2").arg(terms.join(", ")).arg(Blank() + 1);
    }

private slots:
    void init()
    {
        numeros::FijarSemilla(7);
        OpenScreen(std::make_unique<ejercicios::FormSeries>());
    }
    void cleanup() { CloseScreen(); }

    // Opening

    void opens_with_a_series_of_the_first_level()
    {
        QCOMPARE(m_form->windowTitle(), "Completa la serie");
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS TbInstruc", "SAY " + InWords()}));
        QCOMPARE(Text("TbInstruc"), "Completa la serie");
        QCOMPARE(Blank(), 4);
        QCOMPARE(Numerator(4).text() + Denominator(4).text(), "");
        QCOMPARE(Text("Text3"), "");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
        QVERIFY(Entry("MnuOpcDifLis(0)").isChecked() && Entry("MnuOpcTipLis(0)").isChecked());
    }

    void the_first_series_counts()
    {
        Verdict(ByTheRule("Text1"), ByTheRule("Text2"));
        QCOMPARE(Text("tbResultados"), "Ejercicios:   1; Errores:  0.");
    }

    void the_seed_is_the_time_of_day()
    {
        VerifySeedOfTheDay([] { return std::make_unique<ejercicios::FormSeries>(); },
                           [this] { return std::pair(Numerators(), Denominators()); });
    }

    // Generation

    void draws_by_the_rules_of_each_level_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("only");
        for (int index = 0; index < 8; ++index) {
            QTest::addRow("%d%c", index / 2 + 1, index % 2 == 0 ? 'A' : 'B') << index << true;
            QTest::addRow("%d%c and easier", index / 2 + 1, index % 2 == 0 ? 'A' : 'B') << index << false;
        }
    }
    void draws_by_the_rules_of_each_level()
    {
        QFETCH(int, index);
        QFETCH(bool, only);
        const int chosen = index / 2 + 1;
        const int letter = index % 2 + 1;
        Choose(QString("MnuOpcDifLis(%1)").arg(index));
        Choose(only ? "MnuOpcTipLis(0)" : "MnuOpcTipLis(1)");
        while (Blank() != chosen + 3) {
            Continue(); // the first series of this level may be abandoned
        }
        constexpr int exercises = 40;
        const reglas::Nivel nivel{chosen, letter == 2};
        numeros::FijarSemilla(99);
        numeros::Sembrar(0);
        std::vector<std::optional<reglas::Serie>> drawn(exercises);
        for (auto& series : drawn) {
            series = reglas::SortearSerie(only ? nivel : reglas::SortearNivel(nivel));
        }
        numeros::Sembrar(0);
        std::optional<reglas::Serie> onView;
        int abandoned = 0;
        for (const auto& series : drawn) {
            Continue();
            abandoned += series ? 0 : 1;
            onView = series ? series : onView;
            if (!onView) {
                continue; // still the series from before
            }
            QCOMPARE(Blank(), chosen + 3);
            for (int i = 0; i < 8; ++i) {
                QCOMPARE(Denominator(i).isVisible(), i <= Blank());
                QCOMPARE(Member<QWidget>("Line1", i).isVisible(), i <= Blank());
            }
            for (int i = 0; i < Blank(); ++i) {
                QCOMPARE(Numerator(i).text(), QString::number(onView->NumeradoresSerie.at(i)));
                QCOMPARE(Denominator(i).text(), QString::number(onView->DenominadoresSerie.at(i)));
            }
            if (series) {
                const QStringList term{QString::number(onView->NumeradoresSerie.at(Blank())),
                                       QString::number(onView->DenominadoresSerie.at(Blank()))};
                const auto [numerator, denominator] = Solution();
                QCOMPARE(QStringList({numerator, denominator}), term);
            }
            if (only) {
                VerifyKind(chosen, letter);
            }
            if (QTest::currentTestFailed()) {
                return;
            }
        }
        QVERIFY(chosen <= 2 ? abandoned == 0 : abandoned > 0);
    }

    void an_abandoned_series_leaves_the_one_on_view()
    {
        Choose("MnuOpcDifLis(6)"); // 4A
        int kept = 0;
        int renewed = 0;
        while (Blank() != 7) {
            Continue();
        }
        for (int i = 0; i < 60; ++i) {
            const auto before = std::pair(Numerators(), Denominators());
            Numerator(7).setText("5");
            Continue();
            const bool same = before == std::pair(Numerators(), Denominators());
            (same ? kept : renewed) += 1;
            QCOMPARE(Numerator(7).text(), same ? "5" : ""); // the answer stays with its series
        }
        QVERIFY(kept > 10 && renewed > 10);
    }

    // Options

    void a_level_waits_for_the_next_series_and_leads_to_the_blank()
    {
        const auto before = std::pair(Numerators(), Denominators());
        m_ear->Take();
        Choose("MnuOpcDifLis(2)");
        QCOMPARE(m_ear->Take(), QStringList("FOCUS Text1(4)"));
        QCOMPARE(std::pair(Numerators(), Denominators()), before);
        Type("7");
        QCOMPARE(Numerator(4).text(), "7");
        QCOMPARE(Verdict(ByTheRule("Text1"), ByTheRule("Text2")), QStringList("Respuesta correcta"));
        Button("Command2(1)").click();
        QCOMPARE(Numerator(4).text() + Denominator(4).text(), "");
        Button("Command2(2)").click();
        QCOMPARE(Numerator(4).text() + "/" + Denominator(4).text(), ByTheRule("Text1") + "/" + ByTheRule("Text2"));
        for (int i = 0; i < 20; ++i) {
            Continue();
            VerifyKind(2, 1); // of no easier level: that is the type marked at opening
        }
        QCOMPARE(Blank(), 5);
        QCOMPARE(Focus(), "Text1(5)");
        Choose("MnuOpcDifLis(0)");
        Continue();
        QCOMPARE(Blank(), 4);
        QVERIFY(!Denominator(5).isVisible() && !Member<QWidget>("Line1", 5).isVisible());
    }

    void the_message_stays_with_a_level_a_type_and_goes_with_the_solution()
    {
        Verdict("", "");
        for (const char* entry : {"MnuOpcDifLis(0)", "MnuOpcTipLis(1)", "MnuOpcTipLis(0)"}) {
            Choose(entry);
            QCOMPARE(Text("Text3"), "Respuesta incorrecta");
        }
        Button("Command2(1)").click();
        QCOMPARE(Text("Text3"), "Respuesta incorrecta");
        Button("Command2(2)").click();
        QCOMPARE(Text("Text3"), "");
    }

    void a_type_brings_a_new_series_at_once()
    {
        for (const int type : {1, 0}) {
            QSet<QString> seen;
            for (int i = 0; i < 20; ++i) {
                Choose(QString("MnuOpcTipLis(%1)").arg(type));
                seen.insert(Numerator(0).text() + "/" + Denominator(0).text() + " " + Denominator(1).text());
                QCOMPARE(Focus(), "Text1(4)");
                QVERIFY(Entry(QString("MnuOpcTipLis(%1)").arg(type)).isChecked());
                QVERIFY(!Entry(QString("MnuOpcTipLis(%1)").arg(1 - type)).isChecked());
            }
            QVERIFY(seen.size() > 5);
        }
    }

    void a_shorter_series_moves_the_focus_once()
    {
        Choose("MnuOpcDifLis(6)"); // 4A
        while (Blank() != 7) {
            Continue();
        }
        Choose("MnuOpcDifLis(0)");
        QCOMPARE(Focus(), "Text1(7)");
        m_ear->Take();
        Choose("MnuOpcTipLis(0)");
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Text1(4)", "SAY " + InWords()}));
    }

    // The ear

    void a_series_is_told_term_by_term_data()
    {
        QTest::addColumn<int>("grade");
        for (const int grade : {0, 1, 2, 5, 7}) {
            QTest::addRow("%d", grade) << grade;
        }
    }
    void a_series_is_told_term_by_term()
    {
        QFETCH(int, grade);
        Choose(QString("MnuOpcDifLis(%1)").arg(grade));
        QCOMPARE(m_ear->TakeSaid().size(), 1); // the opening; a grade changes nothing yet
        QSet<QString> told;
        for (int round = 0; round < 60; ++round) {
            Button("Command2(1)").setFocus();
            m_ear->Take();
            Continue(); // which often keeps the old one, and tells it again
            const QString blank = QString("FOCUS Text1(%1)").arg(Blank());
            QCOMPARE(m_ear->Take(), QStringList({blank, "SAY " + InWords()}));
            told.insert(InWords());
        }
        QVERIFY(told.size() > 5);
    }

    void a_series_is_told_in_these_words()
    {
        QCOMPARE(Numerators(), QList<int>({2, 2, 2, 2}));
        QCOMPARE(Denominators(), QList<int>({3, 5, 7, 9}));
        QCOMPARE(m_ear->TakeSaid(),
                 QStringList("dos tercios, dos quintos, dos séptimos, dos novenos; falta el término 5"));
    }

    void f3_tells_the_series_on_any_control_and_moves_nothing()
    {
        Verdict("1", "2");
        for (const char* name : {"TbInstruc", "Text1(0)", "Text2(4)", "Command1", "Text3", "Command2(2)"}) {
            Child<QWidget>(*m_form, name).setFocus();
            m_ear->Take();
            Press(Qt::Key_F3);
            QCOMPARE(m_ear->Take(), QStringList("SAY " + InWords()));
            QCOMPARE(Focus(), name);
        }
        QCOMPARE(Text("Text3"), "Respuesta incorrecta");
    }

    // Checking

    void every_right_check_counts_an_exercise_and_every_wrong_one_an_error()
    {
        const auto [numerator, denominator] = Solution();
        Choose("MnuOpcDifLis(0)"); // the solution counts as not seen again
        QCOMPARE(Verdict(numerator, denominator), QStringList("Respuesta correcta"));
        QCOMPARE(Focus(), "Command2(0)");
        QCOMPARE(Text("tbResultados"), "Ejercicios:   1; Errores:  0.");
        QCOMPARE(Verdict(numerator, denominator), QStringList("Respuesta correcta")); // no blank, and heard again
        QCOMPARE(Text("tbResultados"), "Ejercicios:   2; Errores:  0.");
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(Verdict("", ""), QStringList("Respuesta incorrecta"));
        }
        QCOMPARE(Text("tbResultados"), "Ejercicios:   2; Errores:  3.");
    }

    void the_score_line_has_its_lopsided_padding()
    {
        for (int i = 0; i < 12; ++i) {
            Verdict("", "");
        }
        QCOMPARE(Text("tbResultados"), "Ejercicios:   0; Errores:   12.");
        const auto [numerator, denominator] = Solution();
        Choose("MnuOpcDifLis(0)");
        for (int i = 0; i < 10; ++i) {
            Verdict(numerator, denominator);
        }
        QCOMPARE(Text("tbResultados"), "Ejercicios:  10; Errores:   12.");
    }

    void the_term_itself_is_asked_for()
    {
        const auto [numerator, denominator] = Solution();
        const QString twice = QString::number(2 * numerator.toInt());
        QCOMPARE(Verdict(twice, QString::number(2 * denominator.toInt())), QStringList("Respuesta incorrecta"));
        QCOMPARE(Verdict(numerator, "0"), QStringList("Respuesta incorrecta"));
        QCOMPARE(Verdict(numerator + ".4", denominator), QStringList("Respuesta incorrecta"));
        QCOMPARE(Verdict(numerator, denominator + ".4"), QStringList("Respuesta incorrecta"));
        QCOMPARE(Verdict("999", denominator), QStringList("Respuesta incorrecta"));
        QCOMPARE(Verdict(" " + numerator + ".0", denominator + " o así"), QStringList("Respuesta correcta"));
    }

    void a_wrong_answer_leaves_the_focus()
    {
        Denominator(4).setFocus();
        Verdict("7", "8");
        QCOMPARE(Focus(), "Text2(4)");
        QCOMPARE(Numerator(4).text(), "7");
    }

    void after_the_solution_a_right_check_does_not_count()
    {
        const auto [numerator, denominator] = Solution();
        QCOMPARE(Focus(), "Text1(4)");
        QCOMPARE(Verdict(numerator, denominator), QStringList("Respuesta correcta"));
        QCOMPARE(Text("tbResultados"), "Ejercicios:   0; Errores:  0.");
        Verdict("", "");
        QCOMPARE(Text("tbResultados"), "Ejercicios:   0; Errores:  1.");
        Click("Command2(1)");
        Verdict(numerator, denominator);
        QCOMPARE(Text("tbResultados"), "Ejercicios:   0; Errores:  1."); // clearing does not change that
        Choose("MnuOpcTipLis(0)");
        Verdict(ByTheRule("Text1"), ByTheRule("Text2"));
        QCOMPARE(Text("tbResultados"), "Ejercicios:   0; Errores:  1."); // nor does the new series of a type
        Continue();
        QCOMPARE(Verdict(ByTheRule("Text1"), ByTheRule("Text2")), QStringList("Respuesta correcta"));
        QCOMPARE(Text("tbResultados"), "Ejercicios:   1; Errores:  1.");
    }

    // Keys and protected terms

    void every_key_empties_the_message_and_enter_checks()
    {
        for (QLineEdit* box : {&Numerator(0), &Denominator(2), &Numerator(4), &Denominator(4)}) {
            for (const Qt::Key key : {Qt::Key_5, Qt::Key_X, Qt::Key_Backspace, Qt::Key_Escape}) {
                Verdict("", "");
                box->setFocus();
                Press(key);
                QCOMPARE(Text("Text3"), "");
            }
            box->setFocus();
            Numerator(4).clear();
            Press(Qt::Key_Return);
            QCOMPARE(Text("Text3"), "Respuesta incorrecta");
            Press(Qt::Key_Left);
            QCOMPARE(Text("Text3"), "Respuesta incorrecta"); // no character
        }
    }

    void the_terms_shown_cannot_be_edited_and_say_so()
    {
        const auto before = std::pair(Numerators(), Denominators());
        for (int i = 0; i < 4; ++i) {
            for (QLineEdit* box : {&Numerator(i), &Denominator(i)}) {
                const QString value = box->text();
                box->setFocus();
                m_ear->Take();
                Type("7");
                QCOMPARE(m_ear->TakeSaid(), QStringList(value));
                for (const char* harmless : {"x", " "}) { // the number would be the same
                    Press(Qt::Key_End);
                    Type(harmless);
                    QCOMPARE(m_ear->TakeSaid(), QStringList(value));
                    QCOMPARE(box->text(), value);
                }
                Press(Qt::Key_Delete);
                Press(Qt::Key_A, Qt::ControlModifier);
                Press(Qt::Key_Backspace);
                QCOMPARE(box->text(), value);
                QVERIFY(!box->isReadOnly());
            }
        }
        QCOMPARE(std::pair(Numerators(), Denominators()), before);
        Numerator(4).setFocus();
        Type("7x");
        QCOMPARE(Numerator(4).text(), "7x");
    }

    // The buttons

    void the_buttons_lead_to_the_blank()
    {
        Verdict("1", "2");
        m_ear->Take();
        Press(Qt::Key_B, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command2(1)", "FOCUS Text1(4)"}));
        QCOMPARE(Numerator(4).text() + Denominator(4).text(), "");
        QCOMPARE(Text("Text3"), "Respuesta incorrecta");
        Press(Qt::Key_V, Qt::AltModifier);
        const QString solution = Words(Numerator(4).text().toInt(), Denominator(4).text().toInt());
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command2(2)", "FOCUS Text1(4)", "SAY " + solution}));
        QCOMPARE(Text("Text3"), "");
        Verdict("1", "2");
        Press(Qt::Key_C, Qt::AltModifier);
        m_ear->Take();
        QCOMPARE(Text("Text3"), "");
        QCOMPARE(Numerator(4).text() + Denominator(4).text(), "");
        QCOMPARE(Focus(), "Text1(4)");
    }

    void leaving_closes_the_screen()
    {
        Choose("MnuOpcSal");
        Settle();
        QVERIFY(!m_form);
    }
};

KELVORA_TEST_MAIN(tst_FormSeries)
#include "tst_FormSeries.moc"
