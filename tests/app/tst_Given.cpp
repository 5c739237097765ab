// The sheet of what is given, tests/support/given.json: of all twelve windows the names, captions, places, tab order,
// type, colours, menus and accessible names. Whatever a window has beyond the sheet is a fault, too.
#include "Given.h"
#include "Screen.h"
#include "Windows.h"

#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>

using namespace support;

namespace {

QString KindOf(const QWidget& widget)
{
    const std::pair<bool, const char*> kinds[]{
        {qobject_cast<const QLineEdit*>(&widget) != nullptr, "box"},
        {qobject_cast<const QPlainTextEdit*>(&widget) != nullptr, "lines"},
        {qobject_cast<const QPushButton*>(&widget) != nullptr, "button"},
        {qobject_cast<const QLabel*>(&widget) != nullptr, "label"},
        {qobject_cast<const QGroupBox*>(&widget) != nullptr, "frame"},
        {widget.inherits("ui::PictureWidget"), "picture"},
        {widget.inherits("ui::LineWidget"), "line"},
    };
    const auto* kind = std::ranges::find(kinds, true, &std::pair<bool, const char*>::first);
    return kind == std::end(kinds) ? widget.metaObject()->className() : kind->second;
}

// What is written on it, with line ends as given.
QString TextOf(const QWidget& widget)
{
    if (const auto* lines = qobject_cast<const QPlainTextEdit*>(&widget)) {
        return lines->toPlainText();
    }
    const char* property = KindOf(widget) == "frame" ? "title" : "text";
    return widget.property(property).toString();
}

bool IsLocked(const QWidget& widget)
{
    return widget.property("readOnly").toBool();
}

// The entries of a menu as they are read, each with its depth.
QList<std::pair<int, QAction*>> Entries(const QList<QAction*>& actions, int depth = 0)
{
    QList<std::pair<int, QAction*>> entries;
    for (QAction* action : actions) {
        entries += {depth, action};
        if (const auto* menu = action->menu<QMenu*>(); menu != nullptr) {
            entries += Entries(menu->actions(), depth + 1);
        }
    }
    return entries;
}

} // namespace

class tst_Given : public QObject, private Screen
{
    Q_OBJECT

private:
    QJsonObject m_given;

    static QString NameOf(QWidget& widget)
    {
        return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
    }

    static QString KeysOf(QWidget& widget)
    {
        return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Description);
    }

    void VerifyColour(QWidget& widget, const QJsonObject& given) const
    {
        if (given.contains("colour")) {
            const QRect face = widget.mask().isEmpty() ? widget.rect() : widget.mask().boundingRect();
            const QColor seen = widget.grab().toImage().pixelColor(face.topLeft() + QPoint(5, 5));
            QCOMPARE(seen.name(), given["colour"].toString());
        }
        if (KindOf(widget) == "box" || KindOf(widget) == "lines") {
            const QPalette desktop = QApplication::palette();
            const QPalette::ColorRole base = given["selection"].toBool() ? QPalette::Highlight
                                             : IsLocked(widget)          ? QPalette::Window
                                                                         : QPalette::Base;
            QCOMPARE(widget.palette().color(QPalette::Base), desktop.color(base));
        }
    }

    void VerifyControl(QWidget& widget, const QJsonObject& given) const
    {
        const QString kind = KindOf(widget);
        QCOMPARE(kind, given["kind"].toString());
        if (given.contains("text")) {
            QCOMPARE(TextOf(widget).remove('\r'), given["text"].toString().remove('\r'));
        }
        if (given.contains("says")) {
            QCOMPARE(NameOf(widget), given["says"].toString());
        } else if (given.contains("text") && kind != "box" && kind != "lines") {
            QCOMPARE(NameOf(widget), given["text"].toString().remove('&'));
        }
        if (given.contains("place")) {
            const QJsonArray place = given["place"].toArray();
            QVERIFY(StandsAt(given["name"].toString(), place[0].toDouble(), place[1].toDouble(), place[2].toDouble(),
                             place[3].toDouble()));
        }
        QCOMPARE(KeysOf(widget), given["keys"].toString());
        const QString inside = given["inside"].toString();
        QCOMPARE(widget.parentWidget(), inside.isEmpty() ? m_form->centralWidget() : &Child<QWidget>(*m_form, inside));
        if (kind == "box" || kind == "lines") {
            QCOMPARE(IsLocked(widget), !given["open"].toBool());
        }
        if (const auto* box = qobject_cast<QLineEdit*>(&widget)) {
            QCOMPARE(box->alignment().testFlag(Qt::AlignHCenter), given["centred"].toBool());
        }
        if (given.contains("type")) { // family, points, weight
            const QString type = given["type"].toString();
            const QStringList words = type.split(' ');
            const bool bold = words.back() == "bold";
            const double pixels = words[words.size() - (bold ? 2 : 1)].toDouble() * 96 / 72;
            QCOMPARE(widget.font().families().front(), words.mid(0, words.size() - (bold ? 2 : 1)).join(' '));
            QCOMPARE(widget.font().bold(), bold);
            // A box makes the type of a text smaller that does not go into it.
            const int seen = widget.font().pixelSize();
            QVERIFY2(std::abs(seen - pixels) <= 1 || (kind == "box" && seen < pixels),
                     qPrintable(QString::number(seen)));
        }
        VerifyColour(widget, given);
    }

