#include "Habits.h"
#include "Look.h"
#include "SampleForm.h"
#include "Support.h"

#include <QAbstractButton>

using namespace support;

class tst_Button : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<sample::Sample> m_sample;
    sample::SampleForm* m_form = nullptr;
    QMainWindow* m_window = nullptr;
    QStringList m_clicked;

    QWidget& Widget(const QString& name) const { return Child<QWidget>(*m_window, name); }

private slots:
    void init()
    {
        m_sample = std::make_unique<sample::Sample>();
        m_form = &m_sample->Form();
        m_window = m_sample->Window();
        m_clicked.clear();
        for (const char* name : {"Command2", "CbUno", "CbDos"}) {
            for (ui::Button& button : m_form->All<ui::Button>(name)) {
                button.OnClick = [this, name](int Index) { m_clicked += QString("%1/%2").arg(name).arg(Index); };
            }
        }
        m_sample->Open();
        QVERIFY(WaitActive(*m_window));
    }
    void cleanup() { m_sample.reset(); }

    void is_pressed_by_its_access_key_at_once()
    {
        Press(Qt::Key_C, Qt::AltModifier);
        QCOMPARE(m_clicked, QStringList("Command2/0")); // no event has been handled in between
        QCOMPARE(Focus(), "Command2(0)");
    }

    void an_access_key_shared_by_several_leads_to_the_next_after_the_focus_and_presses_none()
    {
        m_form->All<ui::Button>("Command2")[1].Caption("&Dos\r\ntres"); // a third one
        const auto next = [this](const QString& from) {
            Widget(from).setFocus();
            Press(Qt::Key_D, Qt::AltModifier);
            return Focus();
        };
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(next("Text1(0)"), "Command2(1)");
            QCOMPARE(next("Command2(0)"), "Command2(1)");
            QCOMPARE(next("Command2(1)"), "CbUno");
            QCOMPARE(next("CbUno"), "CbDos");
            QCOMPARE(next("CbDos"), "Command2(1)");
            QCOMPARE(next("CbUno"), "CbDos"); // wherever the key has led before
        }
        Widget("CbDos").setEnabled(false);
        QCOMPARE(next("CbUno"), "Command2(1)");
        Widget("CbDos").setEnabled(true);
        Widget("CbUno").hide();
        QCOMPARE(next("Command2(1)"), "CbDos");
        QTest::qWait(150); // longer than Qt's animated press
        QCOMPARE(m_clicked, QStringList());
    }

    void an_access_key_held_down_acts_once()
    {
        const auto hold = [](Qt::Key key) {
            QTest::simulateEvent(QApplication::focusWidget(), true, key, Qt::AltModifier, QString(QChar(key)), true);
        };
        Press(Qt::Key_D, Qt::AltModifier);
        QCOMPARE(Focus(), "CbUno");
        hold(Qt::Key_D);
        QCOMPARE(Focus(), "CbUno");
        Press(Qt::Key_C, Qt::AltModifier);
        hold(Qt::Key_C);
        QCOMPARE(m_clicked, QStringList("Command2/0"));
    }

    void says_nothing_more_where_the_focus_comes_back_from_another_window()
    {
        Ear ear;
        ui::TextBox& box = m_form->All<ui::TextBox>("Text1")[0];
        m_form->All<ui::Button>("Command2")[0].OnClick = [this](int) {
            sample::Sample other;
            other.Open();
            WaitActive(*other.Window());
            m_form->BringForward();
            WaitActive(*m_window);
        };
        box.SetFocus();
        ear.Take();
        dynamic_cast<QAbstractButton&>(Widget("Command2(0)")).click();
        QCOMPARE(ear.TakeSaid(), QStringList());
    }

    void says_where_the_focus_is_where_pressing_it_leads_back_there()
    {
        Ear ear;
        auto& button = m_form->All<ui::Button>("Command2")[0];
        ui::TextBox& box = m_form->All<ui::TextBox>("Text1")[0];
        button.OnClick = [&box](int) {
            box.Text("");
            box.SetFocus();
        };
        box.SetFocus();
        ear.Take();
        Press(Qt::Key_C, Qt::AltModifier);
        QCOMPARE(ear.Take(), QStringList({"FOCUS Command2(0)", "FOCUS Text1(0)", "SAY Primera caja"}));
        dynamic_cast<QAbstractButton&>(Widget("Command2(0)"))
            .click(); // as a screen reader's own command does, without the focus
        QCOMPARE(ear.Take(), QStringList("SAY Primera caja"));
        button.SetFocus();
        ear.Take();
        Press(Qt::Key_Space);
        QCOMPARE(ear.Take(), QStringList("FOCUS Text1(0)")); // which is told
    }

    void says_more_beside_its_new_name_once()
    {
        Ear ear;
        auto& button = m_form->The<ui::Button>("CbUno");
        const auto renamed = [&](const char* name) {
            button.Caption(name);
            button.SayWith("partes coloreadas: 1");
            return ear.TakeSaid();
        };
        m_form->The<ui::Button>("CbDos").SetFocus();
        QCOMPARE(renamed("1 - rojo"), QStringList("1 - rojo; partes coloreadas: 1"));
        button.SetFocus();
        ear.Take();
        // In focus a newer reader reads the name itself.
        QCOMPARE(renamed("1 - verde"),
                 QStringList(ui::ReaderHabits().newNamesAreRead ? "partes coloreadas: 1"
                                                                : "1 - verde; partes coloreadas: 1"));
    }

    void is_pressed_by_enter_by_space_and_by_the_mouse()
    {
        Widget("Command2(1)").setFocus();
        Press(Qt::Key_Return);
        Press(Qt::Key_Enter);
        Press(Qt::Key_Space);
        QCOMPARE(m_clicked, QStringList({"Command2/1", "Command2/1", "Command2/1"}));
        QTest::mouseClick(&Widget("Command2(0)"), Qt::LeftButton);
        QCOMPARE(m_clicked.last(), "Command2/0");
        QCOMPARE(Focus(), "Command2(0)");
    }

    void cursor_keys_step_on_but_not_with_control()
    {
        Widget("Command2(0)").setFocus();
        Press(Qt::Key_Right, Qt::ControlModifier);
        Press(Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(Focus(), "Command2(0)");
        Press(Qt::Key_Right);
        QCOMPARE(Focus(), "Command2(1)");
        Press(Qt::Key_Up);
        QCOMPARE(Focus(), "Command2(0)");
    }

    void a_new_caption_is_drawn_named_and_bears_the_access_key()
    {
        m_form->The<ui::Button>("CbUno").Caption("&Nuevo");
        QCOMPARE(QAccessible::queryAccessibleInterface(&Widget("CbUno"))->text(QAccessible::Name), "Nuevo");
        Press(Qt::Key_N, Qt::AltModifier);
        QCOMPARE(m_clicked, QStringList("CbUno/-1"));
    }

    void a_name_of_its_own_comes_before_the_caption()
    {
        const auto name = [this] {
            return QAccessible::queryAccessibleInterface(&Widget("CbUno"))->text(QAccessible::Name);
        };
        auto& button = m_form->The<ui::Button>("CbUno");
        button.AccessibleName("ficha roja");
        QCOMPARE(name(), "ficha roja");
        button.Caption("R");
        QCOMPARE(button.Caption(), "R");
        QCOMPARE(name(), "ficha roja");
        button.AccessibleName("");
        QCOMPARE(name(), "R");
    }

    void a_new_name_of_the_button_in_focus_is_told_once()
    {
        Ear ear;
        auto& button = m_form->The<ui::Button>("CbUno");
        button.SetFocus();
        ear.Take();
        button.Caption("2 - rojo");
        QCOMPARE(ear.TakeSaid(), ui::ReaderHabits().newNamesAreRead ? QStringList() : QStringList("2 - rojo"));
        button.Caption("2 - rojo"); // no new one
        QCOMPARE(ear.TakeSaid(), QStringList());
        m_form->The<ui::Button>("CbDos").Caption("3 - rojo"); // not in focus
        QCOMPARE(ear.TakeSaid(), QStringList());
    }

    void the_face_keeps_its_colour_in_every_theme_and_the_caption_is_black()
    {
        QPalette dark;
        dark.setColor(QPalette::Window, Qt::black);
        dark.setColor(QPalette::WindowText, Qt::white);
        dark.setColor(QPalette::Button, Qt::black);
        dark.setColor(QPalette::ButtonText, Qt::white);
        for (const QPalette& palette : {QPalette(), dark}) {
            QApplication::setPalette(palette);
            for (const ui::Color color : {ui::Color::Red, ui::Color::Green, ui::Color::Yellow, ui::Color::Cyan}) {
                m_form->The<ui::Button>("CbUno").BackColor(color);
                QWidget& button = Widget("CbUno");
                const QImage image = button.grab().toImage();
                QCOMPARE(image.pixelColor(6, 6), ui::ToQColor(color));
                int black = 0;
                for (int x = 8; x < image.width() - 8; ++x) {
                    for (int y = 6; y < image.height() - 6; ++y) {
                        black += image.pixelColor(x, y) == QColor(Qt::black) ? 1 : 0;
                        QVERIFY(image.pixelColor(x, y) != QColor(Qt::white));
                    }
                }
                QVERIFY(black > 20);
            }
        }
        QApplication::setPalette(QPalette());
    }

    void the_focus_mark_is_wide_and_stands_out_on_every_colour()
    {
        for (const ui::Color color : {ui::Color::Red, ui::Color::Green, ui::Color::Yellow, ui::Color::Cyan}) {
            m_form->The<ui::Button>("CbUno").BackColor(color);
            Widget("CbDos").setFocus();
            const QImage without = Widget("CbUno").grab().toImage();
            Widget("CbUno").setFocus();
            const QImage with = Widget("CbUno").grab().toImage();
            int width = 0;
            for (int x = 0; x < 8; ++x) {
                const QColor before = without.pixelColor(x, 15);
                const QColor after = with.pixelColor(x, 15);
                width += ui::Contrast(before, after) >= 3 ? 1 : 0;
            }
            QVERIFY2(width >= 2, qPrintable(QString::number(width)));
        }
    }

    void every_line_of_a_caption_is_drawn()
    {
        const QImage image = Widget("Command2(1)").grab().toImage();
        QList<int> rowsWithType;
        for (int y = 5; y < image.height() - 5; ++y) {
            for (int x = 8; x < image.width() - 8; ++x) {
                if (image.pixelColor(x, y) == QColor(Qt::black)) {
                    rowsWithType += y;
                    break;
                }
            }
        }
        int gaps = 0;
        for (qsizetype i = 1; i < rowsWithType.size(); ++i) {
            gaps += rowsWithType[i] - rowsWithType[i - 1] > 1 ? 1 : 0;
        }
        QVERIFY(gaps >= 2); // 7, bar and 9 are apart
    }
};

KELVORA_TEST_MAIN(tst_Button)
#include "tst_Button.moc"
