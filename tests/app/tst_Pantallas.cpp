// The list of screens against all that has to know of each of them: windows, sheet and source.
#include "Given.h"
#include "Pantallas.h"
#include "Screen.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

using namespace support;

namespace {

QString ToText(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString Contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// What the list and the sheet both tell of a screen.
QString Row(const QString& name, const QString& caption, const QString& button, bool isModal)
{
    return name + "; " + caption + "; " + button + (isModal ? "; modal" : "");
}

} // namespace

class tst_Pantallas : public QObject, private Screen
{
    Q_OBJECT

private slots:
    void each_opens_under_its_name_with_the_focus_on_its_first_stop()
    {
        for (const app::Pantalla& screen : app::pantallas) {
            OpenScreen(screen.crear());
            QCOMPARE(m_form->objectName(), ToText(screen.nombre));
            QCOMPARE(Focus(), ToText(screen.primero));
            CloseScreen();
        }
    }

    void the_sheet_has_each_with_its_button_and_whether_it_is_modal()
    {
        QStringList listed;
        for (const app::Pantalla& screen : app::pantallas) {
            listed += Row(ToText(screen.nombre), ToText(screen.caption), QString("Command1(%1)").arg(listed.size()),
                          screen.modality == ui::Modality::Modal);
        }
        const QList<QJsonObject> given = Given();
        const QJsonArray buttons = given[0]["controls"].toArray();
        QStringList onSheet;
        for (const QJsonObject& window : given.mid(1)) {
            const QString caption = buttons[onSheet.size()].toObject()["text"].toString();
            onSheet +=
                Row(window["name"].toString(), caption, window["opened by"].toString(), window["modal"].toBool());
        }
        QCOMPARE(onSheet, listed);
    }

    void every_screen_of_the_source_is_listed()
    {
        QSet<QString> listed;
        for (const app::Pantalla& screen : app::pantallas) {
            listed += ToText(screen.nombre);
        }
        QSet<QString> written;
        for (const char* folder : {"operaciones", "ejercicios"}) {
            for (const QFileInfo& header : QDir(QString(SOURCES "/") + folder).entryInfoList({"Form*.h"})) {
                const auto found = QRegularExpression(R"(class (\w+) final)").match(Contents(header.filePath()));
                if (found.hasMatch()) { // what is not final is a base of screens
                    written += found.captured(1);
                }
            }
        }
        QCOMPARE(written, listed);
    }

    void every_screen_and_every_rule_has_its_test()
    {
        const QDir tests(SOURCES "/tests");
        for (const app::Pantalla& screen : app::pantallas) {
            const QString test = "tst_" + ToText(screen.nombre) + ".cpp";
            QVERIFY2(tests.exists("ejercicios/" + test) || tests.exists("operaciones/" + test), qPrintable(test));
        }
        for (const QFileInfo& rule : QDir(SOURCES "/reglas").entryInfoList({"*.cpp"})) {
            const QString test = "reglas/tst_" + rule.baseName() + ".cpp";
            QVERIFY2(tests.exists(test), qPrintable(test));
        }
    }
};

KELVORA_TEST_MAIN(tst_Pantallas)
#include "tst_Pantallas.moc"
