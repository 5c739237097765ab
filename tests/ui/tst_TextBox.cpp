#include "Look.h"
#include "SampleForm.h"
#include "Support.h"
#include "Timing.h"

#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>

using namespace support;
using ui::KeyResult;

class tst_TextBox : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<sample::Sample> m_sample;
    sample::SampleForm* m_form = nullptr;
    QMainWindow* m_window = nullptr;

    ui::TextBox& Editable() const { return m_form->All<ui::TextBox>("Text1")[0]; }
    ui::TextBox& Locked() const { return m_form->All<ui::TextBox>("Text1")[1]; }
    // How much is selected, a line end being two characters.
    static qsizetype SelectedIn(const ui::TextBox& box)
    {
        if (const auto* edit = qobject_cast<QLineEdit*>(&box.Widget())) {
            return edit->selectedText().size();
        }
        const QString selected = dynamic_cast<QPlainTextEdit&>(box.Widget()).textCursor().selectedText();
        return selected.size() + selected.count(QChar::ParagraphSeparator);
    }
    ui::TextArea& Lines() const { return m_form->The<ui::TextArea>("TbDesco"); }

private slots:
    void initTestCase()
    {
        // Nothing has changed the desktop's colours yet, and selected text can be read all the same.
        const QPalette colors = QApplication::palette();
        QVERIFY(ui::Contrast(colors.color(QPalette::Highlight), colors.color(QPalette::HighlightedText)) >= 4.5);
    }

    void init()
    {
        m_sample = std::make_unique<sample::Sample>();
        m_form = &m_sample->Form();
        m_window = m_sample->Window();
        m_sample->Open();
        QVERIFY(WaitActive(*m_window));
    }
    void cleanup() { m_sample.reset(); }

    void keeps_texts_of_several_lines_to_the_character_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addRow("rows") << "     |    \r\n     |    \r\n";
        QTest::addRow("lone CR") << "a\rb";
        QTest::addRow("lone LF") << "a\nb";
        QTest::addRow("LF CR") << "a\n\rb";
        QTest::addRow("CR CR LF") << "\r\r\n";
        QTest::addRow("ends with CR") << "ab\r";
        QTest::addRow("no-break space") << QString::fromUtf8("a\u00a0b");
        QTest::addRow("accents") << "ñandú\r\n¿?";
        QTest::addRow("empty") << "";
    }
    void keeps_texts_of_several_lines_to_the_character()
    {
        QFETCH(QString, text);
        Lines().Text(text.toStdString());
        QCOMPARE(QString::fromStdString(Lines().Text()), text);
        for (int at = 0; at <= text.size(); ++at) {
            if (at > 0 && at < text.size() && text.mid(at - 1, 2) == "\r\n") {
                continue; // no caret stands inside a line end
            }
            Lines().Select(at, 0);
            QCOMPARE(Lines().SelStart(), at);
            QCOMPARE(SelectedIn(Lines()), 0);
        }
        Lines().Select(0, static_cast<int>(text.size()));
        QCOMPARE(Lines().SelStart(), 0);
        QCOMPARE(SelectedIn(Lines()), qsizetype(text.size()));
    }

    void typed_line_ends_are_cr_and_lf()
    {
        Lines().Text("");
        Lines().SetFocus();
        Type("a");
        Press(Qt::Key_Return);
        Type("b");
        QCOMPARE(Lines().Text(), "a\r\nb");
        QCOMPARE(Lines().SelStart(), 4);
        QApplication::clipboard()->setText("1\n2");
        Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(Lines().Text(), "a\r\nb1\r\n2");
    }

    void a_held_enter_goes_on_ending_lines_in_a_box_of_several()
    {
        Lines().Text("");
        Lines().SetFocus();
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, "\r", true);
        QCoreApplication::sendEvent(&Lines().Widget(), &held);
        QCOMPARE(Lines().Text(), "\r\n");
    }

    void change_runs_at_once_for_another_text_and_not_for_the_same()
    {
        QStringList seen;
        for (ui::TextBox* box : std::initializer_list<ui::TextBox*>{&Editable(), &Lines()}) {
            seen.clear();
            box->OnChange = [&seen, box](int Index) {
                seen += QString("%1 %2").arg(Index).arg(QString::fromStdString(box->Text()));
            };
            box->Text("x");
            seen += "after";
            box->Text("x");
            QCOMPARE(seen, QStringList({QString("%1 x").arg(box->Index()), "after"}));
        }
    }

    void change_may_correct_the_text_nested()
    {
        int runs = 0;
        Editable().OnChange = [this, &runs](int) {
            ++runs;
            if (Editable().Number() > 10) {
                Editable().Text("10");
            }
        };
        Editable().Text("");
        Editable().SetFocus();
        runs = 0;
        Type("12");
        QCOMPARE(Editable().Text(), "10");
        QCOMPARE(runs, 3); // "1", "12" and, inside that, "10"
    }

    void key_press_gives_character_codes_on_locked_boxes_too()
    {
        for (ui::TextBox* box : std::initializer_list<ui::TextBox*>{&Editable(), &Locked(), &Lines()}) {
            QList<int> codes;
            box->OnKeyPress = [&codes](int, int KeyAscii) {
                codes += KeyAscii;
                return KeyResult::Swallow;
            };
            box->SetFocus();
            const std::string before = box->Text();
            Type("7aÑ");
            Press(Qt::Key_Backspace);
            Press(Qt::Key_Return);
            Press(Qt::Key_Enter);
            Press(Qt::Key_Return, Qt::ControlModifier);
            Press(Qt::Key_Escape);
            Press(Qt::Key_C, Qt::ControlModifier);
            Press(Qt::Key_Left);
            Press(Qt::Key_F5);
            QCOMPARE(codes, QList<int>({'7', 'a', 0xD1, 8, 13, 13, 13, 27, 3}));
            QCOMPARE(box->Text(), before);
        }
    }

    void key_down_comes_before_key_press_and_may_swallow_both()
    {
        QStringList seen;
        Editable().OnKeyDown = [&seen](int Index, int KeyCode, int Shift) {
            seen += QString("down %1 %2 %3").arg(Index).arg(KeyCode).arg(Shift);
            return KeyCode == '8' ? KeyResult::Swallow : KeyResult::Pass;
        };
        Editable().OnKeyPress = [&seen](int Index, int KeyAscii) {
            seen += QString("press %1 %2").arg(Index).arg(KeyAscii);
            return KeyResult::Pass;
        };
        Editable().Text("");
        Editable().SetFocus();
        Type("78");
        QCOMPARE(seen, QStringList({"down 0 55 0", "press 0 55", "down 0 56 0"}));
        QCOMPARE(Editable().Text(), "7");
    }

    void committed_input_passes_the_key_handler()
    {
        QList<int> codes;
        Editable().OnKeyPress = [&codes](int, int KeyAscii) {
            codes += KeyAscii;
            return KeyAscii == 'x' ? KeyResult::Swallow : KeyResult::Pass;
        };
        Editable().Text("");
        Editable().SetFocus();
        const auto commit = [](const QString& text) {
            QInputMethodEvent event;
            event.setCommitString(text);
            QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
        };
        commit(QString::fromUtf8("é"));
        commit("x");
        QCOMPARE(codes, QList<int>({0xE9, 'x'}));
        QCOMPARE(Editable().Text(), "é");
    }

    void tab_selects_nothing_and_puts_the_caret_at_the_start_after_the_focus_is_known()
    {
        Editable().SetFocus();
        Editable().Select(3, 0);
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(Focus(), "Text1(1)");
        Press(Qt::Key_Tab);
        QCOMPARE(Focus(), "Text1(0)");
        QCOMPARE(Editable().SelStart(), 3); // moved only when the focus event has gone out
        Settle();
        QCOMPARE(Editable().SelStart(), 0);
        QCOMPARE(SelectedIn(Editable()), 0);
        Press(Qt::Key_Tab);
        Editable().Select(3, 0);
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
        Settle();
        QCOMPARE(Editable().SelStart(), 0);
    }

    void a_locked_text_of_several_lines_begins_at_its_start_whenever_the_focus_comes()
    {
        Child<QPlainTextEdit>(*m_window, "TbDesco").setReadOnly(true);
        for (const Qt::FocusReason way : {Qt::TabFocusReason, Qt::BacktabFocusReason}) {
            Lines().SetFocus();
            Lines().Select(3, 0);
            Editable().SetFocus();
            Lines().Widget().setFocus(way);
            Settle();
            QCOMPARE(Lines().SelStart(), 0);
        }
    }

    void a_selection_made_right_after_a_tab_stays()
    {
        for (ui::TextBox* box : std::initializer_list<ui::TextBox*>{&Editable(), &Lines()}) {
            QApplication::focusWidget()->clearFocus();
            box->Widget().setFocus(Qt::TabFocusReason);
            box->Select(0, 2);
            Settle();
            QCOMPARE(box->SelStart(), 0);
            QCOMPARE(SelectedIn(*box), box == &Lines() ? 3 : 2); // the second character begins a line end
        }
    }

    void writing_tells_of_text_and_caret_only_where_the_focus_is()
    {
        static QStringList told;
        const auto previous = QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            switch (event->type()) {
            case QAccessible::TextCaretMoved:
            case QAccessible::TextInserted:
            case QAccessible::TextRemoved:
            case QAccessible::TextUpdated:
                told += event->object()->objectName();
                break;
            default:
                break;
            }
        });
        for (ui::TextBox* box : std::initializer_list<ui::TextBox*>{&Editable(), &Lines()}) {
            m_form->The<ui::Button>("CbUno").SetFocus();
            told.clear();
            box->Text("tres");
            QCOMPARE(told, QStringList());
            box->SetFocus();
            QTest::keyClick(&box->Widget(), Qt::Key_End);
            told.clear();
            box->Text("");
            QVERIFY(told.contains(box->Widget().objectName()));
        }
        QAccessible::installUpdateHandler(previous);
    }

    void selecting_tells_of_a_caret_only_where_the_focus_is()
    {
        static int told;
        const auto previous = QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            const auto type = event->type();
            told += type == QAccessible::TextCaretMoved || type == QAccessible::TextSelectionChanged ? 1 : 0;
        });
        m_form->The<ui::Button>("CbUno").SetFocus();
        told = 0;
        Editable().SelectAll();
        QCOMPARE(told, 0);
        QCOMPARE(SelectedIn(Editable()), 3);
        Editable().SetFocus();
        QCOMPARE(SelectedIn(Editable()), 3);
        told = 0;
        Editable().Select(1, 1);
        QVERIFY(told > 0);
        QAccessible::installUpdateHandler(previous);
    }

    void a_selection_that_the_screen_made_stays_on_arrival_by_tab()
    {
        Locked().SetFocus();
        Settle();
        Editable().SelectAll();
        Press(Qt::Key_Tab); // over the label to the box
        Settle();
        QCOMPARE(Focus(), "Text1(0)");
        QCOMPARE(SelectedIn(Editable()), 3);
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(SelectedIn(Editable()), 0); // gone with the pupil
    }

    void its_focus_handlers_run_when_the_focus_moves_and_not_for_a_menu_or_a_window()
    {
        QStringList ran;
        Editable().OnGotFocus = [&ran](int Index) { ran += QString("got %1").arg(Index); };
        Editable().OnValidate = [&ran](int Index) { ran += QString("left %1").arg(Index); };
        Locked().SetFocus();
        Editable().SetFocus();
        QCOMPARE(ran, QStringList("got 0"));
        for (const Qt::FocusReason reason :
             {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason, Qt::MenuBarFocusReason}) {
            QFocusEvent out(QEvent::FocusOut, reason);
            QCoreApplication::sendEvent(&Editable().Widget(), &out);
            QFocusEvent in(QEvent::FocusIn, reason);
            QCoreApplication::sendEvent(&Editable().Widget(), &in);
        }
        QCOMPARE(ran, QStringList("got 0"));
        Press(Qt::Key_Tab);
        QCOMPARE(ran, QStringList({"got 0", "left 0"}));
    }

    void what_its_focus_handlers_change_is_not_told_before_the_focus()
    {
        static QList<int> told;
        Editable().OnValidate = [this](int) { Lines().Text("nuevo"); };
        Lines().OnGotFocus = [this](int) { Lines().SelectAll(); };
        Editable().SetFocus();
        Settle();
        const auto previous =
            QAccessible::installUpdateHandler([](QAccessibleEvent* event) { told += static_cast<int>(event->type()); });
        Press(Qt::Key_Tab);
        QAccessible::installUpdateHandler(previous);
        QCOMPARE(Focus(), "TbDesco");
        QVERIFY(told.contains(int(QAccessible::Focus)));
        for (const auto type : {QAccessible::TextInserted, QAccessible::TextRemoved, QAccessible::TextUpdated,
                                QAccessible::TextCaretMoved, QAccessible::TextSelectionChanged}) {
            QVERIFY(!told.contains(int(type)) || told.indexOf(int(type)) > told.indexOf(int(QAccessible::Focus)));
        }
    }

    void committed_text_is_typed_but_for_what_its_handler_keeps()
    {
        Editable().Text("");
        Editable().SetFocus();
        Editable().OnKeyPress = [](int, int KeyAscii) {
            return KeyAscii == 'b' ? KeyResult::Swallow : KeyResult::Pass;
        };
        QInputMethodEvent commit;
        commit.setCommitString("abc");
        QCoreApplication::sendEvent(&Editable().Widget(), &commit);
        QCOMPARE(Editable().Text(), std::string("ac"));
    }

    void what_is_refused_beeps_and_says_the_line_of_the_caret()
    {
        Ear ear;
        Lines().SetFocus();
        Lines().Select(3, 0);
        ear.Take();
        Lines().Refuse();
        QCOMPARE(ear.Take(), QStringList({"BEEP", "SAY b"}));
        Editable().SetFocus();
        ear.Take();
        Editable().Refuse();
        QCOMPARE(ear.Take(), QStringList({"BEEP", "SAY uno"}));
    }

    void a_menu_or_another_window_leaves_the_selection_alone()
    {
        Editable().SetFocus();
        for (const Qt::FocusReason reason : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason}) {
            Editable().SelectAll();
            QFocusEvent out(QEvent::FocusOut, reason);
            QCoreApplication::sendEvent(&Editable().Widget(), &out);
            QCOMPARE(SelectedIn(Editable()), 3);
        }
        Locked().SetFocus();
        QCOMPARE(SelectedIn(Editable()), 0);
    }

    void an_exception_does_not_leave_the_reader_deaf()
    {
        static bool heard = false;
        const auto previous = QAccessible::installUpdateHandler([](QAccessibleEvent*) { heard = true; });
        bool thrown = false;
        try {
            ui::Silently([] { throw 1; });
        } catch (int) {
            thrown = true;
        }
        QVERIFY(thrown);
        QAccessibleEvent event(&Editable().Widget(), QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
        QAccessible::installUpdateHandler(previous);
        QVERIFY(heard);
    }

    void a_text_repeated_with_a_blank_is_drawn_as_it_was()
    {
        auto& box = m_form->The<ui::TextBox>("Text3");
        QWidget& widget = box.Widget();
        m_form->The<ui::Button>("CbUno").SetFocus();
        const auto picture = [&](const std::string& text) {
            box.Text(text);
            return widget.grab().toImage();
        };
        // The rows of the picture that are not all of one colour, apart from the edge.
        const auto rows = [](const QImage& image) {
            QList<int> written;
            for (int y = 2; y < image.height() - 2; ++y) {
                for (int x = 2; x < image.width() - 2; ++x) {
                    if (image.pixel(x, y) != image.pixel(2, 2)) {
                        written += y;
                        break;
                    }
                }
            }
            return written;
        };
        const std::string verdict = "Resultado incorrecto";
        QSet<qsizetype> heights;
        for (int width = 50; width < 200; ++width) {
            widget.resize(width, 36);
            const QImage plain = picture(verdict);
            QCOMPARE(picture(verdict + " "), plain);
            QCOMPARE(rows(picture(" " + verdict)), rows(plain));
            heights.insert(rows(plain).size());
        }
        QVERIFY(heights.size() > 2); // on one line and on two, in several sizes
    }

    void whatever_a_reader_asks_of_a_text_is_answered_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* text : {"", "7", "35", "+", "   ", " a ", "tres cuartos+dos cuartos= "}) {
            QTest::addRow("\"%s\"", text) << QString(text);
        }
    }
    void whatever_a_reader_asks_of_a_text_is_answered()
    {
        QFETCH(QString, text);
        Editable().Text(text.toStdString());
        const auto& box = *QAccessible::queryAccessibleInterface(&Editable().Widget())->textInterface();
        const auto length = static_cast<int>(text.size());
        int start = 0;
        int end = 0;
        for (const auto boundary :
             {QAccessible::CharBoundary, QAccessible::WordBoundary, QAccessible::SentenceBoundary,
              QAccessible::ParagraphBoundary, QAccessible::LineBoundary, QAccessible::NoBoundary}) {
            for (int offset = -1; offset <= length + 1; ++offset) {
                for (const auto ask :
                     {&QAccessibleTextInterface::textBeforeOffset, &QAccessibleTextInterface::textAtOffset,
                      &QAccessibleTextInterface::textAfterOffset}) {
                    const QString answer = (box.*ask)(offset, boundary, &start, &end);
                    QVERIFY2(text.contains(answer), qPrintable(answer));
                }
            }
        }
    }

    void a_reader_writes_into_a_box_that_is_open_and_into_no_other()
    {
        const auto write = [](const ui::TextBox& box) {
            QAccessible::queryAccessibleInterface(&box.Widget())->setText(QAccessible::Value, "siete");
            return box.Text();
        };
        QCOMPARE(write(Editable()), std::string("siete"));
        QCOMPARE(write(Locked()), std::string("dos"));
    }

    void a_reader_learns_the_word_of_the_caret()
    {
        Editable().Text("tres cuartos de 35");
        QAccessibleTextInterface* box = QAccessible::queryAccessibleInterface(&Editable().Widget())->textInterface();
        const auto word = [box](int offset) {
            int start = 0;
            int end = 0;
            const QString answer = box->textAtOffset(offset, QAccessible::WordBoundary, &start, &end);
            return QString("%1 %2-%3").arg(answer.trimmed()).arg(start).arg(end);
        };
        for (const int offset : {0, 2}) {
            QCOMPARE(word(offset), "tres 0-4");
        }
        QCOMPARE(word(5), "cuartos 5-12");
        QCOMPARE(word(14), "de 13-15");
        QCOMPARE(word(17), "35 16-18");
        QCOMPARE(word(18), "35 16-18"); // behind the last letter
    }

    void a_silent_box_can_be_announced()
    {
        Ear ear;
        Editable().Text("10");
        QCOMPARE(ear.TakeSaid(), QStringList());
        Editable().Say();
        QCOMPARE(ear.TakeSaid(), QStringList("10"));
    }

    void a_box_of_several_lines_shows_that_it_is_locked_or_in_focus()
    {
        auto& box = dynamic_cast<QPlainTextEdit&>(Lines().Widget());
        const auto edge = [&box] {
            const QImage picture = box.grab().toImage();
            return std::pair(picture.pixelColor(0, 10), picture.pixelColor(1, 10));
        };
        m_form->The<ui::Button>("CbUno").SetFocus();
        const QColor type = box.palette().color(QPalette::WindowText);
        const QColor inside = box.palette().color(QPalette::Base);
        QCOMPARE(edge(), std::pair(type, inside));
        QCOMPARE(inside, QApplication::palette().color(QPalette::Base));
        Lines().SetFocus();
        QCOMPARE(edge(), std::pair(type, type));
        box.setReadOnly(true);
        Lines().TakeColors();
        QCOMPARE(box.palette().color(QPalette::Base), QApplication::palette().color(QPalette::Window));
    }

    void keys_that_follow_a_tab_at_once_are_typed_in_their_order()
    {
        for (ui::TextBox* box : std::initializer_list<ui::TextBox*>{&Editable(), &Lines()}) {
            box->Text("");
            QApplication::focusWidget()->clearFocus();
            box->Widget().setFocus(Qt::TabFocusReason);
            Type("1");
            Settle();
            Type("2");
            QCOMPARE(box->Text(), "12");
        }
    }

    void letters_with_alt_that_nobody_answers_to_are_not_typed()
    {
        Editable().Text("");
        Editable().SetFocus();
        Press(Qt::Key_X, Qt::AltModifier);
        QCOMPARE(Editable().Text(), "");
        QKeyEvent altGr(QEvent::KeyPress, Qt::Key_At, Qt::ControlModifier | Qt::AltModifier, "@");
        QCOMPARE(ui::KeyAsciiOf(altGr), int('@'));
        QCOMPARE(ui::KeyAsciiOf(QKeyEvent(QEvent::KeyPress, Qt::Key_Return, Qt::AltModifier, "\r")), 0);
    }

    void numbers_are_read_leniently_and_written_plainly()
    {
        Editable().Text(" 1 2abc");
        QCOMPARE(Editable().Number(), 12.0);
        Editable().Text(-30000);
        QCOMPARE(Editable().Text(), "-30000");
    }

    void a_locked_box_shows_its_caret_and_can_be_walked()
    {
        Locked().SetFocus();
        auto& edit = Child<QLineEdit>(*m_window, "Text1(1)");
        QCOMPARE(edit.cursorPosition(), 0);
        Press(Qt::Key_Right);
        QCOMPARE(edit.cursorPosition(), 1);
        Press(Qt::Key_End);
        QCOMPARE(edit.cursorPosition(), 3);

        // The caret is painted, and so is the edge: dark, all round.
        const auto dark = [&edit](int x, int y) { return edit.grab().toImage().pixelColor(x, y).lightness() < 128; };
        QVERIFY(dark(edit.inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x(), edit.height() / 2));
        const auto edged = [&] {
            return dark(0, edit.height() / 2) && dark(edit.width() - 1, edit.height() / 2) &&
                   dark(edit.width() / 2, 0) && dark(edit.width() / 2, edit.height() - 1);
        };
        QVERIFY(edged());
        Editable().SetFocus();
        QVERIFY(!dark(edit.inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x(), edit.height() / 2));
        const auto grey = [&edit](int x, int y) {
            return edit.grab().toImage().pixelColor(x, y) != edit.palette().color(QPalette::Base);
        };
        QVERIFY(grey(0, edit.height() / 2) && grey(edit.width() - 1, edit.height() / 2)); // thinner, but there
    }

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    void the_box_itself_is_what_the_message_comes_from()
    {
        static QStringList sources;
        sources.clear();
        const auto previous = QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            if (event->type() == QAccessible::Announcement) {
                sources += event->object()->objectName();
            }
        });
        m_form->The<ui::TextBox>("TbMensajes").Text("uno");
        QCoreApplication::postEvent(qApp, new QEvent(QEvent::User));
        Settle();
        QAccessible::installUpdateHandler(previous);
        QCOMPARE(sources, QStringList("TbMensajes"));
    }
