#include <QProcess>
#include <QTest>

class tst_Fatal : public QObject
{
    Q_OBJECT

private slots:
    void a_counter_beyond_its_range_ends_the_program_with_a_message()
    {
        QProcess program;
        program.start(OVERFLOW_PROGRAM, QStringList());
        QVERIFY(program.waitForFinished(240'000));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 1);
        const QString score = "Ejercicios:32767; Errores:32767";
        QCOMPARE(QString::fromUtf8(program.readAllStandardOutput()).split('\n'),
                 QStringList({score,
                              "critical Kelvora: Un número se ha salido del intervalo permitido, de -32768 a 32767. "
                              "El programa va a cerrarse.",
                              score, ""}));
    }
};

QTEST_GUILESS_MAIN(tst_Fatal)
#include "tst_Fatal.moc"
