#include "Form1.h"
#include "Given.h"
#include "Look.h"
#include "Pantallas.h"
#include "Support.h"

#include <QAction>
#include <QFile>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>

using namespace support;

namespace {

QWidgetList Windows(const QString& name)
{
    QWidgetList found = QApplication::topLevelWidgets();
    found.removeIf([&name](const QWidget* window) { return window->objectName() != name || !window->isVisible(); });
    return found;
}

QWidget* Window(const QString& name)
{
    return Windows(name).value(0);
}

// Of the menu: one for each screen, and the way out.
constexpr int buttons = app::pantallas.size() + 1;

} // namespace

class tst_Form1 : public QObject
{
    Q_OBJECT

private:
    QPointer<QMainWindow> m_menu;

    QPushButton& Command1(int index) const { return Child<QPushButton>(*m_menu, QString("Command1(%1)").arg(index)); }

    QWidget* OpenSum() const
    {
        Command1(6).setFocus();
        Press(Qt::Key_Return);
        QWidget* sum = Window("Form2");
        return sum != nullptr && WaitActive(*sum) ? sum : nullptr;
    }

private slots:
    void init()
    {
        auto menu = std::make_unique<app::Form1>();
        m_menu = &menu->Window();
        ui::Form::Open(std::move(menu), ui::Modality::Modeless);
        QVERIFY(WaitActive(*m_menu));
    }
    void cleanup()
    {
        QApplication::closeAllWindows();
        Settle();
        QVERIFY(!m_menu);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void lays_the_buttons_out_by_its_rule_at_every_size_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addRow("opening") << QSize(613, 613);
        QTest::addRow("wide") << QSize(1366, 700);
        QTest::addRow("small") << QSize(330, 300);
        QTest::addRow("odd") << QSize(997, 641);
    }
    void lays_the_buttons_out_by_its_rule_at_every_size()
    {
        QFETCH(QSize, size);
        const int bar = m_menu->height() - m_menu->centralWidget()->height();
        m_menu->resize(size.width(), size.height() + bar);
        Settle();
        QCOMPARE(m_menu->centralWidget()->size(), size);
        const double unit = std::nearbyint(size.width() * 15 / 11.0);
        const int rows = (buttons + 1) / 2;
        const double row = std::nearbyint(size.height() * 15 / (3.0 * rows + 1));
        const auto pixels = [](double twips) { return static_cast<int>(std::lround(twips / 15)); };
        for (int i = 0; i < buttons; ++i) {
            const double left = i < rows ? unit : 6 * unit;
            const double top = 3 * row * (i % rows) + row;
            const QPoint topLeft(pixels(left), pixels(top));
            const QPoint end(pixels(left + 4 * unit), pixels(top + 2 * row));
            QCOMPARE(Command1(i).geometry(), QRect(topLeft, end - QPoint(1, 1)));
        }
    }

    void captions_grow_with_the_window()
    {
        const int before = Command1(6).font().pixelSize();
        const int bar = m_menu->height() - m_menu->centralWidget()->height();
        m_menu->resize(2 * 613, 2 * 613 + bar);
        Settle();
        QCOMPARE(Command1(6).font().pixelSize(), 2 * before);
    }

    void every_caption_shows_whole_in_its_button()
    {
        for (const QSize& size : {QSize(613, 650), QSize(1366, 768)}) {
            m_menu->resize(size);
            Settle();
            for (int i = 0; i < buttons; ++i) {
                const QString caption = Command1(i).text();
                const QRect room = Command1(i).rect().adjusted(5, 1, -5, -1);
                const int flags = Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextWordWrap;
                const QFont font = ui::Fitting(Command1(i).font(), caption, room.size(), flags, 9);
                QVERIFY(font.pixelSize() >= 14);
                QVERIFY(room.contains(QFontMetrics(font).boundingRect(room, flags, caption)));
            }
        }
    }

