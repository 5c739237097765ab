#include "Draws.h"
#include "FormFichas.h"
#include "Screen.h"

#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRegularExpression>

using namespace support;

namespace {

struct Board
{
    int red = 0;
    int yellow = 0;
    int green = 0;
    int total = 0;

    bool operator==(const Board&) const = default;
};

} // namespace

class tst_FormFichas : public QObject, private Screen
{
    Q_OBJECT

private:
    QPushButton& Token(int index) const { return Member<QPushButton>("CBFicha", index); }
    QLineEdit& Answer(int index) const { return Member<QLineEdit>("TBFrac", index); }
    QString Counts() const { return Child<QLabel>(*m_form, "Label1").text(); }
    QString Score() const { return Child<QLabel>(*m_form, "Label2").text(); }

    // The board as told in words.
    Board Told() const
    {
        static const QRegularExpression form(R"(^Rojas: (\d+); Amarillas: (\d+); Verdes: (\d+); Total: (\d+)\.$)");
        const QRegularExpressionMatch match = form.match(Counts());
        if (!match.hasMatch()) {
            return {};
        }
        return {match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt(),
                match.captured(4).toInt()};
    }

    // The colours of the shown tokens in their order: "raav".
    QString Colours() const
    {
        QString seen;
        for (int i = 0; i < 25 && Token(i).isVisible(); ++i) {
            const QColor face = Token(i).grab().toImage().pixelColor(4, 4);
            seen += face == QColor(255, 0, 0)     ? 'r'
                    : face == QColor(255, 255, 0) ? 'a'
                    : face == QColor(0, 255, 0)   ? 'v'
                                                  : '?';
        }
        return seen;
    }

    QStringList Right() const
    {
        const Board board = Told();
        const QString total = QString::number(board.total);
        return {QString::number(board.red),   total, QString::number(board.yellow), total,
                QString::number(board.green), total};
    }

    QStringList Answered() const
    {
        QStringList texts;
        for (int i = 0; i < 6; ++i) {
            texts += Answer(i).text();
        }
        return texts;
    }

    // Fills the boxes and checks; what is heard.
    QStringList Verdict(const QStringList& answers) const
    {
        for (int i = 0; i < 6; ++i) {
            Answer(i).setText(answers.value(i));
        }
        m_ear->Take();
        Button("Command1").click();
        return m_ear->TakeSaid();
    }

    // Continues with a board of 2 red tokens of 4.
    void SeekHalfRed() const
    {
        DrawNext({1, 1, 1, 0});
        Continue();
        QCOMPARE(Told(), (Board{2, 1, 1, 4}));
    }

    void VerifyGrid(int columns, int rows) const
    {
        const QSize whole = Child<QWidget>(*m_form, "Picture1").size();
        const double width = 3800.0 / columns;
        const double height = 4800.0 / rows;
        int area = 0;
        for (int i = 0; i <= 25; ++i) {
            const bool shown = i < columns * rows;
            QCOMPARE(Token(i).isVisible(), shown);
            if (shown) {
                QVERIFY(Token(i).isEnabled());
                const int column = i % columns;
                const int row = i / columns;
                QVERIFY(StandsAt(Token(i).objectName(), column * width, row * height, width, height));
                QVERIFY(Token(i).width() >= 24 && Token(i).height() >= 24);
                area += Token(i).width() * Token(i).height();
            } else if (i < 25) {
                QVERIFY(!Token(i).isEnabled());
                QCOMPARE(Token(i).pos(), QPoint(whole.width(), whole.height()));
            }
        }
        QCOMPARE(area, whole.width() * whole.height());
    }

private slots:
    void init()
    {
        numeros::FijarSemilla(7);
        OpenScreen(std::make_unique<ejercicios::FormFichas>());
    }
    void cleanup() { CloseScreen(); }

    // Opening

