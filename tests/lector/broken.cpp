// The program with a fault that no lesson may pass over: the one that KELVORA_FAULT names, built in place of
// ui/reader/Accessible.cpp. The real announcing is in here under another name.
#define Announce AnnounceRightly
#define SetUpAccessibility SetUpRightly
#include "../../ui/reader/Accessible.cpp" // NOLINT(bugprone-suspicious-include)
#undef Announce
#undef SetUpAccessibility

#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

namespace ui {

namespace {

bool Has(const char* fault)
{
    return qgetenv("KELVORA_FAULT") == fault;
}

QPointer<QWidget> lateSource;
QString lateText;

// Sees every event before the program does.
class Fiend final : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress && watched->isWidgetType()) {
            if (Has("late") && lateSource) {
                AnnounceRightly(*std::exchange(lateSource, nullptr), lateText);
            }
            if (Has("astray") && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
                Find<QWidget>(watched, "tbResultados", [](QWidget& score) { score.setFocus(); });
            }
        }
        if (Has("nameless") && event->type() == QEvent::Show) {
            Find<QPushButton>(watched, "Command2(1)", [](QPushButton& clear) { clear.setAccessibleName(" "); });
        }
        return false;
    }

private:
    template <class T, class Deed>
    static void Find(QObject* watched, const QString& name, Deed deed)
    {
        if (auto* widget = qobject_cast<QWidget*>(watched)) {
            if (auto* found = widget->window()->findChild<T*>(name)) {
                deed(*found);
            }
        }
    }
};

} // namespace

void SetUpAccessibility()
{
    SetUpRightly();
    qApp->installEventFilter(new Fiend(qApp));
}

void Announce(QWidget& source, const QString& text)
{
    if (Has("mute")) {
        return;
    }
    if (Has("late")) {
        lateSource = &source;
        lateText = text;
        return;
    }
    QString said = text;
    if (Has("short")) {
        said.chop(1);
    }
    if (Has("english")) {
        said.replace("Resultado incorrecto", "Wrong result");
    }
    AnnounceRightly(source, said);
    if (Has("twice")) { // when the first has been heard
        QTimer::singleShot(3000, &source, [&source, text] { AnnounceRightly(source, text); });
    }
    static int readings = 0;
    if (Has("cut") && text.contains('=') && ++readings > 1) { // when a voice in haste has said it, and no other
        QTimer::singleShot(500, &source, [&source] {
            QAccessibleEvent focus(source.window()->findChild<QWidget*>("Command1"), QAccessible::Focus);
            QAccessible::updateAccessibility(&focus);
        });
    }
}

} // namespace ui
