#include "Look.h"

#include <QFontMetrics>
#include <QTest>

using namespace ui;

class tst_Look : public QObject
{
    Q_OBJECT

private slots:
    void twips_become_pixels_by_their_edges()
    {
        QCOMPARE(ToPixels({500, 500, 600, 555}, 1), QRect(33, 33, 40, 37));
        QCOMPARE(ToPixels({1650, 2500, 1500, 500}, 1), QRect(110, 167, 100, 33));
        QCOMPARE(ToPixels({150, 300, 450, 600}, 2), QRect(20, 40, 60, 80));
        QCOMPARE(ToPixels({0, 0, 15, 15}, 0.5).size(), QSize(1, 1));
    }

    void colours_are_written_blue_green_red()
    {
        QCOMPARE(ToQColor(Color::Red), QColor(255, 0, 0));
        QCOMPARE(ToQColor(Color::Green), QColor(0, 255, 0));
        QCOMPARE(ToQColor(Color::Yellow), QColor(255, 255, 0));
        QCOMPARE(ToQColor(Color::Cyan), QColor(0, 255, 255));
    }

    void type_has_a_sans_serif_to_fall_back_on()
    {
        QCOMPARE(Families("Comic Sans MS").mid(0, 2), QStringList({"Comic Sans MS", "Comic Neue"}));
        QCOMPARE(Families("Arial").mid(0, 2), QStringList({"Arial", "Liberation Sans"}));
        QCOMPARE(Families("Arial Narrow").mid(0, 3), QStringList({"Arial Narrow", "Liberation Sans Narrow", "Arial"}));
        QCOMPARE(Families("MS Sans Serif").mid(0, 2), QStringList({"MS Sans Serif", "Microsoft Sans Serif"}));
    }

    void contrast_follows_wcag()
    {
        QVERIFY(std::abs(Contrast(Qt::black, Qt::white) - 21) < 0.001);
        QCOMPARE(Contrast(Qt::red, Qt::red), 1.0);
        QVERIFY(std::abs(Contrast(Qt::black, QColor(255, 0, 0)) - 5.25) < 0.01);
        QCOMPARE(Contrast(Qt::white, Qt::blue), Contrast(Qt::blue, Qt::white));
    }

    void type_that_cannot_be_read_becomes_black_or_white()
    {
        QCOMPARE(ReadableOn(Qt::white, Qt::darkBlue), QColor(Qt::darkBlue));
        QCOMPARE(ReadableOn(QColor(0x30, 0x8c, 0xc6), Qt::white), QColor(Qt::black)); // Fusion's selection: 3.7
        QCOMPARE(ReadableOn(QColor(0x20, 0x20, 0x60), Qt::darkGray), QColor(Qt::white));
        for (int red = 0; red < 256; red += 15) {
            for (int green = 0; green < 256; green += 15) {
                const QColor background(red, green, 128);
                QVERIFY(Contrast(background, ReadableOn(background, Qt::gray)) >= 4.5);
            }
        }
    }

    void type_shrinks_until_the_text_fits_and_no_further()
    {
        QFont font("Arial");
        font.setPixelSize(20);
        const auto fitted = [&font](const QString& text) {
            return Fitting(font, text, QSize(40, 30), Qt::TextSingleLine, 9).pixelSize();
        };
        QCOMPARE(fitted("12"), 20);
        const int size = fitted("12345");
        QVERIFY(size < 20 && size > 9);
        QFont one = font;
        one.setPixelSize(size + 1);
        QVERIFY(QFontMetrics(one).horizontalAdvance("12345") > 40);
        QCOMPARE(fitted(QString(100, '8')), 9);
        QCOMPARE(fitted(QString(1'000'000, '8')), 9);
    }
};

QTEST_MAIN(tst_Look)
#include "tst_Look.moc"