    void opens_with_the_counts_heard()
    {
        QCOMPARE(m_form->windowTitle(), "Expresa con fracciones");
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Text1", "SAY " + Counts()}));
        QCOMPARE(Child<QPlainTextEdit>(*m_form, "Text1").toPlainText(),
                 "Expresa con una fracción la parte que representa cada color\n");
        QCOMPARE(Score(), "Ejercicios: 0. Errores: 0.");
        QCOMPARE(Text("TBResultado"), "");
        QCOMPARE(Answered().join(""), "");
        QCOMPARE(Token(0).text(), ""); // no letters yet
        QVERIFY(m_form->menuBar()->actions().isEmpty());
    }

    void frames_have_caption_colour_and_their_two_boxes()
    {
        const QStringList captions{"ROJO", "AMARILLO", "VERDE"};
        const std::array<QColor, 3> colours{QColor(255, 0, 0), QColor(255, 255, 0), QColor(0, 255, 0)};
        for (int i = 0; i < 3; ++i) {
            auto& frame = Member<QGroupBox>("Frame1", i);
            QCOMPARE(frame.title(), captions[i]);
            QCOMPARE(frame.grab().toImage().pixelColor(5, frame.height() - 5), colours.at(i));
            const QRect above = Answer(2 * i).geometry();
            const QRect below = Answer(2 * i + 1).geometry();
            const QRect bar = Member<QWidget>("Line1", i).geometry();
            QCOMPARE(Answer(2 * i).parentWidget(), &frame);
            QCOMPARE(Answer(2 * i + 1).parentWidget(), &frame);
            QVERIFY(frame.rect().contains(above) && frame.rect().contains(below));
            QVERIFY(above.bottom() < bar.top() && bar.bottom() < below.top());
            QVERIFY(QFontMetrics(frame.font()).horizontalAdvance(captions[i]) < frame.width());
            QVERIFY(above.top() > QFontMetrics(frame.font()).height()); // beneath the caption
        }
    }

    void tab_goes_from_the_instruction_to_the_answers_and_last_to_the_tokens()
    {
        QStringList order{"Text1"};
        for (int i = 0; i < 6; ++i) {
            order += QString("TBFrac(%1)").arg(i);
        }
        order += {"Command1", "TBResultado", "Command2(0)", "Command2(1)", "Command2(2)"};
        for (int i = 0; i < Told().total; ++i) {
            order += QString("CBFicha(%1)").arg(i);
        }
        QCOMPARE(TabRound(), order);
    }

    // The board

    void draws_by_its_rule()
    {
        const auto rule = [] {
            const auto board = reglas::Tablero::Sortear();
            return Board{board.Rojas, board.Amarillas, board.Verdes, board.Total()};
        };
        VerifyDraws(20, rule, [this] { return Told(); });
    }

    // The pixels of each.
    void every_grid_has_its_tokens_in_their_colours()
    {
        for (int columns = 1; columns <= 5; ++columns) {
            for (int rows = 1; rows <= 5; ++rows) {
                if (columns * rows < 3) {
                    continue;
                }
                DrawNext({columns - 1, rows - 1, (columns * rows - 3) / 2, 0});
                Continue();
                VerifyGrid(columns, rows);
                const Board board = Told();
                QCOMPARE(board.total, columns * rows);
                QCOMPARE(Colours(), QString(board.red, 'r') + QString(board.yellow, 'a') + QString(board.green, 'v'));
                QVERIFY(!Token(25).isVisible()); // the last one is never used
            }
        }
    }

