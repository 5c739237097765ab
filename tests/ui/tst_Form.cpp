#include "Entero16.h"
#include "Look.h"
#include "Menu.h"
#include "SampleForm.h"
#include "Support.h"

#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QWindow>

using namespace support;
using ui::KeyResult;

class tst_Form : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<sample::Sample> m_sample;
    sample::SampleForm* m_form = nullptr;
    QPointer<QMainWindow> m_window;

    void Make(ui::Menus menus = sample::menus)
    {
        m_sample = std::make_unique<sample::Sample>(menus);
        m_form = &m_sample->Form();
        m_window = m_sample->Window();
    }
    void Open(ui::Modality modality = ui::Modality::Modeless, const ui::Form* opener = nullptr)
    {
        m_sample->Open(modality, opener);
        QVERIFY(WaitActive(*m_window));
    }
    ui::TextBox& Box(std::string_view name) const { return m_form->The<ui::TextBox>(name); }

private slots:
    void init() { Make(); }
    void cleanup()
    {
        m_sample.reset();
        Settle();
    }

    void opens_as_a_window_of_its_size_with_the_menu_bar_on_top()
    {
        Open();
        QCOMPARE(m_window->centralWidget()->size(), QSize(220, 400));
        QCOMPARE(m_window->height(), 400 + m_window->menuBar()->height());
        QCOMPARE(m_window->windowTitle(), "Muestra");
        QCOMPARE(QAccessible::queryAccessibleInterface(m_window)->role(), QAccessible::Window);
    }

    void is_not_painted_anew_when_the_pointer_comes()
    {
        Open();
        QVERIFY(!m_window->testAttribute(Qt::WA_Hover)); // upon which a Qt without docks paints it
    }

    void a_screen_without_menus_has_no_menu_bar()
    {
        Make({});
        Open();
        QVERIFY(m_window->menuWidget() == nullptr);
        QVERIFY(m_window->findChildren<QMenuBar*>().isEmpty());
        const QAccessibleInterface* tree = QAccessible::queryAccessibleInterface(m_window);
        for (int i = 0; i < tree->childCount(); ++i) {
            QVERIFY(tree->child(i)->role() != QAccessible::MenuBar);
        }
        const QString before = Focus();
        Press(Qt::Key_Alt);
        Press(Qt::Key_O, Qt::AltModifier);
        QCOMPARE(Focus(), before);
    }

    void menus_that_are_closed_from_outside_give_the_focus_back()
    {
        Open();
        const QString before = Focus();
        Press(Qt::Key_O, Qt::AltModifier);
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        QVERIFY(Focus() != before);
        ui::CloseMenus();
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QCOMPARE(Focus(), before);
    }

    void its_places_are_exact_at_the_size_in_which_it_opens()
    {
        Open();
        for (const ui::ControlDesign& design : sample::controls) {
            const QString name = QString::fromUtf8(design.name.data(), static_cast<qsizetype>(design.name.size())) +
                                 (design.index < 0 ? QString() : QString("(%1)").arg(design.index));
            if (design.inside.empty()) { // inside a box, edges may be rounded into it
                QCOMPARE(Child<QWidget>(*m_window, name).geometry(), ui::ToPixels(design.place, 1));
            }
        }
        // Twice as large, everything is.
        m_window->resize(440, 800 + m_window->menuBar()->height());
        Settle();
        QCOMPARE(Child<QWidget>(*m_window, "TbMensajes").geometry(), ui::ToPixels({100, 3400, 2600, 400}, 2));
    }

    void opens_with_the_focus_on_the_first_control()
    {
        Open();
        QCOMPARE(Focus(), "Text1(1)");
        QCOMPARE(m_form->ActiveControl()->Name(), "Text1");
        QCOMPARE(m_form->ActiveControl()->Index(), 1);
    }

    void a_screen_reader_that_comes_late_is_told_where_the_focus_is()
    {
        SetReader(false);
        Open();
        Ear ear;
        SetReader(true);
        QVERIFY(ear.TakeActive(*m_window));
        QCOMPARE(ear.Take(), QStringList("FOCUS Text1(1)"));
    }

    void loading_may_put_the_focus_elsewhere()
    {
        m_form->OnLoad = [this] { m_form->The<ui::Button>("CbUno").SetFocus(); };
        Open();
        QCOMPARE(Focus(), "CbUno");
    }

    void a_modal_screen_blocks_the_others()
    {
        sample::Sample other;
        other.Open();
        QVERIFY(WaitActive(*other.Window()));
        int clicks = 0;
        other.Form().The<ui::Button>("CbUno").OnClick = [&clicks](int) { ++clicks; };
        const QWidget& button = Child<QWidget>(*other.Window(), "CbUno");
        const QPoint place = button.mapTo(other.Window(), button.rect().center());
        QTest::mouseClick(other.Window()->windowHandle(), Qt::LeftButton, {}, place);
        QCOMPARE(clicks, 1);
        Open(ui::Modality::Modal, &other.Form());
        QCOMPARE(QApplication::activeModalWidget(), m_window.data());
        QTest::mouseClick(other.Window()->windowHandle(), Qt::LeftButton, {}, place);
        QTest::keyClick(other.Window()->windowHandle(), Qt::Key_Return);
        QCOMPARE(clicks, 1);
    }

    void a_modal_screen_belongs_to_the_one_that_it_blocks()
    {
        sample::Sample menu;
        menu.Open();
        QVERIFY(WaitActive(*menu.Window()));
        QCOMPARE(ui::Form::FrontWindow(), menu.Window());
        Open(ui::Modality::Modal, &menu.Form());
        QCOMPARE(m_window->windowHandle()->transientParent(), menu.Window()->windowHandle());
        QCOMPARE(m_window->windowHandle()->type(), Qt::Dialog); // or X11 would not be told of it
        QVERIFY(!m_window->windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
        QVERIFY(m_window->windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
        QVERIFY(m_window->windowFlags().testFlag(Qt::WindowCloseButtonHint));
        QCOMPARE(QAccessible::queryAccessibleInterface(m_window)->role(), QAccessible::Window);
        Press(Qt::Key_Escape);
        QVERIFY(m_window->isVisible());
        QCOMPARE(ui::Form::FrontWindow(), m_window.data());
    }

    void a_modeless_screen_belongs_to_none()
    {
        sample::Sample menu;
        menu.Open();
        QVERIFY(WaitActive(*menu.Window()));
        Open();
        QVERIFY(m_window->windowHandle()->transientParent() == nullptr);
        QCOMPARE(m_window->windowHandle()->type(), Qt::Window);
    }

    void asking_for_a_blocked_screen_brings_the_modal_one()
    {
        sample::Sample menu;
        menu.Open();
        QVERIFY(WaitActive(*menu.Window()));
        Open(ui::Modality::Modal, &menu.Form());
        m_window->showMinimized();
        QEvent asked(QEvent::WindowActivate); // a desktop that knows of blocked windows does not send it
        QCoreApplication::sendEvent(menu.Window(), &asked);
        QTRY_VERIFY(!m_window->isMinimized());
        QVERIFY(WaitActive(*m_window));
    }

    // As where a desktop does not know the two for one and lets no window come forward.
    void a_modal_screen_that_cannot_come_to_the_front_opens_once_more()
    {
        sample::Sample menu;
        menu.Open();
        QVERIFY(WaitActive(*menu.Window()));
        Open(ui::Modality::Modal, &menu.Form());
        QVERIFY(WaitActive(*m_window));
        const QString focus = Focus();
        m_window->windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus);
        const QSignalSpy shown(m_window->windowHandle(), &QWindow::visibleChanged);
        menu.Window()->activateWindow();
        QTRY_VERIFY(menu.Window()->isActiveWindow());
        QTRY_COMPARE(shown.size(), 2); // away, and there again
        QVERIFY(WaitActive(*m_window));
        QCOMPARE(Focus(), focus);
    }

    void every_object_bears_its_name()
    {
        for (const char* name : {"Label1", "Text1(0)", "Text1(1)", "TbDesco", "Frame1", "TBFrac", "Line1", "TbMensajes",
                                 "Command2(0)", "Command2(1)"}) {
            Child<QWidget>(*m_window, name);
        }
        for (const char* name : {"MnuOpc", "MnuOpcDen", "MnuOpcDenLis(0)", "MnuOpcDenLis(1)", "MnuOpcLee", "MnuAce"}) {
            Child<QAction>(*m_window, name);
        }
    }

    void accessible_names_are_those_given_and_not_the_frames()
    {
        const auto name = [this](const char* control) {
            return QAccessible::queryAccessibleInterface(&Child<QWidget>(*m_window, control))->text(QAccessible::Name);
        };
        QCOMPARE(name("TBFrac"), "Numerador rojo");
        QCOMPARE(name("Text1(0)"), "Primera caja");
        QCOMPARE(name("Command2(0)"), "Continuar");
        QCOMPARE(name("Command2(1)"), "7 - 9");
        QCOMPARE(QAccessible::queryAccessibleInterface(&Child<QWidget>(*m_window, "Line1"))->role(),
                 QAccessible::Separator);
    }

    void controls_of_a_frame_lie_inside_it()
    {
        Open();
        QCOMPARE(Child<QWidget>(*m_window, "TBFrac").parentWidget(), &Child<QWidget>(*m_window, "Frame1"));
        QCOMPARE(Child<QWidget>(*m_window, "TBFrac").pos(), QPoint(13, 27));
        const QImage frame = Child<QWidget>(*m_window, "Frame1").grab().toImage();
        QCOMPARE(frame.pixelColor(frame.width() - 10, frame.height() - 10), QColor(255, 0, 0));
    }

    void a_labels_access_key_leads_to_the_next_control()
    {
        Open();
        Press(Qt::Key_P, Qt::AltModifier);
        QCOMPARE(Focus(), "Text1(0)");
    }

    void the_name_of_a_label_has_no_ampersand()
    {
        Open();
        const auto name = [this] {
            return QAccessible::queryAccessibleInterface(&Child<QLabel>(*m_window, "Label1"))->text(QAccessible::Name);
        };
        QCOMPARE(name(), "Partes:");
        m_form->The<ui::Label>("Label1").Caption("Par&tes:");
        QCOMPARE(name(), "Partes:");
    }

    void a_spoken_label_announces_what_is_written_to_it()
    {
        Open();
        Ear ear;
        m_form->The<ui::Label>("LbCuenta").Caption("Rojas: 2.");
        QCOMPARE(ear.TakeSaid(), QStringList("Rojas: 2."));
        m_form->The<ui::Label>("LbCuenta").Caption("Rojas: 2.");
        QCOMPARE(ear.TakeSaid(), QStringList("Rojas: 2."));
        m_form->The<ui::Label>("Label1").Caption("Otra:");
        QCOMPARE(ear.TakeSaid(), QStringList());
    }

    void the_type_of_a_label_shrinks_until_its_text_fits()
    {
        Open();
        const int before = Child<QLabel>(*m_window, "LbCuenta").font().pixelSize();
        m_form->The<ui::Label>("LbCuenta").Caption("Rojas: 12; Total: 25.");
        const auto& label = Child<QLabel>(*m_window, "LbCuenta");
        for (const int wider : {0, 1}) {
            m_window->resize(m_window->width() + wider, m_window->height());
            Settle();
            QVERIFY(label.font().pixelSize() < before);
            const QRect drawn = QFontMetrics(label.font()).boundingRect(label.rect(), Qt::TextWordWrap, label.text());
            QVERIFY(label.rect().contains(drawn));
        }
    }

    void the_cells_of_a_picture_box_share_their_edges()
    {
        Open();
        const auto& picture = m_form->The<ui::Picture>("Picture1");
        QCOMPARE(QAccessible::queryAccessibleInterface(&picture.Widget())->role(), QAccessible::Grouping);
        for (const int columns : {1, 2, 3, 5}) {
            for (const int rows : {1, 4, 7}) {
                for (int column = 0; column < columns; ++column) {
                    for (int row = 0; row < rows; ++row) {
                        const ui::Place cell = picture.Cell(columns, rows, column, row);
                        const ui::Place next = picture.Cell(columns, rows, column + 1, row + 1);
                        QCOMPARE(cell.left + cell.width, next.left);
                        QCOMPARE(cell.top + cell.height, next.top);
                        QVERIFY(std::abs(cell.width - 1000.0 / columns) < 1);
                        QVERIFY(std::abs(cell.height - 500.0 / rows) < 1);
                    }
                }
                const ui::Place last = picture.Cell(columns, rows, columns - 1, rows - 1);
                QCOMPARE(last.left + last.width, picture.ScaleWidth());
                QCOMPARE(last.top + last.height, picture.ScaleHeight());
            }
        }
    }

    void a_control_can_be_out_of_sight_and_out_of_the_tab_order()
    {
        Open();
        m_form->The<ui::TextBox>("TBFrac").Visible(false);
        Box("TbDesco").SetFocus();
        Press(Qt::Key_Tab);
        QCOMPARE(Focus(), "TbMensajes");
        m_form->The<ui::TextBox>("TBFrac").Visible(true);
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(Focus(), "TBFrac");
    }

    void tab_leaves_boxes_of_several_lines()
    {
        Open();
        Box("TbDesco").SetFocus();
        Press(Qt::Key_Tab);
        QCOMPARE(Focus(), "TBFrac");
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(Focus(), "Text1(0)");
        QCOMPARE(Box("TbDesco").Text(), "a\r\nb");
    }

    void sees_every_key_before_the_control_once()
    {
        QStringList seen;
        m_form->OnKeyDown = [&seen](int code, int shift) {
            if (code != 0) { // not the modifier keys themselves
                seen += QString("%1/%2").arg(code).arg(shift);
            }
            return KeyResult::Pass;
        };
        Open();
        for (const char* name : {"Text1(0)", "Text1(1)", "TbDesco", "TBFrac", "Command2(0)"}) {
            Child<QWidget>(*m_window, name).setFocus();
            seen.clear();
            Press(Qt::Key_F2);
            Press(Qt::Key_L, Qt::ShiftModifier);
            Press(Qt::Key_R, Qt::ControlModifier);
            Press(Qt::Key_Delete);
            Press(Qt::Key_L, Qt::ControlModifier); // which no box handles
            QCOMPARE(seen, QStringList({"113/0", "76/1", "82/2", "46/0", "76/2"}));
        }
    }

    void may_swallow_a_key_before_the_control_gets_it()
    {
        m_form->OnKeyDown = [](int code, int) { return code == 'A' ? KeyResult::Swallow : KeyResult::Pass; };
        Open();
        Box("TBFrac").SetFocus();
        Type("abca");
        QCOMPARE(Box("TBFrac").Text(), "bc");
    }

    void says_what_loading_wrote_once_and_after_the_focus()
    {
        Ear ear;
        m_form->OnLoad = [this] {
            Box("TbMensajes").Text("primero");
            Box("TbMensajes").Text("tres cuartos");
            Box("Text3").Text("Hola");
        };
        m_sample->Open();
        QVERIFY(WaitActive(*m_window));
        QCOMPARE(ear.Take(), QStringList({"FOCUS Text1(1)", "SAY tres cuartos Hola"}));
    }

    void says_the_texts_of_one_event_together_after_all_focus_changes()
    {
        m_form->The<ui::Button>("CbUno").OnClick = [this](int) {
            Box("Text3").Text("Uno");
            Box("TBFrac").SetFocus();
            Box("TbMensajes").Text("dos");
            Box("Text1").SetFocus();
        };
        Open();
        Ear ear;
        m_form->The<ui::Button>("CbUno").SetFocus();
        ear.Take();
        Press(Qt::Key_Space);
        QCOMPARE(ear.Take(), QStringList({"FOCUS TBFrac", "FOCUS Text1(0)", "SAY Uno dos"}));
    }

    void says_an_equal_text_again_and_an_emptied_box_not_at_all()
    {
        Open();
        Ear ear;
        m_form->The<ui::Button>("CbUno").OnClick = [this](int) { Box("Text3").Text("Resultado correcto"); };
        m_form->The<ui::Button>("CbDos").OnClick = [this](int) { Box("Text3").Text(""); };
        for (int i = 0; i < 2; ++i) {
            QTest::mouseClick(&Child<QWidget>(*m_window, "CbUno"), Qt::LeftButton);
            QCOMPARE(ear.TakeSaid(), QStringList("Resultado correcto"));
        }
        QTest::mouseClick(&Child<QWidget>(*m_window, "CbDos"), Qt::LeftButton);
        QCOMPARE(ear.TakeSaid(), QStringList());
        QCOMPARE(Box("Text3").Text(), "");
    }

    void a_silent_box_says_nothing()
    {
        Open();
        Ear ear;
        m_form->The<ui::Button>("CbUno").OnClick = [this](int) { Box("TBFrac").Text("9"); };
        QTest::mouseClick(&Child<QWidget>(*m_window, "CbUno"), Qt::LeftButton);
        QCOMPARE(ear.TakeSaid(), QStringList());
    }

    void tells_a_text_alone_and_writes_it_nowhere()
    {
        Open();
        Ear ear;
        m_form->The<ui::Button>("CbUno").OnClick = [this](int) {
            Box("Text3").Text("Uno");
            m_form->Tell("dos tercios");
            Box("TBFrac").SetFocus();
        };
        m_form->The<ui::Button>("CbUno").SetFocus();
        ear.Take();
        Press(Qt::Key_Space);
        QCOMPARE(ear.Take(), QStringList({"FOCUS TBFrac", "SAY dos tercios"}));
        QCOMPARE(Box("TbMensajes").Text(), "");
    }

    void a_screen_that_has_an_exercise_for_the_ear_tells_it_when_it_opens_and_on_f3()
    {
        Ear ear;
        m_form->exercise = "dos tercios";
        m_sample->Open();
        QVERIFY(WaitActive(*m_window));
        QCOMPARE(ear.Take(), QStringList({"FOCUS Text1(1)", "SAY dos tercios"}));
        Child<QWidget>(*m_window, "CbUno").setFocus();
        ear.Take();
        Press(Qt::Key_F3);
        QCOMPARE(ear.Take(), QStringList("SAY dos tercios"));
        m_form->OnKeyDown = [](int, int) { return KeyResult::Swallow; };
        Press(Qt::Key_F3); // the screen has another use for it
        QCOMPARE(ear.Take(), QStringList());
    }

    void f4_tells_the_score_wherever_the_focus_is_and_moves_nothing()
    {
        Open();
        Ear ear;
        for (const char* name : {"Text1(0)", "Text1(1)", "TbDesco", "TBFrac", "Command2(0)", "tbResultados"}) {
            Child<QWidget>(*m_window, name).setFocus();
            ear.Take();
            Press(Qt::Key_F4);
            QCOMPARE(ear.Take(), QStringList("SAY Ejercicios:  0"));
            QCOMPARE(Focus(), name);
        }
        for (const Qt::KeyboardModifier held : {Qt::AltModifier, Qt::ControlModifier, Qt::ShiftModifier}) {
            Press(Qt::Key_F4, held);
            QCOMPARE(ear.Take(), QStringList());
        }
    }

    void a_locked_box_says_so_once_while_somebody_types_into_it()
    {
        Open();
        Ear ear;
        const auto typed = [&ear](const QString& text) {
            Type(text);
            return ear.TakeSaid();
        };
        const QStringList once("solo lectura");
        Box("Text1").SetFocus(); // the first of the two boxes, which takes typing
        QCOMPARE(typed("7a"), QStringList());
        Child<QWidget>(*m_window, "Text1(1)").setFocus();
        QCOMPARE(typed("7"), once);
        QCOMPARE(typed("a B"), QStringList());
        Press(Qt::Key_Shift);
        Press(Qt::Key_Backspace);
        QCOMPARE(ear.Take(), QStringList()); // not a beep either
        Press(Qt::Key_Left);
        QCOMPARE(typed("7"), once);
        Press(Qt::Key_Tab);
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(typed("7"), once);
        for (const Qt::Key beside : {Qt::Key_AltGr, Qt::Key_Meta, Qt::Key_CapsLock, Qt::Key_Control, Qt::Key_Alt}) {
            QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), beside, QString(), Qt::NoModifier);
            QCOMPARE(typed("7"), QStringList());
        }
        Child<QWidget>(*m_window, "TbMensajes").setFocus(); // another locked one, and no key between
        ear.Take();
        Press(Qt::Key_Backspace);
        QCOMPARE(ear.TakeSaid(), once);
        QCOMPARE(typed("7"), QStringList());
        Child<QWidget>(*m_window, "Text1(1)").setFocus();
        ear.Take();
        for (const auto& [key, held] : {std::pair(Qt::Key_Left, Qt::NoModifier),
                                        {Qt::Key_Delete, Qt::NoModifier},
                                        {Qt::Key_Return, Qt::NoModifier},
                                        {Qt::Key_Escape, Qt::NoModifier},
                                        {Qt::Key_C, Qt::ControlModifier},
                                        {Qt::Key_X, Qt::AltModifier}}) {
            Press(key, held);
            QCOMPARE(ear.Take(), QStringList());
        }
        QCOMPARE(Box("Text1").Text(), "7auno");
        QCOMPARE(m_form->All<ui::TextBox>("Text1")[1].Text(), "dos");
    }

    void a_locked_box_leaves_it_to_the_screen_where_that_uses_the_key()
    {
        Open();
        Ear ear;
        Child<QWidget>(*m_window, "Text1(1)").setFocus();
        m_form->OnKeyDown = [](int code, int) { return code == 'L' ? KeyResult::Share : KeyResult::Pass; };
        m_form->All<ui::TextBox>("Text1")[1].OnKeyPress = [](int, int KeyAscii) {
            return KeyAscii == '7' ? KeyResult::Share : KeyAscii == '8' ? KeyResult::Swallow : KeyResult::Pass;
        };
        Type("L78");
        QCOMPARE(ear.TakeSaid(), QStringList());
        Type("9");
        QCOMPARE(ear.TakeSaid(), QStringList("solo lectura"));
        Box("Text1").SetFocus();
        Type("L"); // shared: the box gets it too
        QCOMPARE(Box("Text1").Text(), "Luno");
    }

    void a_message_to_a_window_in_the_background_waits_for_it_and_keeps_no_other_silent()
    {
        Open();
        sample::Sample other;
        other.Open();
        QVERIFY(WaitActive(*other.Window()));
        Ear ear;
        other.Form().The<ui::Button>("CbUno").OnClick = [this, &other](int) {
            Box("Text3").Text("detrás");
            other.Form().The<ui::TextBox>("Text3").Text("delante");
        };
        QTest::mouseClick(&Child<QWidget>(*other.Window(), "CbUno"), Qt::LeftButton);
        QCOMPARE(ear.TakeSaid(), QStringList("delante"));
        m_form->BringForward();
        QVERIFY(WaitActive(*m_window));
        QCOMPARE(ear.TakeSaid(), QStringList("detrás"));
    }

    void a_closed_window_takes_its_message_with_it()
    {
        Ear ear;
        {
            const sample::Sample lost;
            lost.Form().The<ui::TextBox>("Text3").Text("nadie lo oye");
        }
        Open();
        QCOMPARE(ear.TakeSaid(), QStringList());
    }

    void menus_are_arrays_of_which_one_entry_is_checked()
    {
        int clicked = -1;
        for (ui::MenuItem& item : m_form->All<ui::MenuItem>("MnuOpcDenLis")) {
            item.OnClick = [&clicked](int Index) { clicked = Index; };
        }
        const auto isChecked = [this](const char* name) { return Child<QAction>(*m_window, name).isChecked(); };
        QVERIFY(isChecked("MnuOpcDenLis(0)") && !isChecked("MnuOpcDenLis(1)"));
        Child<QAction>(*m_window, "MnuOpcDenLis(1)").trigger();
        QCOMPARE(clicked, 1);
        QVERIFY(!isChecked("MnuOpcDenLis(0)") && isChecked("MnuOpcDenLis(1)"));
        Child<QAction>(*m_window, "MnuOpcDenLis(0)").trigger();
        QCOMPARE(clicked, 0);
        QVERIFY(isChecked("MnuOpcDenLis(0)") && !isChecked("MnuOpcDenLis(1)"));
        QVERIFY(isChecked("MnuOpcTipLis(0)"));
    }

    void a_menu_entry_has_its_function_key()
    {
        int clicked = 0;
        m_form->The<ui::MenuItem>("MnuOpcLee").OnClick = [&clicked](int) { ++clicked; };
        Open();
        Press(Qt::Key_F1);
        QCOMPARE(clicked, 1);
    }

    void the_access_key_of_a_menu_opens_it()
    {
        Open();
        Press(Qt::Key_O, Qt::AltModifier);
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
    }

    void a_number_out_of_range_ends_the_program_where_qt_calls_the_screen_data()
    {
        QTest::addColumn<std::function<void(sample::SampleForm&)>>("act");
        const auto overflow = [](int) { std::ignore = numeros::Entero16(32767) + 1; };
        QTest::addRow("button") << std::function([overflow](sample::SampleForm& form) {
            form.The<ui::Button>("CbUno").OnClick = overflow;
            Child<QPushButton>(form.Window(), "CbUno").click();
        });
        QTest::addRow("menu") << std::function([overflow](sample::SampleForm& form) {
            form.The<ui::MenuItem>("MnuOpcLee").OnClick = overflow;
            Child<QAction>(form.Window(), "MnuOpcLee").trigger();
        });
        QTest::addRow("text") << std::function([overflow](sample::SampleForm& form) {
            form.All<ui::TextBox>("Text1")[0].OnChange = overflow;
            Child<QLineEdit>(form.Window(), "Text1(0)").insert("7");
        });
        QTest::addRow("key") << std::function([overflow](sample::SampleForm& form) {
            form.All<ui::TextBox>("Text1")[0].OnKeyPress = [overflow](int Index, int) {
                overflow(Index);
                return ui::KeyResult::Pass;
            };
            QKeyEvent key(QEvent::KeyPress, Qt::Key_7, Qt::NoModifier, "7");
            QObject& filter = form.Window();
            QVERIFY(filter.eventFilter(&Child<QLineEdit>(form.Window(), "Text1(0)"), &key));
        });
    }
    void a_number_out_of_range_ends_the_program_where_qt_calls_the_screen()
    {
        QFETCH(std::function<void(sample::SampleForm&)>, act);
        Open();
        Child<QWidget>(*m_window, "Text1(0)").setFocus();
        QString told;
        QTimer::singleShot(0, m_window, [&] {
            WithDialog([&] { act(*m_form); },
                       [&told](QWidget& box) {
                           told = dynamic_cast<QMessageBox&>(box).text();
                           QTest::keyClick(&box, Qt::Key_Return);
                       });
        });
        QCOMPARE(QApplication::exec(), EXIT_FAILURE);
        QVERIFY2(told.startsWith("Un número se ha salido"), qPrintable(told));
    }

    void after_a_window_closed_with_its_menu_open_another_has_the_focus()
    {
        sample::Sample other;
        other.Open();
        QVERIFY(WaitActive(*other.Window()));
        Open(ui::Modality::Modal, &other.Form());
        Press(Qt::Key_O, Qt::AltModifier);
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        QEventLoop loop; // as the program runs; the loops of QTest come to deletions later
        QTimer::singleShot(0, m_window, [this] { m_window->close(); });
        connect(m_window, &QObject::destroyed, &loop, &QEventLoop::quit);
        loop.exec();
        other.Window()->activateWindow(); // without a desktop nobody else does
        QVERIFY(WaitActive(*other.Window()));
        QTRY_VERIFY(other.Window()->isAncestorOf(QApplication::focusWidget()));
    }
};

KELVORA_TEST_MAIN(tst_Form)
#include "tst_Form.moc"
