#include "SampleForm.h"
#include "Support.h"

#include <QAction>
#include <QMenuBar>
#include <QPushButton>
#include <qpa/qwindowsysteminterface.h>

#include <deque>

using namespace support;

namespace {

// A move of a finger, with the modifiers that were held before.
struct Finger
{
    QEvent::Type type;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers = {};
    QString text = {};
};

constexpr auto down = QEvent::KeyPress;
constexpr auto up = QEvent::KeyRelease;

QList<Finger> Digit(char digit)
{
    const auto key = static_cast<Qt::Key>(digit);
    return {{down, key, {}, QString(QChar(digit))}, {up, key, {}, QString(QChar(digit))}};
}

QList<Finger> Plain(Qt::Key key)
{
    return {{down, key}, {up, key}};
}

QList<Finger> WithAlt(Qt::Key key)
{
    const QString text = QString(QChar(key)).toLower();
    return {{down, Qt::Key_Alt},
            {down, key, Qt::AltModifier, text},
            {up, key, Qt::AltModifier, text},
            {up, Qt::Key_Alt, Qt::AltModifier}};
}

// A screen reader that is asked about each key, as Qt does it: the key goes no further before there is an answer, and
// then comes again.
class AskedReader final : public QObject
{
public:
    AskedReader() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (!event->spontaneous() || (event->type() != down && event->type() != up)) {
            return false;
        }
        m_asked.emplace_back(receiver, static_cast<QKeyEvent*>(event)->clone());
        return true;
    }

    // The program gets the oldest key that was asked about, unless the reader keeps it.
    void Answer(bool keeps = false)
    {
        auto [receiver, event] = std::move(m_asked.front());
        m_asked.pop_front();
        if (receiver && !keeps) {
            QKeyEvent again(event->type(), event->key(), event->modifiers(), event->text(), event->isAutoRepeat());
            QCoreApplication::sendEvent(receiver, &again);
        }
    }

    void AnswerAll()
    {
        while (!m_asked.empty()) {
            Answer();
        }
    }

private:
    std::deque<std::pair<QPointer<QObject>, std::unique_ptr<QKeyEvent>>> m_asked;
};

} // namespace

class tst_KeyOrder : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<sample::Sample> m_sample;
    sample::SampleForm* m_form = nullptr;
    QMainWindow* m_window = nullptr;
    std::unique_ptr<AskedReader> m_reader;
    QStringList m_done; // what the keys have done, in order

    static void Move(QWidget& window, const QList<Finger>& fingers)
    {
        for (const Finger& finger : fingers) {
            QWindowSystemInterface::handleKeyEvent<QWindowSystemInterface::SynchronousDelivery>(
                window.windowHandle(), finger.type, finger.key, finger.modifiers, finger.text);
        }
    }
    void Move(const QList<Finger>& fingers) const { Move(*m_window, fingers); }

