#include "Registry.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>

#include <algorithm>

namespace ui {

namespace {

constexpr const char* service = "org.a11y.atspi.Registry";
constexpr const char* path = "/org/a11y/atspi/registry";

// Null where nobody answers in time.
std::optional<QStringList> RegisteredEvents(const QDBusConnection& bus)
{
    constexpr int patience = 300; // milliseconds
    const QDBusMessage answer =
        bus.call(QDBusMessage::createMethodCall(service, path, service, "GetRegisteredEvents"), QDBus::Block, patience);
    if (answer.signature() != "a(ss)") {
        return std::nullopt;
    }
    QStringList events;
    const auto list = answer.arguments().constFirst().value<QDBusArgument>();
    for (list.beginArray(); !list.atEnd();) {
        QString listener;
        QString event;
        list.beginStructure();
        list >> listener >> event;
        list.endStructure();
        events += event.toLower();
    }
    list.endArray();
    return events;
}

} // namespace

Registry& Registry::Instance()
{
    static Registry registry;
    return registry;
}

bool Registry::IsListenedToInSilence()
{
    if (m_known) {
        return *m_known;
    }
    QDBusConnection bus("a11y"); // Qt's own, once somebody listens
    if (!bus.isConnected()) {
        return false;
    }
    if (!m_isWatching) {
        m_isWatching = true;
        for (const char* change : {"EventListenerRegistered", "EventListenerDeregistered"}) {
            bus.connect(service, path, service, change, this, SLOT(Forget()));
        }
    }
    const std::optional<QStringList> events = RegisteredEvents(bus);
    if (!events) {
        return false;
    }
    const auto isAsked = [&events](const char* start) {
        return std::ranges::any_of(*events, [start](const QString& event) { return event.startsWith(start); });
    };
    m_known = isAsked("object:") && !isAsked("object:announcement");
    return *m_known;
}

} // namespace ui
