#include "Escalera.h"

#include <QTest>

#include <random>

using namespace reglas;
using numeros::Desbordamiento;

namespace {

// The editor as it is told: the handlers rewrite the text and let the key through to a plain editor. Positions count
// from 1; naive, and slow.
struct Naive
{
    QString text;
    int s = 0; // characters before the caret

    bool Type(QChar character)
    {
        if (text.mid(s, 1) == "|" && character != '=') {
            return false;
        }
        text = text.left(s) + text.mid(s + 1);
        const QString inserted = character == '\r' ? QString("\r\n") : QString(character);
        text = text.left(s) + inserted + text.mid(s);
        s += static_cast<int>(inserted.size());
        return true;
    }
    bool Backspace()
    {
        if (s == 0) {
            return true;
        }
        if (text.mid(s - 1, 1) == "|") {
            return false;
        }
        text = text.left(s) + " " + text.mid(s); // and the key deletes what is before the caret
        text = text.left(s - 1) + text.mid(s);
        --s;
        return true;
    }
    bool Delete()
    {
        if (text.mid(s, 1) == "|") {
            return false;
        }
        if (s < text.size()) {
            text = text.left(s) + " " + text.mid(s + 1);
        }
        return true;
    }
};

std::vector<int> Divisors(const char16_t* text)
{
    std::vector<int> read;
    for (const numeros::Entero16& divisor : Escalera(text, 0).LeerDivisores()) {
        read.push_back(divisor.Valor());
    }
    while (!read.empty() && read.back() == 0) {
        read.pop_back();
    }
    return read;
}

} // namespace

class tst_Escalera : public QObject
{
    Q_OBJECT

private slots:
    void a_new_ladder_has_fifteen_empty_rows()
    {
        const Escalera ladder;
        QCOMPARE(QString::fromStdU16String(ladder.Texto()), QString("     |    \r\n").repeated(15));
        QCOMPARE(ladder.Cursor(), 0);
        QVERIFY(Divisors(ladder.Texto().c_str()).empty());
    }

    void a_caret_beyond_the_text_stands_at_its_end()
    {
        QCOMPARE(Escalera(u"ab", 7).Cursor(), 2);
        QCOMPARE(Escalera(u"ab", -1).Cursor(), 0);
    }

    void edits_as_told_data()
    {
        QTest::addColumn<QString>("before"); // "^" is the caret
        QTest::addColumn<QString>("keys");   // "<" Backspace, "." Delete, "#" Enter
        QTest::addColumn<QString>("after");
        QTest::addColumn<bool>("done");
        const auto row = [](const char* name, const char* before, const char* keys, const char* after,
                            bool done = true) { QTest::newRow(name) << before << keys << after << done; };
        row("a digit takes a blank's place", "^     |    \r\n", "12", "12^   |    \r\n");
        row("a letter too", "^     |    \r\n", "x", "x^    |    \r\n");
        row("a bar stays", "     ^|    \r\n", "1", "     ^|    \r\n", false);
        row("but not from =", "     ^|    \r\n", "=", "     =^    \r\n");
        row("Enter over a bar", "     ^|    \r\n", "#", "     ^|    \r\n", false);
        row("Enter elsewhere", "^ab|\r\n", "#", "\r\n^b|\r\n");
        row("over a line end", "ab^\r\ncd", "x", "abx^\ncd");
        row("over a line feed", "ab\r^\ncd", "x", "ab\rx^cd");
        row("at the end", "ab^", "c", "abc^");
        row("Backspace blanks", " 12^  |", "<", " 1^   |");
        row("Backspace twice", " 12^  |", "<<", " ^    |");
        row("Backspace at a bar", "     |^    ", "<", "     |^    ", false);
        row("Backspace at a row's start", "ab\r\n^cd", "<", "ab\r^ cd");
        row("Backspace at the start", "^ab", "<", "^ab");
        row("Delete blanks", "^12", ".", "^ 2");
        row("Delete at a bar", "     ^|    ", ".", "     ^|    ", false);
        row("Delete on a line end", "ab^\r\ncd", ".", "ab^ \ncd");
        row("Delete at the end", "ab^", ".", "ab^");
        row("beyond ASCII", "^ ", "ñ", "ñ^");
    }
    void edits_as_told()
    {
        QFETCH(QString, before);
        QFETCH(QString, keys);
        QFETCH(QString, after);
        QFETCH(bool, done);
        const auto caret = static_cast<int>(before.indexOf('^'));
        Escalera ladder(before.remove('^').toStdU16String(), caret);
        bool last = true;
        for (const QChar key : keys) {
            const int character = key == '<' ? 8 : key == '#' ? 13 : key.unicode();
            last = (key == '.' ? ladder.Suprimir() : ladder.Pulsar(character)) == Escalera::Efecto::Hecho;
        }
        QCOMPARE(QString::fromStdU16String(ladder.Texto()).insert(ladder.Cursor(), '^'), after);
        QCOMPARE(last, done);
    }

