// A pupil who answers wrongly once more than the counters can count. Prints the last score, and the message that ends
// the program; its exit status is the program's.
#include "Application.h"
#include "Form2.h"
#include "Support.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>

#include <cstdio>

namespace {

void AnswerWronglyTooOften(const QWidget& form)
{
    constexpr int most = 32767;
    const auto& score = support::Child<QLineEdit>(form, "tbResultados");
    support::Child<QLineEdit>(form, "Text1(5)").setFocus();
    for (int i = 0; i < most; ++i) {
        support::Press(Qt::Key_Return);
    }
    std::printf("%s\n", qPrintable(score.text()));
    support::WithDialog([] { support::Press(Qt::Key_Return); },
                        [](QWidget& dialog) {
                            const auto& box = dynamic_cast<QMessageBox&>(dialog);
                            const bool critical = box.icon() == QMessageBox::Critical;
                            std::printf("%s%s: %s\n", critical ? "critical " : "", qPrintable(box.windowTitle()),
                                        qPrintable(box.text()));
                            QTest::keyClick(&dialog, Qt::Key_Return);
                        });
    std::printf("%s\n", qPrintable(score.text()));
}

} // namespace

int main(int argc, char** argv)
{
    ui::Application application(argc, argv);
    auto* form = new operaciones::Form2;
    form->Open(ui::Modality::Modeless);
    QTimer::singleShot(0, form, [form] {
        support::WaitActive(*form);
        AnswerWronglyTooOften(*form);
    });
    return ui::Application::exec();
}
