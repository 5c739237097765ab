// What the manual says of keys and of what is heard, done in the program: each of its tables that tells what is heard,
// row by row, on a screen that has just been opened.
#include "Pantallas.h"
#include "Screen.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QRegularExpression>
#include <QTimer>

using namespace support;

namespace {

constexpr std::uint32_t seed = 1; // of the exercises that the manual shows

struct Row
{
    int line;
    QString keys;
    QString heard; // the last cell
    QString second;
};
struct Table
{
    QString screen; // the heading that it stands below
    QList<Row> rows;
};

// The tables whose last column is this.
QList<Table> Tables(const QString& last = "se oye")
{
    QFile file(MANUAL);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("no %s", MANUAL);
    }
    QList<Table> tables;
    QString heading;
    bool inTable = false;
    int line = 0;
    for (const QString& text : QString::fromUtf8(file.readAll()).split('\n')) {
        ++line;
        if (text.startsWith('#')) {
            heading = text.mid(text.indexOf(' ') + 1);
        }
        if (!text.startsWith('|')) {
            inTable = false;
            continue;
        }
        QStringList cells = text.split('|');
        cells = cells.mid(1, cells.size() - 2);
        if (cells.last().trimmed() == last && cells.first().trimmed() == "teclas") {
            tables += Table{heading, {}};
            inTable = true;
        } else if (inTable && !cells.first().trimmed().startsWith("---")) {
            tables.last().rows += Row{line, cells.first().trimmed(), cells.last().trimmed(), cells.at(1).trimmed()};
        }
    }
    return tables;
}

const QMap<QString, Qt::Key> keys{{"Tab", Qt::Key_Tab},       {"Intro", Qt::Key_Return},  {"Espacio", Qt::Key_Space},
                                  {"Escape", Qt::Key_Escape}, {"Derecha", Qt::Key_Right}, {"Izquierda", Qt::Key_Left},
                                  {"Arriba", Qt::Key_Up},     {"Abajo", Qt::Key_Down},    {"F1", Qt::Key_F1},
                                  {"F2", Qt::Key_F2},         {"F3", Qt::Key_F3},         {"F4", Qt::Key_F4}};

// Presses what a cell names: keys with "+" between those of one press and ", " between presses, or "escribir" and what
// is typed. False where it is not understood.
bool Do(const QString& cell)
{
    if (cell.startsWith("escribir ")) {
        Type(cell.mid(9));
        return true;
    }
    for (const QString& press : cell.split(", ")) {
        QStringList parts = press.split('+');
        const QString last = parts.takeLast();
        Qt::KeyboardModifiers modifiers;
        for (const QString& part : parts) {
            modifiers |= part == "Alt"       ? Qt::AltModifier
                         : part == "Control" ? Qt::ControlModifier
                         : part == "Mayús"   ? Qt::ShiftModifier
                                             : Qt::MetaModifier;
        }
        if (modifiers.testFlag(Qt::MetaModifier)) {
            return false;
        }
        if (last.size() == 1 && last.front().isUpper()) {
            Press(static_cast<Qt::Key>(last.front().unicode()), modifiers);
        } else if (keys.contains(last)) {
            const bool isBackwards = last == "Tab" && modifiers.testFlag(Qt::ShiftModifier);
            Press(isBackwards ? Qt::Key_Backtab : keys[last], modifiers);
        } else {
            return false;
        }
    }
    return true;
}

// What a cell says is heard: the texts in «», or none where it says so. Null where it says anything else.
std::optional<QStringList> Said(QString cell)
{
    static const QRegularExpression quoted("«([^»]*)»(, |$)");
    QStringList said;
    for (auto match = quoted.globalMatch(cell); match.hasNext();) {
        said += match.next().captured(1);
    }
    cell.remove(quoted);
    const bool isNothing =
        said.isEmpty() && (cell == "nada" || cell == "nada más"); // than what the reader says by itself
    return (cell.isEmpty() && !said.isEmpty()) || isNothing ? std::optional(said) : std::nullopt;
}

// The screens that a cell names, by a word of their captions, or all but those.
QList<const app::Pantalla*> Screens(QString cell)
{
    static const QMap<QString, QString> others{{"factores primos", "factores"},
                                               {"fichas", "Expresa"},
                                               {"expresa con fracciones", "Expresa"},
                                               {"series", "serie"}};
    const bool isAllBut = cell.startsWith("todos, menos ");
    cell.remove("todos, menos ").replace(" y ", ", ");
    QList<const app::Pantalla*> screens;
    for (const app::Pantalla& pantalla : app::pantallas) {
        const QString caption = QString::fromUtf8(pantalla.caption).remove('&');
        bool isNamed = cell == "en todos los ejercicios";
        for (QString name : cell.split(", ")) {
            name.remove(QRegularExpression("^(la|las) |^desde .*"));
            static const QRegularExpression operation("^(Suma|Diferencia|Producto|Cociente) ");
            isNamed = isNamed || (name == "operaciones" ? caption.contains(operation)
                                                        : !name.isEmpty() && caption.contains(others.value(name, name),
                                                                                              Qt::CaseInsensitive));
        }
        if (isNamed != isAllBut) {
            screens += &pantalla;
        }
    }
    return screens;
}

} // namespace

class tst_Manual : public QObject, Screen
{
    Q_OBJECT

private:
    // What the reader says of what the ear has taken: where the focus has come to, if it was elsewhere, with what a box
    // holds; then the messages.
    QStringList Heard(const QString& before) const
    {
        QStringList heard;
        for (const QString& told : m_ear->Take()) {
            if (told.startsWith("SAY partes coloreadas:")) { // newer readers have read the new name by themselves
                heard += Name(Focus()) + "; " + told.mid(4);
            } else if (told.startsWith("SAY ")) {
                heard += told.mid(4).simplified();
            }
        }
        if (Focus() != before) {
            const auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
            heard.prepend((Name(Focus()) + (box != nullptr ? " " + box->text() : QString())).simplified());
        }
        return heard;
    }