    void other_control_characters_change_nothing()
    {
        for (int character = 1; character < ' '; ++character) {
            if (character == 8 || character == 13) { // Backspace and Enter
                continue;
            }
            const bool isForeign = character == 1 || character == 3 || character == 27; // Control+A, Control+C, Escape
            Escalera ladder(u" 1", 1);
            QCOMPARE(ladder.Pulsar(character), isForeign ? Escalera::Efecto::Ajeno : Escalera::Efecto::Negado);
            QCOMPARE(ladder.Texto(), u" 1");
            QCOMPARE(ladder.Cursor(), 1);
        }
    }

    void a_hundred_thousand_random_sequences_agree_with_a_naive_editor()
    {
        std::mt19937 random(5); // NOLINT(cert-msc51-cpp): the same sequences every time
        constexpr auto hecho = Escalera::Efecto::Hecho;
        const QString typed = "0123456789 |=x\r";
        for (int sequence = 0; sequence < 100'000; ++sequence) {
            Naive naive{QString("     |    \r\n").repeated(1 + static_cast<int>(random() % 3)), 0};
            naive.s = static_cast<int>(random() % static_cast<unsigned>(naive.text.size() + 1));
            Escalera ladder(naive.text.toStdU16String(), naive.s);
            for (int i = 0; i < 20; ++i) {
                bool expected = false;
                bool done = false;
                switch (random() % 5) {
                case 0:
                    expected = naive.Backspace();
                    done = ladder.Pulsar(8) == hecho;
                    break;
                case 1:
                    expected = naive.Delete();
                    done = ladder.Suprimir() == hecho;
                    break;
                case 2: // the caret is put somewhere else
                    naive.s = static_cast<int>(random() % static_cast<unsigned>(naive.text.size() + 1));
                    ladder = Escalera(naive.text.toStdU16String(), naive.s);
                    expected = done = true;
                    break;
                default: {
                    const QChar key = typed[static_cast<qsizetype>(random() % static_cast<unsigned>(typed.size()))];
                    expected = naive.Type(key);
                    done = ladder.Pulsar(key.unicode()) == hecho;
                    break;
                }
                }
                if (done != expected || QString::fromStdU16String(ladder.Texto()) != naive.text ||
                    ladder.Cursor() != naive.s) {
                    QFAIL(qPrintable(QString("sequence %1, key %2").arg(sequence).arg(i)));
                }
            }
        }
    }

    void reads_the_divisors()
    {
        using List = std::vector<int>;
        QCOMPARE(Divisors(u"   12|2   \r\n    6|2   \r\n    3|3   \r\n    1|    \r\n     |    \r\n"), (List{2, 2, 3}));
        QCOMPARE(Divisors(u"     |    \r\n    6|2   \r\n"), List{}); // the first empty row ends it
        QCOMPARE(Divisors(u"   12|    \r\n    6|2   \r\n"), (List{0, 2}));
        QCOMPARE(Divisors(u"  7 12   \r\n     |    \r\n"), List{712}); // no bar: from the first character
        QCOMPARE(Divisors(u"     |3|5 \r\n"), List{3});
        QCOMPARE(Divisors(u"     |2.5 \r\n     |3.5 \r\n"), (List{2, 4}));
        QCOMPARE(Divisors(u"     |2   "), List{}); // no line feed
        QCOMPARE(Divisors(u"\n     |2   \r\n"), (List{0, 2}));
        QCOMPARE(Divisors(u"     |25\n     |7\r\n"), (List{2, 7})); // a row ends one character before its line feed
        QCOMPARE(Divisors(u"     |ñ2  \r\n     |2ñ  \r\n"), (List{0, 2}));
        QCOMPARE(Divisors(u""), List{});
        const std::u16string row = u"     |2   \r\n";
        std::u16string many;
        for (int i = 0; i < 20; ++i) {
            many += row;
        }
        QCOMPARE(Divisors(many.c_str()).size(), std::size_t{15});
        QVERIFY_THROWS_EXCEPTION(Desbordamiento, Divisors(u"40000\r\n"));
    }

    void the_ladder_of_a_value_is_as_told()
    {
        const auto ladder = [](int value) { return QString::fromStdU16String(EscaleraDe(value)); };
        QCOMPARE(ladder(12), "   12|2   \r\n    6|2   \r\n    3|3   \r\n    1|\r\n");
        QCOMPARE(ladder(997), "  997|997 \r\n    1|\r\n");
        QCOMPARE(ladder(1), "    1|\r\n");
        QCOMPARE(ladder(0), "    1|\r\n");
        QCOMPARE(ladder(-7), "    1|\r\n");
        QCOMPARE(ladder(1009), " 1009|1009\r\n    1|\r\n"); // a prime beyond the table
        QCOMPARE(ladder(32749), "32749|32749\r\n    1|\r\n");
    }

    void every_ladder_is_read_as_its_decomposition()
    {
        for (int value = 1; value <= 1000; ++value) {
            std::vector<int> expected;
            for (const Division& division : Descomponer(value)) {
                expected.push_back(division.divisor);
            }
            QCOMPARE(Divisors(EscaleraDe(value).c_str()), expected);
        }
    }
};

QTEST_APPLESS_MAIN(tst_Escalera)
#include "tst_Escalera.moc"
