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
#include <QMenu>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTimer>

#include <array>

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

// A row of a table that has no column of what the keys do.
bool IsExample(const Row& row)
{
    return row.second == row.heard;
}

// The rows of all keys at a glance; the last cell is what they do.
QList<Row> Reference()
{
    const QList<Table> tables = Tables("qué hacen");
    if (tables.size() != 1) {
        qFatal("there are %lld tables of all keys", static_cast<long long>(tables.size()));
    }
    return tables.front().rows;
}
// Keys that do something else, or nothing, from box to box.
const QRegularExpression
    here("^(Tab|Mayús\\+Tab|Intro|Espacio|L|Alt\\+F4|Derecha|Izquierda|Arriba|Abajo|Retroceso|Supr)$");

const QMap<QString, Qt::Key> keys{{"Tab", Qt::Key_Tab},       {"Intro", Qt::Key_Return},
                                  {"Espacio", Qt::Key_Space}, {"Escape", Qt::Key_Escape},
                                  {"Derecha", Qt::Key_Right}, {"Izquierda", Qt::Key_Left},
                                  {"Arriba", Qt::Key_Up},     {"Abajo", Qt::Key_Down},
                                  {"F1", Qt::Key_F1},         {"F2", Qt::Key_F2},
                                  {"F3", Qt::Key_F3},         {"F4", Qt::Key_F4},
                                  {"Supr", Qt::Key_Delete},   {"Retroceso", Qt::Key_Backspace}};

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

// What a row says is heard: the texts in «», or none where it says "nada", or "nada más" than the character that the
// reader says by itself. Null where it says anything else.
std::optional<QStringList> Said(const Row& row)
{
    static const QRegularExpression quoted("«([^»]*)»(, |$)");
    static const QRegularExpression character("^(escribir|Derecha|Izquierda|Arriba|Abajo|Retroceso|Supr)\\b");
    QString cell = row.heard;
    QStringList said;
    for (auto match = quoted.globalMatch(cell); match.hasNext();) {
        said += match.next().captured(1);
    }
    cell.remove(quoted);
    const bool isNothing = said.isEmpty() && cell == (character.match(row.keys).hasMatch() ? "nada más" : "nada");
    return (cell.isEmpty() && !said.isEmpty()) || isNothing ? std::optional(said) : std::nullopt;
}

// What has come of a key.
struct Outcome
{
    QStringList heard;
    bool hasMoved = false; // the focus
    bool hasMenu = false;
    bool hasBox = false;
    bool hasWritten = false; // in the box in focus
    int down = 0;            // rows and places by which the caret there has moved
    int right = 0;
};

struct Caret
{
    QString text;
    int row;
    int column;
};
Caret CaretNow()
{
    if (const auto* rows = qobject_cast<QPlainTextEdit*>(QApplication::focusWidget())) {
        return {rows->toPlainText(), rows->textCursor().blockNumber(), rows->textCursor().positionInBlock()};
    }
    const auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    return box == nullptr ? Caret{{}, 0, 0} : Caret{box->text(), 0, box->cursorPosition()};
}

