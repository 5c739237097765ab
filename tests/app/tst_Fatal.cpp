#include <QProcess>
#include <QTest>

class tst_Fatal : public QObject
{
    Q_OBJECT

private slots:
    void a_number_beyond_its_range_ends_the_program_with_a_message_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<QString>("score");
        QTest::addRow("counter") << "counting"
                                 << "Ejercicios:32767; Errores:32767";
        QTest::addRow("counter that is not shown") << "counting unseen"
                                                   << "Ejercicios: 0; Errores: 0";
        QTest::addRow("product") << "multiplying"
                                 << "Ejercicios:  0; Errores:  0";
        QTest::addRow("divisors") << "dividing"
                                  << "Ejercicios:  0; Errores:  0";
        QTest::addRow("divisor, read again at the end") << "dividing twice"
                                                        << "Ejercicios:  0; Errores:  0";
    }
    void a_number_beyond_its_range_ends_the_program_with_a_message()
    {
        QFETCH(QString, way);
        QFETCH(QString, score);
        QProcess program;
        program.start(OVERFLOW_PROGRAM, {way});
        QVERIFY(program.waitForFinished(240'000));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 1);
        QCOMPARE(QString::fromUtf8(program.readAllStandardOutput().replace("\r\n", "\n")).split('\n'),
                 QStringList({score,
                              "critical Kelvora: Un número se ha salido del intervalo permitido, de -32768 a 32767. "
                              "El programa va a cerrarse.",
                              score, ""}));
    }

    void a_screen_that_asks_for_what_its_design_has_not_ends_the_program_data()
    {
        QTest::addColumn<QString>("told");
        QTest::addRow("nothing") << "";
        QTest::addRow("control") << "Muestra has no such control as Text2\n";
        QTest::addRow("array") << "Muestra has no such control as Command1\n";
        QTest::addRow("kind") << "Muestra has no such control as Text1\n";
        QTest::addRow("menu") << "Muestra has no such control as MnuOpcSal\n";
        QTest::addRow("handler") << "Muestra has no such control as Text3\n";
    }
    void a_screen_that_asks_for_what_its_design_has_not_ends_the_program()
    {
        QFETCH(QString, told);
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_FORCE_STDERR_LOGGING", "1"); // not to a debugger, as a program of Windows does
        program.setProcessEnvironment(environment);
        program.start(MISSPELT_PROGRAM, {QTest::currentDataTag()});
        QVERIFY(program.waitForFinished(60'000));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), told.isEmpty() ? 0 : 1);
        const QString said = QString::fromUtf8(program.readAllStandardError().replace("\r\n", "\n"));
        // Where the desktop lacks something Qt tells that before.
        QVERIFY2(told.isEmpty() ? !said.contains("no such") : said.endsWith(told), qPrintable(said));
    }
};

QTEST_GUILESS_MAIN(tst_Fatal)
#include "tst_Fatal.moc"
