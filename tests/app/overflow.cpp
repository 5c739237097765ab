// A pupil who drives a number out of its range: by answering once more than the counters can count, or with a
// quantity and a numerator of one's own, or by divisors that are too large together, or one alone. Prints the score
// before and after, and the message that ends the program; its exit status is the program's.
#include "Application.h"
#include "Form2.h"
#include "FormCantidad.h"
#include "FormConversion.h"
#include "FormFactores.h"
#include "Support.h"

#include <QAction>
#include <QInputDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <cstdio>
#include <string_view>

namespace {

constexpr int mostThatCounts = 32767;

void PressTheLastKey(const QWidget& form, const QString& scoreName = "tbResultados", Qt::Key key = Qt::Key_Return,
                     Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const auto& score = support::Child<QLineEdit>(form, scoreName);
    std::printf("%s\n", qUtf8Printable(score.text()));
    support::WithDialog([key, modifiers] { support::Press(key, modifiers); },
                        [](QWidget& dialog) {
                            const auto& box = dynamic_cast<QMessageBox&>(dialog);
                            const bool critical = box.icon() == QMessageBox::Critical;
                            std::printf("%s%s: %s\n", critical ? "critical " : "", qUtf8Printable(box.windowTitle()),
                                        qUtf8Printable(box.text()));
                            QTest::keyClick(&dialog, Qt::Key_Return);
                        });
    std::printf("%s\n", qUtf8Printable(score.text()));
}

void AnswerWronglyTooOften(const QWidget& form)
{
    support::Child<QLineEdit>(form, "Text1(5)").setFocus();
    for (int i = 0; i < mostThatCounts; ++i) {
        support::Press(Qt::Key_Return);
    }
    PressTheLastKey(form);
}

// On the screen that counts and never shows it. No errors, whose counter would end the program, too.
void AnswerRightlyTooOften(const QWidget& form)
{
    support::Child<QPushButton>(form, "Command2(2)").click();
    auto& done = support::Child<QPushButton>(form, "Command1");
    for (int i = 0; i < mostThatCounts; ++i) {
        done.click();
    }
    done.setFocus();
    PressTheLastKey(form, "TBResultados");
}

void AskForTooMuch(QWidget& form)
{
    const auto type = [](const char* value) {
        return [value](QWidget& dialog) {
            dynamic_cast<QInputDialog&>(dialog).setTextValue(value);
            QTest::keyClick(&dialog, Qt::Key_Return);
        };
    };
    support::WithDialogs([&form] { support::Child<QAction>(form, "MnuOpcCan").trigger(); },
                         {type("2520")}); // which every denominator divides
    support::WithDialogs([&form] { support::Child<QAction>(form, "MnuOpcFrac").trigger(); }, {type("14"), type("2")});
    form.activateWindow();
    support::WaitActive(form);
    support::Child<QLineEdit>(form, "Text6").setFocus();
    PressTheLastKey(form); // 2520 * 14 is 35280
}

// Writes behind the bar of a row.
void WriteDivisor(const QWidget& form, const char* divisor)
{
    support::Child<QWidget>(form, "TbDesco").setFocus();
    for (int column = 0; column < 6; ++column) {
        support::Press(Qt::Key_Right);
    }
    support::Type(divisor);
}

void DivideByTooMuch(const QWidget& form)
{
    for (const char* divisor : {"256", "256"}) {
        WriteDivisor(form, divisor);
        support::Press(Qt::Key_Down);
        support::Press(Qt::Key_Home);
    }
    support::Child<QWidget>(form, "Command1").setFocus();
    PressTheLastKey(form);
}

// The access key leads out of the ladder, which is read there, and presses the button, which reads it once more while
// the program ends.
void DivideByTooMuchTwice(const QWidget& form)
{
    WriteDivisor(form, "400000");
    PressTheLastKey(form, "tbResultados", Qt::Key_H, Qt::AltModifier);
}

} // namespace

int main(int argc, char** argv)
{
    ui::Application application(argc, argv);
    const std::string_view way = argv[argc - 1];
    std::unique_ptr<ui::Form> form;
    std::function<void(QWidget & form)> act;
    if (way == "counting") {
        form = std::make_unique<operaciones::Form2>();
        act = AnswerWronglyTooOften;
    } else if (way == "counting unseen") {
        form = std::make_unique<ejercicios::FormConversion>();
        act = AnswerRightlyTooOften;
    } else if (way == "multiplying") {
        form = std::make_unique<ejercicios::FormCantidad>();
        act = AskForTooMuch;
    } else {
        form = std::make_unique<ejercicios::FormFactores>();
        act = way == "dividing twice" ? DivideByTooMuchTwice : DivideByTooMuch;
    }
    QMainWindow* window = &form->Window();
    ui::Form::Open(std::move(form), ui::Modality::Modeless);
    QTimer::singleShot(0, window, [window, act] {
        support::WaitActive(*window);
        act(*window);
    });
    return application.Run();
}
