#include "Accessible.h"

#include "Labels.h"

#include <QAccessible>
#include <QAccessibleWidget>

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
#include "AccessibleBefore68.h"
#endif

namespace ui {

namespace {

QAccessibleInterface* Interface(const QString&, QObject* object)
{
    if (auto* line = qobject_cast<LineWidget*>(object)) {
        return new QAccessibleWidget(line, QAccessible::Separator); // a plain widget is called a filler
    }
    if (auto* picture = qobject_cast<PictureWidget*>(object)) {
        return new QAccessibleWidget(picture, QAccessible::Grouping);
    }
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    return InterfaceBefore68(object);
#else
    return nullptr;
#endif
}

} // namespace

void InstallAccessibleInterfaces()
{
    QAccessible::installFactory(Interface);
}

void Announce(QWidget& source, const QString& text)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    ShowNotification(*source.window(), text);
#else
    QAccessibleAnnouncementEvent event(&source, text); // polite, as it is constructed
    QAccessible::updateAccessibility(&event);
#endif
}

} // namespace ui
