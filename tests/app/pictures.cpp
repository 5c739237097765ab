// Takes the documentation's pictures from the program: those of the manual, and all twelve windows at three sizes in a
// light and a dark theme, side by side. Its argument is the folder that they go to.
#include "Application.h"
#include "Azar.h"
#include "Support.h"
#include "Windows.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QMainWindow>
#include <QPainter>
#include <QStyle>

namespace {

constexpr double shrink = 0.4; // of the sheet
constexpr int gap = 16;        // pixels between its pictures

QPalette Dark()
{
    const QColor window(53, 53, 53);
    QPalette dark(Qt::white, window, window.lighter(), window.darker(), window, Qt::white, Qt::white,
                  QColor(35, 35, 35), window);
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    return dark;
}

// Opens a window anew, has it used and takes its picture.
template <class Use>
QImage Picture(const support::Window& window, double scale, Use use)
{
    numeros::FijarSemilla(7);
    auto screen = window.make();
    QMainWindow* form = &screen->Window();
    ui::Form::Open(std::move(screen), ui::Modality::Modeless);
    support::WaitActive(*form);
    form->resize(form->size() * scale);
    support::Settle();
    use(*form);
    QImage picture = form->grab().toImage();
    form->close();
    support::Settle();
    return picture;
}

void AnswerWrongly(const QWidget& form)
{
    support::Child<QLineEdit>(form, "Text1(4)").setFocus();
    support::Type("7");
    support::Child<QLineEdit>(form, "Text1(5)").setFocus();
    support::Type("8");
    support::Press(Qt::Key_Return);
    support::Settle();
}

void ShowSolution(const QWidget& form)
{
    support::Child<QAbstractButton>(form, "Command2(2)").click();
}

void ShowLetters(const QWidget& form)
{
    support::Child<QWidget>(form, "Command1").setFocus();
    support::Press(Qt::Key_L);
}

struct ManualPicture
{
    QString window;
    const char* file = nullptr;
    void (*use)(const QWidget& form) = [](const QWidget&) {};
};

const ManualPicture manual[]{
    {.window = "Form1", .file = "menu"},
    {.window = "Form2", .file = "suma", .use = AnswerWrongly},
    {.window = "FormConversion", .file = "conversion"},
    {.window = "FormOrdenar", .file = "ordenar"},
    {.window = "FormFactores", .file = "factores", .use = ShowSolution},
    {.window = "FormCantidad", .file = "cantidad"},
    {.window = "FormFichas", .file = "fichas", .use = ShowLetters},
    {.window = "FormRepresentacion", .file = "representacion", .use = ShowSolution},
    {.window = "FormSeries", .file = "series"},
};

bool SaveManual(const QString& folder)
{
    return std::ranges::all_of(manual, [&folder](const ManualPicture& picture) {
        const auto window = std::ranges::find(support::Windows(), picture.window, &support::Window::name);
        return Picture(*window, 1, picture.use).save(folder + picture.file + ".png");
    });
}

// A row for each window, and in it each theme's pictures from small to large.
QImage Sheet()
{
    const QPalette light = QApplication::style()->standardPalette();
    QList<QList<QImage>> rows;
    QList<int> widths;
    QSize size(gap, gap);
    for (const support::Window& window : support::Windows()) {
        QList<QImage> row;
        int height = 0;
        for (const QPalette& theme : {light, Dark()}) {
            QApplication::setPalette(theme);
            for (const double scale : {0.75, 1.0, 1.5}) {
                const QImage picture = Picture(window, scale, [](const QWidget&) {});
                row += picture.scaled(picture.size() * shrink, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
                height = std::max(height, row.back().height());
            }
        }
        widths.resize(row.size());
        for (qsizetype column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], row[column].width());
        }
        rows += row;
        size.rheight() += height + gap;
    }
    for (const int width : widths) {
        size.rwidth() += width + gap;
    }
    QImage sheet(size, QImage::Format_RGB32);
    sheet.fill(Qt::gray);
    QPainter painter(&sheet);
    int top = gap;
    for (const QList<QImage>& row : rows) {
        int left = gap;
        int height = 0;
        for (qsizetype column = 0; column < row.size(); ++column) {
            painter.drawImage(left, top, row[column]);
            left += widths[column] + gap;
            height = std::max(height, row[column].height());
        }
        top += height + gap;
    }
    QApplication::setPalette(light);
    return sheet;
}

} // namespace

int main(int argc, char** argv)
{
    const ui::Application application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QString folder = QApplication::arguments().value(1, ".");
    return SaveManual(folder + "/manual/") && Sheet().save(folder + "/ventanas.png") ? EXIT_SUCCESS : EXIT_FAILURE;
}