    // By the sheet of what is given, which has them all.
    void opens_each_screen_modal_or_beside_itself_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("modal");
        for (const QJsonObject& window : Given()) {
            if (window["name"] != "Form1") {
                QTest::addRow("%s", qPrintable(window["name"].toString()))
                    << window["opened by"].toString() << window["modal"].toBool();
            }
        }
    }
    void opens_each_screen_modal_or_beside_itself()
    {
        const QString name = QTest::currentDataTag();
        QFETCH(QString, button);
        QFETCH(bool, modal);
        Child<QPushButton>(*m_menu, button).setFocus();
        Press(Qt::Key_Return);
        const QPointer<QWidget> screen = Window(name);
        QVERIFY(screen && WaitActive(*screen));
        QCOMPARE(screen->isModal(), modal);

        // A second time brings the same one forward; a modal one keeps the menu from being used.
        m_menu->activateWindow();
        Settle();
        if (modal) {
            const QPushButton& series = Command1(10);
            QTest::mouseClick(m_menu->windowHandle(), Qt::LeftButton, {}, series.mapTo(m_menu, series.rect().center()));
            QVERIFY(Window("FormSeries") == nullptr);
        } else {
            QVERIFY(WaitActive(*m_menu));
            Press(Qt::Key_Space);
            QVERIFY(WaitActive(*screen));
        }
        QCOMPARE(Windows(name), QWidgetList{screen});

        // It goes alone, by its own menu where it has one.
        if (auto* leave = screen->findChild<QAction*>(name == "FormFactores" ? "MnuOpcsal" : "MnuOpcSal")) {
            leave->trigger();
        } else {
            screen->close();
        }
        Settle();
        QVERIFY(!screen && m_menu && m_menu->isVisible());
        m_menu->activateWindow(); // as a window manager does
        QVERIFY(WaitActive(*m_menu));
        QCOMPARE(Focus(), button);
    }

    void has_several_screens_open_beside_each_other()
    {
        const QPointer<QWidget> sum = OpenSum();
        m_menu->activateWindow();
        QVERIFY(WaitActive(*m_menu));
        Command1(7).click();
        QVERIFY(sum && sum->isVisible());
        QVERIFY(Window("FormDiferencia") != nullptr && WaitActive(*Window("FormDiferencia")));
        m_menu->activateWindow();
        QVERIFY(WaitActive(*m_menu));
        Command1(6).click();
        QVERIFY(WaitActive(*sum));
    }

    void brings_a_minimised_screen_back()
    {
        QWidget* sum = OpenSum();
        sum->showMinimized();
        m_menu->activateWindow();
        Settle();
        Command1(6).click();
        Settle();
        QVERIFY(!sum->isMinimized());
        QVERIFY(sum->isVisible());
    }

    void opens_a_closed_screen_anew()
    {
        QPointer<QWidget> first = OpenSum();
        first->close();
        Settle();
        QVERIFY(!first);
        m_menu->activateWindow();
        QVERIFY(WaitActive(*m_menu));
        QCOMPARE(Focus(), "Command1(6)"); // where the pupil left the menu
        QVERIFY(OpenSum() != nullptr);
    }

    void an_access_key_of_two_buttons_moves_the_focus_round_them()
    {
        Press(Qt::Key_S, Qt::AltModifier);
        const QString first = Focus();
        Press(Qt::Key_S, Qt::AltModifier);
        QCOMPARE(QSet<QString>({first, Focus()}),
                 QSet<QString>({"Command1(6)", QString("Command1(%1)").arg(buttons - 1)}));
        QVERIFY(Window("Form2") == nullptr);
        QVERIFY(m_menu->isVisible());
    }

    void closing_the_menu_leaves_open_screens_open()
    {
        const QPointer<QWidget> sum = OpenSum();
        m_menu->close();
        Settle();
        QVERIFY(!m_menu);
        QVERIFY(sum && sum->isVisible());
    }

    void shows_the_credits()
    {
        QFile changelog(CHANGELOG);
        QVERIFY(changelog.open(QIODevice::ReadOnly));
        const auto release =
            QRegularExpression(R"(^## \[([\d.]+)\] - \d{4}-\d\d-\d\d$)", QRegularExpression::MultilineOption)
                .match(changelog.readAll());
        QVERIFY(release.hasMatch());
        WithDialog([this] { Child<QAction>(*m_menu, "MnuAce").trigger(); },
                   [&release](QWidget& dialog) {
                       const auto& box = dynamic_cast<QMessageBox&>(dialog);
                       QVERIFY(box.text().contains("Autores"));
                       QVERIFY(box.text().contains("Contacto"));
                       QCOMPARE(box.text().section("\r\n", -1), "Versión " + release.captured(1) + ".");
                       QCOMPARE(box.buttons().size(), 1);
                       QTest::keyClick(&dialog, Qt::Key_Return);
                   });
        QCOMPARE(Child<QAction>(*m_menu, "MnuAce").text(), "Acerca de...");
    }

    // Alt alone leads to the menu bar, whose only entry has no menu beneath it.
    void leads_back_to_the_button_from_the_credits()
    {
        support::Ear ear;
        WithDialog(
            [] {
                Press(Qt::Key_Alt);
                Press(Qt::Key_Return);
            },
            [&ear](QWidget& dialog) {
                ear.Take();
                QTest::keyClick(&dialog, Qt::Key_Return);
            });
        m_menu->activateWindow(); // as a window manager does
        QVERIFY(WaitActive(*m_menu));
        QCOMPARE(Focus(), "Command1(0)");
        QCOMPARE(ear.Take(), QStringList("FOCUS Command1(0)"));
    }

    // Last, since no event loop runs after the program has ended.
    void leaving_closes_every_window_and_ends_the_program()
    {
        OpenSum();
        m_menu->activateWindow();
        QVERIFY(WaitActive(*m_menu));
        QEventLoop loop;
        int status = -1;
        QTimer::singleShot(0, &loop, [this] { QTest::mouseClick(&Command1(buttons - 1), Qt::LeftButton); });
        QTimer::singleShot(5000, &loop, [&loop] { loop.exit(-2); });
        status = loop.exec(); // ends as the application's loop does
        QCOMPARE(status, 0);
        QVERIFY(Window("Form1") == nullptr && Window("Form2") == nullptr);
    }
};

KELVORA_TEST_MAIN(tst_Form1)
#include "tst_Form1.moc"