    void letters_come_and_go_with_l_from_anywhere()
    {
        for (const char* from : {"Text1", "TBFrac(0)", "Command2(1)", "CBFicha(0)"}) {
            for (const Qt::KeyboardModifiers held :
                 {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ShiftModifier),
                  Qt::KeyboardModifiers(Qt::ControlModifier), Qt::KeyboardModifiers(Qt::AltModifier)}) {
                Child<QWidget>(*m_form, from).setFocus();
                const Board board = Told();
                m_ear->Take();
                Press(Qt::Key_L, held);
                QCOMPARE(m_ear->TakeSaid(), QStringList(Counts()));
                QString letters;
                for (int i = 0; i < board.total; ++i) {
                    letters += Token(i).text();
                }
                QCOMPARE(letters, QString(board.red, 'R') + QString(board.yellow, 'A') + QString(board.green, 'V'));
                Press(Qt::Key_L, held);
                QCOMPARE(Token(0).text(), "");
                QCOMPARE(Told(), board);
                QCOMPARE(Focus(), from);
            }
        }
        QCOMPARE(Answer(0).text().toLower(), "llll"); // the key is typed all the same
    }

    void letters_stay_for_the_next_board()
    {
        Press(Qt::Key_L);
        Continue();
        QCOMPARE(Token(0).text(), "R");
    }

    void a_token_says_its_colour_with_and_without_letters()
    {
        for (int exercise = 0; exercise < 20; ++exercise) {
            const Board board = Told();
            const int yellow = board.red;
            const int green = board.red + board.yellow;
            for (int round = 0; round < 2; ++round) {
                for (int i = 0; i < green + board.green; ++i) {
                    const QString colour = i < yellow ? "roja" : i < green ? "amarilla" : "verde";
                    QCOMPARE(Name(QString("CBFicha(%1)").arg(i)), QString("ficha %1 %2").arg(colour).arg(i + 1));
                }
                Press(Qt::Key_L);
            }
            Continue();
        }
    }

    void a_token_pressed_by_a_reader_leaves_the_answer_in_focus_silent()
    {
        Answer(0).setFocus();
        m_ear->Take();
        Token(1).click();
        QCOMPARE(m_ear->Take(), QStringList());
    }

    void pressing_a_token_does_nothing()
    {
        Token(0).setFocus();
        m_ear->Take();
        Press(Qt::Key_Space);
        QCOMPARE(m_ear->Take(), QStringList());
        QCOMPARE(Score(), "Ejercicios: 0. Errores: 0.");
    }

    // Checking

    void three_grades_of_verdict()
    {
        QCOMPARE(Verdict({}), QStringList("Respuesta incorrecta"));
        QCOMPARE(Score(), "Ejercicios: 1. Errores: 1.");
        QStringList some = Right();
        some[5] = "0";
        QCOMPARE(Verdict(some), QStringList("Hay algunos valores incorrectos en la respuesta "));
        QCOMPARE(Score(), "Ejercicios: 2. Errores: 2.");
        QCOMPARE(Verdict({Right()[0]}), QStringList(" Hay algunos valores incorrectos en la respuesta "));
        QCOMPARE(Score(), "Ejercicios: 3. Errores: 3.");
        QCOMPARE(Verdict(Right()), QStringList("Respuesta correcta"));
        QCOMPARE(Score(), "Ejercicios: 4. Errores: 3.");
        QCOMPARE(Focus(), "Command2(0)");
    }

    void each_single_box_is_compared()
    {
        for (int box = 0; box < 6; ++box) {
            QStringList answers = Right();
            for (const QString& wrong : {QString("99"), Right()[box] + ".4"}) {
                answers[box] = wrong;
                QVERIFY(Verdict(answers).front().contains("Hay algunos"));
            }
            QStringList one(6, "99");
            one[box] = Right()[box];
            QVERIFY(Verdict(one).front().contains("Hay algunos"));
        }
    }

    void every_check_counts_an_exercise_right_or_wrong()
    {
        Verdict(Right());
        Verdict(Right());
        Verdict({});
        QCOMPARE(Score(), "Ejercicios: 3. Errores: 1.");
    }

    void an_equivalent_fraction_is_wrong()
    {
        SeekHalfRed();
        QStringList answers = Right();
        answers[0] = "1";
        answers[1] = "2";
        QCOMPARE(Verdict(answers), QStringList("Hay algunos valores incorrectos en la respuesta "));
        answers[0] = "2.0";
        answers[1] = "4 fichas";
        QCOMPARE(Verdict(answers), QStringList("Respuesta correcta"));
    }

    void a_repeated_verdict_gets_a_blank_in_front_that_goes_again()
    {
        QCOMPARE(Verdict({}), QStringList("Respuesta incorrecta"));
        QCOMPARE(Verdict({}), QStringList(" Respuesta incorrecta"));
        QCOMPARE(Verdict({}), QStringList("Respuesta incorrecta"));
    }

    void a_wrong_answer_leaves_the_focus_and_the_boxes()
    {
        Answer(3).setFocus();
        Verdict({"7"});
        QCOMPARE(Focus(), "TBFrac(3)");
        QCOMPARE(Answer(0).text(), "7");
    }

    void enter_in_an_answer_does_not_check()
    {
        Answer(0).setFocus();
        Press(Qt::Key_Return);
        QCOMPARE(Score(), "Ejercicios: 0. Errores: 0.");
        QCOMPARE(Text("TBResultado"), "");
    }

    void the_verdict_is_heard_after_the_focus()
    {
        Verdict({});
        const QStringList right = Right();
        for (int i = 0; i < 6; ++i) {
            Answer(i).setText(right[i]);
        }
        m_ear->Take();
        Press(Qt::Key_H, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command1", "FOCUS Command2(0)", "SAY Respuesta correcta"}));
    }

    // The buttons

    void continue_draws_anew_and_keeps_the_message()
    {
        Verdict({"1", "2", "3", "4", "5", "6"});
        const QString message = Text("TBResultado");
        m_ear->Take();
        Press(Qt::Key_C, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command2(0)", "FOCUS TBFrac(0)", "SAY " + Counts()}));
        QCOMPARE(Answered().join(""), "");
        QCOMPARE(Text("TBResultado"), message);
    }

    void clear_empties_the_six_boxes()
    {
        const Board board = Told();
        Verdict({"1", "2", "3", "4", "5", "6"});
        m_ear->Take();
        Press(Qt::Key_B, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command2(1)", "FOCUS TBFrac(0)"}));
        QCOMPARE(Answered().join(""), "");
        QCOMPARE(Told(), board);
    }

    void after_the_solution_right_answers_do_not_count_and_wrong_ones_are_errors()
    {
        Button("Command2(2)").setFocus();
        m_ear->Take();
        Press(Qt::Key_Return);
        QCOMPARE(m_ear->Take(), QStringList("FOCUS TBFrac(0)"));
        QCOMPARE(Answered(), Right());
        QCOMPARE(Text("TBResultado"), "");
        QCOMPARE(Verdict(Right()), QStringList("Respuesta correcta"));
        QCOMPARE(Score(), "Ejercicios: 0. Errores: 0.");
        Verdict({});
        QCOMPARE(Score(), "Ejercicios: 0. Errores: 1.");
        const QString message = Text("TBResultado");
        Click("Command2(1)");
        Click("Command2(2)");
        QCOMPARE(Text("TBResultado"), message);
        Click("Command2(1)");
        Verdict(Right());
        QCOMPARE(Score(), "Ejercicios: 0. Errores: 1."); // clearing does not let it count again
        Press(Qt::Key_L);
        Verdict(Right());
        QCOMPARE(Score(), "Ejercicios: 1. Errores: 1."); // the letters do
    }

    void a_new_board_counts_again_after_a_solution()
    {
        Click("Command2(2)");
        Continue();
        Verdict(Right());
        QCOMPARE(Score(), "Ejercicios: 1. Errores: 0.");
    }

    void every_board_is_solved_by_its_solution()
    {
        for (int i = 0; i < 300; ++i) {
            Continue();
            Button("Command2(2)").click();
            QCOMPARE(Answered(), Right());
            Button("Command1").click();
            QVERIFY(Text("TBResultado").contains("Respuesta correcta"));
        }
    }

    void the_seed_is_the_timer()
    {
        VerifySeedOfTheTimer([] { return std::make_unique<ejercicios::FormFichas>(); }, [this] { return Counts(); });
    }
};

KELVORA_TEST_MAIN(tst_FormFichas)
#include "tst_FormFichas.moc"