// What a row has to bring where what it says that its keys do begins like this; `exercise` is what is heard of that.
struct Effect
{
    const char* words;
    bool (*has)(const Outcome& outcome, const QString& exercise);
};
constexpr std::array effects{
    Effect{"(Repite|Lee la operación|Lo mismo que F3)\\b",
           [](const Outcome& outcome, const QString& exercise) { return outcome.heard == QStringList{exercise}; }},
    Effect{"(Lee la fracción|Lo mismo que F2)\\b",
           [](const Outcome& outcome, const QString& exercise) {
               return outcome.heard.size() == 1 && outcome.heard.front() != exercise && !outcome.hasMoved;
           }},
    Effect{"Dice el marcador\\.",
           [](const Outcome& outcome, const QString&) { return outcome.heard.join(' ').startsWith("Ejercicios:"); }},
    Effect{"(Hecho[:.]|En una casilla corrige|Corrige)",
           [](const Outcome& outcome, const QString&) { return !outcome.heard.filter("correct").isEmpty(); }},
    Effect{"(Pide|Piden)\\b", [](const Outcome& outcome, const QString&) { return outcome.hasBox; }},
    Effect{"Abre las opciones\\b", [](const Outcome& outcome, const QString&) { return outcome.hasMenu; }},
    Effect{"(Va|Van|Pasa|Pasan|Sale|Desde)\\b",
           [](const Outcome& outcome, const QString&) { return outcome.hasMoved; }},
    Effect{"Pinta\\b", [](const Outcome& outcome, const QString&) { return !outcome.heard.filter("rojo").isEmpty(); }},
    Effect{"Otra vez, le quita la pintura\\b",
           [](const Outcome& outcome, const QString&) { return !outcome.heard.filter("verde").isEmpty(); }},
    Effect{"(Mueve|Mueven)\\b",
           [](const Outcome& outcome, const QString&) { return !outcome.heard.filter("posición").isEmpty(); }},
    // What follows of these captions has effects that the examples show.
    Effect{"(Borrar|Continuar|Ver solución)[:.]", [](const Outcome&, const QString&) { return true; }},
    Effect{"(En la primera no mueve nada|En las fracciones que se dan no corrige)\\b",
           [](const Outcome& outcome, const QString&) {
               return outcome.heard.filter(QRegularExpression("posición|correct")).isEmpty() && !outcome.hasMoved;
           }},
    Effect{"(Divide|Ocupa el sitio|Borra)\\b",
           [](const Outcome& outcome, const QString&) { return outcome.hasWritten && !outcome.hasMoved; }},
    Effect{"Baja\\b", [](const Outcome& outcome, const QString&) { return outcome.down == 1; }},
    Effect{"Sube\\b", [](const Outcome& outcome, const QString&) { return outcome.down == -1; }},
    Effect{"Avanza\\b", [](const Outcome& outcome, const QString&) { return outcome.right == 1 && outcome.down == 0; }},
    Effect{"Retrocede\\b",
           [](const Outcome& outcome, const QString&) { return outcome.right == -1 && outcome.down == 0; }},
    Effect{"$", [](const Outcome&, const QString&) { return true; }},
};