    // Does what a row says, and hears it. Boxes that open are heard, and left with Escape.
    std::optional<QStringList> Try(const Row& row) const
    {
        const QString before = Focus();
        QStringList boxes;
        QTimer timer;
        connect(&timer, &QTimer::timeout, &timer, [&boxes] {
            if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                boxes += box->windowTitle();
                for (const QLabel* label : box->findChildren<QLabel*>()) {
                    boxes += label->text().isEmpty() ? QStringList() : QStringList{label->text().simplified()};
                }
                box->reject();
            }
        });
        timer.start(0);
        if (!Do(row.keys)) {
            return std::nullopt;
        }
        timer.stop();
        if (boxes.isEmpty()) {
            return Heard(before);
        }
        Activate();
        m_ear->Take();
        return boxes;
    }

private slots:
    void cleanup() { CloseScreen(); }

    void every_key_is_heard_as_the_manual_says_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<int>("number");
        const QList<Table> tables = Tables();
        for (int i = 0; i < tables.size(); ++i) {
            QTest::addRow("%d %s", i, qPrintable(tables[i].screen)) << tables[i].screen << i;
        }
    }
    void every_key_is_heard_as_the_manual_says()
    {
        QFETCH(const QString, screen);
        QFETCH(const int, number);
        numeros::FijarSemilla(seed);
        const auto* const pantalla = std::ranges::find_if(app::pantallas, [&screen](const app::Pantalla& one) {
            return QString::fromUtf8(one.caption).remove('&') == screen;
        });
        QVERIFY2(pantalla != app::pantallas.end(), qPrintable(screen));
        OpenScreen(pantalla->crear());
        int lies = 0;
        const Table table = Tables().at(number);
        if (table.rows.first().keys != "al abrir") {
            m_ear->Take();
        }
        for (const Row& row : table.rows) {
            const auto said = Said(row.heard);
            const auto heard = row.keys == "al abrir" ? std::optional(Heard({})) : Try(row);
            if (!said || !heard || *said != *heard) {
                ++lies;
                qWarning().noquote() << row.line << row.keys << "says" << row.heard << "and is heard"
                                     << (heard ? "«" + heard->join("», «") + "»" : "never: no such key");
            }
        }
        QCOMPARE(lies, 0);
    }

    // Whether a key does anything on a screen that has just been opened: something is heard, or a menu or a box opens.
    void a_key_of_the_quick_reference_works_where_it_says_and_nowhere_else_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QList<const app::Pantalla*>>("screens");
        QMap<QString, QList<const app::Pantalla*>> where;
        const QList<Table> tables = Tables("qué hacen");
        QCOMPARE(tables.size(), 1);
        for (const Row& row : tables.first().rows) {
            // What moves and types is different from box to box; the examples try that. All screens close.
            static const QRegularExpression here("^(Tab|Mayús\\+Tab|Intro|Espacio|L|Alt\\+F4)$");
            for (const QString& key : row.keys.split(", ")) {
                if (!here.match(key).hasMatch()) {
                    where[key] += Screens(row.second);
                }
            }
        }
        for (auto key = where.begin(); key != where.end(); ++key) {
            QTest::addRow("%s", qPrintable(key.key())) << key.key() << key.value();
        }
    }
    void a_key_of_the_quick_reference_works_where_it_says_and_nowhere_else()
    {
        QFETCH(const QString, key);
        QFETCH(const QList<const app::Pantalla*>, screens);
        QVERIFY(!screens.isEmpty());
        for (const app::Pantalla& pantalla : app::pantallas) {
            numeros::FijarSemilla(seed);
            OpenScreen(pantalla.crear());
            m_ear->Take();
            const auto heard = Try({0, key, {}, {}});
            QVERIFY(heard);
            QWidget* const menu = QApplication::activePopupWidget();
            QVERIFY2((menu != nullptr || !heard->isEmpty()) == screens.contains(&pantalla),
                     qPrintable(QString::fromUtf8(pantalla.caption) + ": " + heard->join(", ")));
            if (menu != nullptr) {
                menu->close();
            }
            CloseScreen();
        }
    }

    void the_quick_reference_has_every_key()
    {
        QSet<QString> known;
        for (const Table& table : Tables("qué hacen")) {
            for (const Row& row : table.rows) {
                const QStringList keysOfRow = row.keys.split(", ");
                known += QSet(keysOfRow.begin(), keysOfRow.end());
            }
        }
        for (const Table& table : Tables()) {
            for (const Row& row : table.rows) {
                const bool isExample = row.second == row.heard; // it has two columns
                for (const QString& key : isExample ? QStringList() : row.keys.split(", ")) {
                    QVERIFY2(key == "al abrir" || key.startsWith("escribir ") || known.contains(key), qPrintable(key));
                }
            }
        }
    }

    // A heading of its own for each exercise, in the menu's order and words.
    void every_exercise_has_its_section()
    {
        QStringList headings;
        for (const Table& table : Tables()) {
            if (headings.isEmpty() || headings.last() != table.screen) {
                headings += table.screen;
            }
        }
        QStringList screens;
        for (const app::Pantalla& pantalla : app::pantallas) {
            screens += QString::fromUtf8(pantalla.caption).remove('&');
        }
        QCOMPARE(headings, screens);
    }
};

KELVORA_TEST_MAIN(tst_Manual)
#include "tst_Manual.moc"
