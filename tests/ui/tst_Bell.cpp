// The bell itself, which the tests of the screens replace: it is the desktop's.
#include "Bell.h"
#include "Support.h"

#include <private/qguiapplication_p.h>
#include <qpa/qplatformintegration.h>

namespace {

// A desktop that counts how often it is rung, and does nothing else.
class Desktop final : public QPlatformIntegration
{
public:
    QPlatformWindow* createPlatformWindow(QWindow*) const override { return nullptr; }
    QPlatformBackingStore* createPlatformBackingStore(QWindow*) const override { return nullptr; }
    QAbstractEventDispatcher* createEventDispatcher() const override { return nullptr; }
    void beep() const override { ++rung; }

    mutable int rung = 0;
};

} // namespace

class tst_Bell : public QObject
{
    Q_OBJECT

private:
    // Beeps, on a desktop that counts.
    static int Rung()
    {
        static Desktop desktop; // deletes more than itself where it ends before the application
        desktop.rung = 0;
        QPlatformIntegration* const real = std::exchange(QGuiApplicationPrivate::platform_integration, &desktop);
        ui::Beep();
        QGuiApplicationPrivate::platform_integration = real;
        return desktop.rung;
    }

private slots:
    void rings_the_desktops_bell_once() { QCOMPARE(Rung(), 1); }

    void can_be_replaced_and_put_back()
    {
        int replaced = 0;
        ui::ReplaceBell([&replaced] { ++replaced; });
        QCOMPARE(Rung(), 0);
        QCOMPARE(replaced, 1);
        ui::ReplaceBell({});
        QCOMPARE(Rung(), 1);
        QCOMPARE(replaced, 1);
    }
};

KELVORA_TEST_MAIN(tst_Bell)
#include "tst_Bell.moc"