// The screens that a cell names, by a word of their captions, or all but those.
QList<const app::Pantalla*> Screens(QString cell)
{
    static const QMap<QString, QString> others{
        {"factores primos", "factores"}, {"expresa con fracciones", "Expresa"}, {"series", "serie"}};
    const bool isAllBut = cell.startsWith("todos, menos ");
    cell.remove("todos, menos ").replace(" y ", ", ");
    QList<const app::Pantalla*> screens;
    for (const app::Pantalla& pantalla : app::pantallas) {
        const QString caption = QString::fromUtf8(pantalla.caption).remove('&');
        bool isNamed = cell == "en todos los ejercicios";
        for (QString name : cell.split(", ")) {
            name.remove(QRegularExpression("^(resultado de )?(la|las) |^desde .*"));
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
    // What the reader says of what the ear has taken: messages, and what has come into focus, if it was elsewhere, with
    // what a box holds.
    QStringList Heard(const QString& before) const
    {
        QStringList heard;
        qsizetype place = 0; // of the focus
        for (const QString& told : m_ear->Take()) {
            if (told.startsWith("FOCUS ")) {
                place = heard.size();
            } else if (told.startsWith("SAY partes coloreadas:")) {
                // Newer readers have read the new name by themselves.
                heard += Name(Focus()) + "; " + told.mid(4);
            } else if (told != "BEEP") { // which not every desktop can do
                heard += told.mid(told.indexOf(' ') + 1).simplified();
            }
        }
        if (Focus() != before) {
            const auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
            heard.insert(place, (Name(Focus()) + (box != nullptr ? " " + box->text() : QString())).simplified());
        }
        return heard;
    }

    // Does what a row says, and hears it. Boxes and menus that open are heard, and left with Escape.
    std::optional<Outcome> Try(const Row& row) const
    {
        const QString before = Focus();
        const Caret caret = CaretNow();
        Outcome outcome;
        QTimer timer;
        connect(&timer, &QTimer::timeout, &timer, [&outcome] {
            if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                for (const QString& told : Ear::TakeSoFar().filter("SAY ")) {
                    outcome.heard += told.mid(4).simplified();
                }
                outcome.heard += box->windowTitle();
                for (QLabel* label : box->findChildren<QLabel*>()) {
                    if (const QString text = label->text(); !text.isEmpty()) {
                        // Where a box would cut off what is said before it opens, its text begins with that.
                        QString told = QAccessible::queryAccessibleInterface(label)->text(QAccessible::Name);
                        if (told != text && told.endsWith(". " + text)) {
                            outcome.heard.prepend(told.chopped(text.size() + 2));
                        }
                        outcome.heard += text.simplified();
                    }
                }
                outcome.hasBox = true;
                QTest::keyClick(box, Qt::Key_Escape);
            }
        });
        timer.start(0);
        if (!Do(row.keys)) {
            return std::nullopt;
        }
        timer.stop();
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            outcome.heard += menu->activeAction() == nullptr ? "-" : menu->activeAction()->text().remove('&');
            outcome.hasMenu = true;
            QTest::keyClick(menu, Qt::Key_Escape);
            QTest::keyClick(m_form->focusWidget(), Qt::Key_Escape); // out of the bar
        }
        if (outcome.hasMenu || outcome.hasBox) {
            Activate();
            m_ear->Take();
        } else {
            outcome.heard = Heard(before);
            outcome.hasMoved = Focus() != before;
        }
        const Caret now = CaretNow();
        outcome.hasWritten = now.text != caret.text;
        outcome.down = now.row - caret.row;
        outcome.right = now.column - caret.column;
        return outcome;
    }

    // What is not true of what a row says that its keys do, or nothing.
    QString Lie(const QString& does, const QString& key, const Outcome& outcome, const QString& exercise) const
    {
        const auto* const effect = std::ranges::find_if(effects, [&does](const Effect& one) {
            return QRegularExpression(QString("^(%1)").arg(one.words)).match(does).hasMatch();
        });
        if (effect == effects.end()) {
            return "does what no test knows";
        }
        if (!effect->has(outcome, exercise)) {
            return "does something else";
        }
        static const QRegularExpression caption("^(Hecho|Borrar|Continuar|Ver solución)[:.]");
        if (const auto named = caption.match(does); named.hasMatch()) {
            const auto buttons = m_form->findChildren<QPushButton*>();
            const bool isItsKey = std::ranges::any_of(buttons, [&](const QPushButton* button) {
                return button->text().remove('&') == named.captured(1) &&
                       button->text().contains("&" + key.last(1), Qt::CaseInsensitive);
            });
            return isItsKey ? QString() : "is no key of that button";
        }
        return {};
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
        QString exercise;
        for (const Row& row : table.rows) {
            const auto said = Said(row);
            const auto outcome = row.keys == "al abrir" ? std::optional(Outcome{Heard({})}) : Try(row);
            if (!said || !outcome || *said != outcome->heard) {
                ++lies;
                qWarning().noquote() << row.line << row.keys << "says" << row.heard << "and is heard"
                                     << (outcome ? "«" + outcome->heard.join("», «") + "»" : "never: no such key");
                continue;
            }
            if (row.keys == "al abrir") {
                exercise = outcome->heard.last();
            } else if (!IsExample(row)) {
                static const QRegularExpression caption("^(Borrar|Ver solución):");
                const bool stays = Name(Focus()) == caption.match(row.second).captured(1);
                const QString lie = stays != row.second.contains("se queda en su botón")
                                        ? "ends elsewhere"
                                        : Lie(row.second, row.keys, *outcome, exercise);
                if (!lie.isEmpty()) {
                    ++lies;
                    qWarning().noquote() << row.line << row.keys << row.second << lie;
                }
            }
        }
        QCOMPARE(lies, 0);
    }

    // Whether a key does on a screen that has just been opened what is said of it, or nothing: nothing is heard, no
    // menu and no box opens.
    void a_key_of_the_quick_reference_works_where_it_says_and_nowhere_else_data()
    {
        QTest::addColumn<QString>("key");
        for (const Row& row : Reference()) {
            for (const QString& key : row.keys.split(", ")) {
                if (!here.match(key).hasMatch()) {
                    QTest::addRow("%d %s", row.line, qPrintable(key)) << key;
                }
            }
        }
    }
    void a_key_of_the_quick_reference_works_where_it_says_and_nowhere_else()
    {
        QFETCH(const QString, key);
        for (const app::Pantalla& pantalla : app::pantallas) {
            QString does;
            for (const Row& row : Reference()) {
                if (row.keys.split(", ").contains(key) && Screens(row.second).contains(&pantalla)) {
                    QVERIFY2(does.isEmpty(), "told twice");
                    does = row.heard; // its last cell
                }
            }
            numeros::FijarSemilla(seed);
            OpenScreen(pantalla.crear());
            const QString exercise = Heard({}).last();
            const Outcome outcome = Try({0, key, {}, {}}).value_or(Outcome{});
            QCOMPARE(outcome.heard.isEmpty(), does.isEmpty());
            QCOMPARE(does.isEmpty() ? QString() : Lie(does, key, outcome, exercise), QString());
            CloseScreen();
        }
    }

    // What a key does depends on where one is: tried in each box, or on all that is neither box nor command.
    void a_key_for_certain_places_works_in_them_and_on_no_other_screen_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("inBoxes");
        QTest::newRow("Intro") << "Intro" << true;
        QTest::newRow("Espacio") << "Espacio" << false;
        QTest::newRow("L") << "L" << false;
    }
    void a_key_for_certain_places_works_in_them_and_on_no_other_screen()
    {
        QFETCH(const QString, key);
        QFETCH(const bool, inBoxes);
        QSet<const app::Pantalla*> told;
        for (const Row& row : Reference()) {
            if (row.keys.split(", ").contains(key)) {
                const auto screens = Screens(row.second);
                told += QSet(screens.begin(), screens.end());
            }
        }
        QSet<const app::Pantalla*> found;
        for (const app::Pantalla& pantalla : app::pantallas) {
            OpenScreen(pantalla.crear());
            for (QWidget* place : m_form->findChildren<QWidget*>()) {
                const bool isBox = qobject_cast<QLineEdit*>(place) != nullptr;
                const bool isOther = !isBox && qobject_cast<QPlainTextEdit*>(place) == nullptr &&
                                     !place->objectName().startsWith("Command");
                if (place->isVisible() && place->isEnabled() && place->focusPolicy() != Qt::NoFocus &&
                    (inBoxes ? isBox : isOther)) {
                    place->setFocus();
                    m_ear->Take();
                    Do(key);
                    if (!m_ear->TakeSaid().isEmpty()) {
                        found += &pantalla;
                    }
                }
            }
            CloseScreen();
        }
        QCOMPARE(found, told);
    }

    void tab_leads_on_and_back_on_every_screen()
    {
        for (const app::Pantalla& pantalla : app::pantallas) {
            OpenScreen(pantalla.crear());
            const QString first = Focus();
            Press(Qt::Key_Tab);
            QVERIFY(Focus() != first);
            Press(Qt::Key_Backtab);
            QCOMPARE(Focus(), first);
            CloseScreen();
        }
    }

    // The table of an exercise has the keys that the quick reference knows for it, and no others.
    void the_quick_reference_and_the_tables_have_the_same_keys()
    {
        for (const app::Pantalla& pantalla : app::pantallas) {
            const QString caption = QString::fromUtf8(pantalla.caption).remove('&');
            QStringList known;
            for (const Row& row : Reference()) {
                if (Screens(row.second).contains(&pantalla)) {
                    known += row.keys.split(", ");
                }
            }
            QStringList listed;
            for (const Table& table : Tables()) {
                for (const Row& row : table.rows) {
                    if (table.screen == caption && !IsExample(row) && !row.keys.startsWith("escribir ") &&
                        row.keys != "al abrir") {
                        listed += row.keys.split(", ");
                    }
                }
            }
            known.removeDuplicates();
            for (const QString& key : known) {
                QVERIFY2(listed.contains(key), qPrintable(caption + ": " + key));
            }
            static const QRegularExpression general("^(Tab|Mayús\\+Tab|Intro)$");
            for (const QString& key : listed) {
                QVERIFY2(known.contains(key) || general.match(key).hasMatch(), qPrintable(caption + ": " + key));
            }
        }
    }

    // A letter of one button opens its screen, one of several leads on to the next of them.
    void the_quick_reference_has_every_letter_of_the_menu()
    {
        QMap<QString, int> buttons{{"Alt+S", 1}}; // Salir
        for (const app::Pantalla& pantalla : app::pantallas) {
            const QString caption = QString::fromUtf8(pantalla.caption);
            ++buttons["Alt+" + caption.mid(caption.indexOf('&') + 1, 1).toUpper()];
        }
        QMap<QString, bool> opens;
        for (const Row& row : Reference()) {
            for (const QString& key : row.second == "en el menú" ? row.keys.split(", ") : QStringList()) {
                opens[key] = row.heard.startsWith("Abren ");
            }
        }
        QCOMPARE(opens.keys(), buttons.keys());
        for (auto key = opens.begin(); key != opens.end(); ++key) {
            QVERIFY2(key.value() == (buttons[key.key()] == 1), qPrintable(key.key()));
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