#endif

    void a_long_message_is_drawn_on_several_lines_while_unfocused()
    {
        auto& edit = Child<QLineEdit>(*m_window, "TbMensajes");
        m_form->The<ui::TextBox>("TbMensajes").Text("corto");
        const QImage brief = edit.grab().toImage();
        m_form->The<ui::TextBox>("TbMensajes").Text("noventa y nueve noventa y ochoavos+noventa y siete");
        const QImage long_ = edit.grab().toImage();
        const auto rows = [](const QImage& image) {
            int groups = 0;
            bool inside = false;
            for (int y = 3; y < image.height() - 3; ++y) {
                bool type = false;
                for (int x = 4; x < image.width() - 4; ++x) {
                    type = type || qGray(image.pixel(x, y)) < 100;
                }
                groups += type && !inside ? 1 : 0;
                inside = type;
            }
            return groups;
        };
        QCOMPARE(rows(brief), 1);
        QVERIFY(rows(long_) >= 2);
        QCOMPARE(edit.text(), "noventa y nueve noventa y ochoavos+noventa y siete");
    }

    void boxes_in_the_colours_of_selection_can_be_read_in_every_theme()
    {
        QPalette theme;
        for (const QColor background : {QColor(0x30, 0x8c, 0xc6), QColor(0x3d, 0xae, 0xe9), QColor(0, 0, 0x80)}) {
            theme.setColor(QPalette::Highlight, background);
            theme.setColor(QPalette::HighlightedText, Qt::white);
            QApplication::setPalette(theme);
            Settle();
            const QPalette colors = Child<QLineEdit>(*m_window, "Text3").palette();
            QCOMPARE(colors.color(QPalette::Base), background);
            QVERIFY(ui::Contrast(colors.color(QPalette::Base), colors.color(QPalette::Text)) >= 4.5);
        }
        QApplication::setPalette(QPalette());
    }

    void the_reader_gets_one_run_of_attributes_over_the_whole_text()
    {
        Editable().Text("12");
        auto* interface = QAccessible::queryAccessibleInterface(&Child<QLineEdit>(*m_window, "Text1(0)"));
        QCOMPARE(interface->role(), QAccessible::EditableText);
        QCOMPARE(interface->text(QAccessible::Value), "12");
        auto* text = interface->textInterface();
        QVERIFY(text != nullptr);
        QCOMPARE(text->text(0, 2), "12");
        QCOMPARE(text->characterCount(), 2);
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
        int start = -1;
        int end = -1;
        text->attributes(1, &start, &end);
        QCOMPARE(start, 0);
        QCOMPARE(end, 2);
#endif
    }

    void the_reader_selects_edits_and_finds_the_text()
    {
        Editable().Text("12");
        auto& box = Child<QLineEdit>(*m_window, "Text1(0)");
        auto* interface = QAccessible::queryAccessibleInterface(&box);
        QVERIFY(!interface->state().readOnly && interface->state().editable && interface->state().selectableText);
        auto* text = interface->textInterface();
        text->setCursorPosition(1);
        QCOMPARE(text->cursorPosition(), 1);
        QCOMPARE(text->selectionCount(), 0);
        int from = -1;
        int to = -1;
        text->addSelection(0, 2);
        text->selection(0, &from, &to);
        QCOMPARE(std::pair(from, to), std::pair(0, 2));
        QCOMPARE(text->selectionCount(), 1);
        text->setSelection(0, 1, 2);
        text->setSelection(1, 0, 2); // there is one at most
        text->removeSelection(1);
        QCOMPARE(box.selectedText(), "2");
        text->removeSelection(0);
        QVERIFY(!box.hasSelectedText());
        text->scrollToSubstring(2, 2);
        QCOMPARE(text->cursorPosition(), 2);

        int changes = 0;
        Editable().OnChange = [&changes](int) { ++changes; };
        auto* editing = interface->editableTextInterface();
        editing->insertText(2, "7");
        QCOMPARE(Editable().Text(), "127");
        QCOMPARE(changes, 1);
        editing->deleteText(0, 1);
        QCOMPARE(Editable().Text(), "27");
        editing->replaceText(0, 1, "35");
        QCOMPARE(Editable().Text(), "357");

        const QRect inside(box.mapToGlobal(QPoint()), box.size());
        for (int offset = 0; offset < 3; ++offset) {
            const QRect character = text->characterRect(offset);
            QVERIFY(inside.contains(character) && character.width() > 1 && character.height() > 5);
            QVERIFY(offset == 0 || std::abs(character.left() - text->characterRect(offset - 1).right()) <= 1);
            QCOMPARE(text->offsetAtPoint(character.center() - QPoint(1, 0)), offset);
        }
    }

    void the_reader_cannot_change_a_locked_box()
    {
        auto* interface = QAccessible::queryAccessibleInterface(&Child<QLineEdit>(*m_window, "Text1(1)"));
        QVERIFY(interface->state().readOnly);
        interface->editableTextInterface()->insertText(0, "7");
        interface->editableTextInterface()->deleteText(0, 1);
        QCOMPARE(Child<QLineEdit>(*m_window, "Text1(1)").text(), "dos");
    }
};

KELVORA_TEST_MAIN(tst_TextBox)
#include "tst_TextBox.moc"