private slots:
    void init()
    {
        m_sample = std::make_unique<sample::Sample>();
        m_form = &m_sample->Form();
        m_window = m_sample->Window();
        m_sample->Open();
        QVERIFY(WaitActive(*m_window));
        ui::TextBox& box = m_form->All<ui::TextBox>("Text1")[0];
        box.Text("");
        box.SetFocus();
        m_done.clear();
        box.OnChange = [this, &box](int) { m_done += QString::fromStdString(box.Text()); };
        m_form->All<ui::Button>("Command2")[0].OnClick = [this](int) { m_done += "Continuar"; };
        m_form->The<ui::MenuItem>("MnuOpcLee").OnClick = [this](int) { m_done += "F1"; };
        m_form->OnKeyDown = [this](int code, int) {
            m_done += code == ui::KeyCode::F3 ? QStringList("F3") : QStringList();
            return ui::KeyResult::Pass;
        };
        m_reader = std::make_unique<AskedReader>();
    }
    void cleanup()
    {
        m_reader.reset();
        m_sample.reset();
        Settle();
    }

    void a_key_behind_one_that_waits_waits_too_data()
    {
        QTest::addColumn<QList<Finger>>("second");
        QTest::addColumn<QString>("does");
        QTest::addRow("access key") << WithAlt(Qt::Key_C) << "Continuar";
        QTest::addRow("key of a menu entry") << Plain(Qt::Key_F1) << "F1";
        QTest::addRow("key of the screen") << Plain(Qt::Key_F3) << "F3";
    }
    void a_key_behind_one_that_waits_waits_too()
    {
        QFETCH(QList<Finger>, second);
        QFETCH(QString, does);
        Move(Digit('5') + second + Digit('6'));
        QCOMPARE(m_done, QStringList());
        m_reader->Answer();
        QCOMPARE(m_done, QStringList("5"));
        m_reader->AnswerAll();
        QCOMPARE(m_done.mid(0, 2), QStringList({"5", does}));
        // The focus, to which the last digit goes, is on the button now where the key has pressed one.
        QCOMPARE(m_done.mid(2), does == "Continuar" ? QStringList() : QStringList("56"));
    }

    void where_nothing_waits_a_key_acts_at_once_data()
    {
        QTest::addColumn<QList<Finger>>("fingers");
        QTest::addColumn<QString>("does");
        QTest::addRow("access key") << WithAlt(Qt::Key_C) << "Continuar";
        QTest::addRow("key of a menu entry") << Plain(Qt::Key_F1) << "F1";
    }
    void where_nothing_waits_a_key_acts_at_once()
    {
        QFETCH(QList<Finger>, fingers);
        QFETCH(QString, does);
        Move(Digit('5'));
        m_reader->AnswerAll();
        m_done.clear();
        Move(fingers); // the Alt before the letter waits, and does not count
        QCOMPARE(m_done, QStringList(does));
        m_reader->AnswerAll();
        QCOMPARE(m_done, QStringList(does));
    }

    void a_key_that_the_reader_keeps_holds_up_none_for_good()
    {
        Move(Digit('5') + WithAlt(Qt::Key_C));
        m_reader->Answer(true);
        m_reader->Answer(true);
        QCOMPARE(m_done, QStringList());
        m_reader->AnswerAll();
        QCOMPARE(m_done, QStringList("Continuar"));
        Move(WithAlt(Qt::Key_C));
        QCOMPARE(m_done, QStringList({"Continuar", "Continuar"}));
        m_reader->AnswerAll();
    }

    void an_access_key_that_the_reader_keeps_does_nothing()
    {
        Move(Digit('5') + WithAlt(Qt::Key_C));
        for (const bool keeps : {false, false, false, true, true, false}) {
            m_reader->Answer(keeps);
        }
        QCOMPARE(m_done, QStringList("5"));
    }

    void alt_alone_leads_to_the_menus_and_back_data()
    {
        QTest::addColumn<bool>("behindADigit");
        QTest::addColumn<bool>("answeredBeforeItsRelease");
        QTest::addRow("quick") << false << false;
        QTest::addRow("slow") << false << true;
        QTest::addRow("quick, behind a digit") << true << false;
        QTest::addRow("slow, behind a digit") << true << true;
    }
    void alt_alone_leads_to_the_menus_and_back()
    {
        QFETCH(bool, behindADigit);
        QFETCH(bool, answeredBeforeItsRelease);
        const auto alt = [&](const QList<Finger>& before) {
            Move(before + QList<Finger>{{down, Qt::Key_Alt}});
            if (answeredBeforeItsRelease) {
                m_reader->AnswerAll();
            }
            Move(QList<Finger>{{up, Qt::Key_Alt, Qt::AltModifier}});
            m_reader->AnswerAll();
        };
        alt(behindADigit ? Digit('5') : QList<Finger>());
        QCOMPARE(m_done, behindADigit ? QStringList("5") : QStringList());
        QCOMPARE(m_window->menuBar()->activeAction(), &Child<QAction>(*m_window, "MnuOpc"));
        alt({});
        QVERIFY(m_window->menuBar()->activeAction() == nullptr);
        QCOMPARE(Focus(), "Text1(0)");
    }

    void the_alt_of_an_access_key_does_not_lead_to_the_menus_data()
    {
        QTest::addColumn<Qt::Key>("letter");
        QTest::addColumn<bool>("altGoesFirst"); // the finger leaves it before the letter
        QTest::addColumn<bool>("behindADigit");
        QTest::addColumn<int>("answeredBefore"); // of the fingers' moves
        for (const Qt::Key letter : {Qt::Key_C, Qt::Key_X}) {
            for (const bool first : {false, true}) {
                for (const bool digit : {false, true}) {
                    for (const int answered : {1, 2, 3, 4, 5, 6, 7}) {
                        QTest::addRow("%c %d %d %d", letter, first, digit, answered)
                            << letter << first << digit << answered;
                    }
                }
            }
        }
    }
    void the_alt_of_an_access_key_does_not_lead_to_the_menus()
    {
        QFETCH(Qt::Key, letter);
        QFETCH(bool, altGoesFirst);
        QFETCH(bool, behindADigit);
        QFETCH(int, answeredBefore);
        QList<Finger> fingers = WithAlt(letter);
        if (altGoesFirst) {
            fingers.swapItemsAt(2, 3);
        }
        fingers = (behindADigit ? Digit('5') : QList<Finger>()) + fingers;
        for (int i = 0; i < fingers.size(); ++i) {
            if (i == answeredBefore) {
                m_reader->AnswerAll();
            }
            Move({fingers[i]});
        }
        m_reader->AnswerAll();
        QVERIFY(m_window->menuBar()->activeAction() == nullptr);
        QCOMPARE(Focus(), letter == Qt::Key_C ? "Command2(0)" : "Text1(0)");
        QCOMPARE(m_done, (behindADigit ? QStringList("5") : QStringList()) +
                             (letter == Qt::Key_C ? QStringList("Continuar") : QStringList()));
    }

    void the_access_keys_of_menus_and_labels_keep_the_order_too()
    {
        m_form->The<ui::TextBox>("TBFrac").SetFocus();
        Move(Digit('5') + WithAlt(Qt::Key_P) + Digit('6'));
        m_reader->AnswerAll();
        QCOMPARE(m_form->The<ui::TextBox>("TBFrac").Text(), std::string("5"));
        QCOMPARE(m_done, QStringList("6"));
        Move(Digit('7') + WithAlt(Qt::Key_O));
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        m_reader->AnswerAll();
        QCOMPARE(m_done, QStringList({"6", "67"}));
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        QApplication::activePopupWidget()->close();
    }

    void without_a_reader_every_key_acts_at_once()
    {
        m_reader.reset();
        Move(Digit('5') + WithAlt(Qt::Key_C));
        QCOMPARE(m_done, QStringList({"5", "Continuar"}));
        Move(Plain(Qt::Key_F1));
        QCOMPARE(m_done.last(), "F1");
    }

    void an_access_key_that_is_pressed_when_the_reader_goes_is_not_lost()
    {
        Move(Digit('5'));
        qApp->removeEventFilter(m_reader.get());
        Move(WithAlt(Qt::Key_C));
        QCOMPARE(m_done, QStringList("Continuar"));
    }

    void what_waits_when_its_window_is_blocked_does_nothing()
    {
        Move(Digit('5') + QList<Finger>{{down, Qt::Key_Alt}, {up, Qt::Key_Alt, Qt::AltModifier}});
        sample::Sample modal;
        modal.Open(ui::Modality::Modal);
        QVERIFY(WaitActive(*modal.Window()));
        m_reader->AnswerAll();
        QCOMPARE(m_done, QStringList());
        QVERIFY(m_window->menuBar()->activeAction() == nullptr);
        modal.Window()->close();
    }

    void a_key_pressed_into_a_blocked_window_holds_up_none()
    {
        m_reader.reset();
        sample::Sample modal;
        modal.Open(ui::Modality::Modal);
        QVERIFY(WaitActive(*modal.Window()));
        int clicks = 0;
        modal.Form().All<ui::Button>("Command2")[0].OnClick = [&clicks](int) { ++clicks; };
        Move(Digit('5'));
        QCOMPARE(m_done, QStringList());
        Move(*modal.Window(), WithAlt(Qt::Key_C));
        QCOMPARE(clicks, 1);
    }
};

KELVORA_TEST_MAIN(tst_KeyOrder)
#include "tst_KeyOrder.moc"