private slots:
    void initTestCase_data()
    {
        QTest::addColumn<QJsonObject>("given");
        for (const QJsonObject& window : Given()) {
            QTest::addRow("%s", qPrintable(window["name"].toString())) << window;
        }
    }

    void init()
    {
        QFETCH_GLOBAL(QJsonObject, given);
        m_given = given;
        numeros::FijarSemilla(7);
        const auto window = std::ranges::find(Windows(), given["name"].toString(), &Window::name);
        QVERIFY(window != Windows().end());
        OpenScreen(window->make());
    }
    void cleanup() { CloseScreen(); }

    void the_window_has_its_name_title_and_size()
    {
        QCOMPARE(m_form->objectName(), m_given["name"].toString());
        QCOMPARE(m_form->windowTitle(), m_given["title"].toString());
        QCOMPARE(KeysOf(*m_form), m_given["keys"].toString());
        QCOMPARE(m_form->centralWidget()->size(),
                 (QSizeF(m_given["width"].toInt(), m_given["height"].toInt()) / 15).toSize());
    }

    void each_control_is_as_given()
    {
        for (const QJsonObject& given : Objects(m_given["controls"].toArray())) {
            const QString name = given["name"].toString();
            VerifyControl(Child<QWidget>(*m_form, name), given);
            if (QTest::currentTestFailed()) {
                qInfo("at %s", qPrintable(name));
                return;
            }
        }
    }

    void there_is_nothing_else()
    {
        QStringList given;
        for (const QJsonObject& control : Objects(m_given["controls"].toArray())) {
            given += control["name"].toString();
        }
        // Parts and tokens are made as an exercise needs them.
        const QStringList made{"FormRepresentacion", "FormFichas"};
        for (const QWidget* widget : m_form->centralWidget()->findChildren<QWidget*>()) {
            const QString name = widget->objectName();
            const bool isMade =
                made.contains(m_form->objectName()) && widget->parentWidget()->objectName() == "Picture1";
            QVERIFY2(name.isEmpty() || name.startsWith("qt_") || given.contains(name) || isMade, qPrintable(name));
        }
    }

    void f4_tells_the_score_where_one_is_kept()
    {
        QStringList score;
        for (const QJsonObject& control : Objects(m_given["controls"].toArray())) {
            if (control["score"].toBool()) {
                score += "SAY " + TextOf(Child<QWidget>(*m_form, control["name"].toString()));
            }
        }
        m_ear->Take();
        const QString first = Focus();
        do {
            const QString focus = Focus();
            Press(Qt::Key_F4);
            QCOMPARE(m_ear->Take(), score);
            QCOMPARE(Focus(), focus);
            Press(Qt::Key_Tab);
            m_ear->Take();
        } while (Focus() != first);
    }

    void tab_goes_in_the_given_order()
    {
        QMap<int, QString> order;
        for (const QJsonObject& control : Objects(m_given["controls"].toArray())) {
            const QString name = control["name"].toString();
            const QWidget& widget = Child<QWidget>(*m_form, name);
            if (!control["tab"].isUndefined() && KindOf(widget) != "label" && widget.isVisible()) {
                QVERIFY2(!order.contains(control["tab"].toInt()), qPrintable(name));
                order[control["tab"].toInt()] = name;
            }
        }
        QStringList seen = TabRound();
        seen.removeIf([&order](const QString& name) { return !order.values().contains(name); }); // what is made
        QCOMPARE(seen, order.values());
    }

    void the_menus_are_as_given()
    {
        const QList<QJsonObject> given = Objects(m_given["menus"].toArray());
        QCOMPARE(m_form->menuWidget() == nullptr, given.isEmpty());
        const auto seen = given.isEmpty() ? QList<std::pair<int, QAction*>>() : Entries(m_form->menuBar()->actions());
        QCOMPARE(seen.size(), given.size());
        for (qsizetype i = 0; i < seen.size(); ++i) {
            const auto& [depth, entry] = seen[i];
            const QJsonObject& row = given[i];
            QCOMPARE(entry->objectName(), row["name"].toString());
            QCOMPARE(depth, row["depth"].toInt());
            QCOMPARE(entry->text(), row["caption"].toString());
            QCOMPARE(entry->isCheckable(), row.contains("checked"));
            QCOMPARE(entry->isChecked(), row["checked"].toBool());
            QCOMPARE(entry->shortcut().toString(), row["key"].toString());
        }
    }
};

KELVORA_TEST_MAIN(tst_Given)
#include "tst_Given.moc"
