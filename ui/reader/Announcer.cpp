#include "Announcer.h"

#include "Accessible.h"

#include <QApplication>
#include <QStringList>

#include <algorithm>

namespace ui {

namespace {

Announcer* instance = nullptr;

} // namespace

Announcer::Announcer()
{
    instance = this;
}

Announcer::~Announcer()
{
    instance = nullptr;
}

Announcer& Announcer::Instance()
{
    return *instance;
}

void Announcer::Say(QWidget& source, const QString& text)
{
    std::erase_if(m_messages, [&source](const Message& message) { return message.source == &source; });
    if (!text.isEmpty()) {
        m_messages.push_back({&source, text});
    }
}

void Announcer::SayAlone(QWidget& source, const QString& text)
{
    Take(*source.window());
    Say(source, text);
}

Announcer::Message Announcer::Take(const QWidget& window)
{
    Message taken;
    QStringList texts;
    std::erase_if(m_messages, [&](const Message& message) {
        const bool isOfWindow = message.source && message.source->window() == &window;
        if (isOfWindow) {
            taken.source = message.source;
            texts += message.text;
        }
        return isOfWindow || !message.source;
    });
    taken.text = texts.join(' ');
    return taken;
}

bool Announcer::IsSilent(const QWidget& window) const
{
    return std::ranges::none_of(m_messages, [&window](const Message& message) {
        return message.source && message.source->window() == &window;
    });
}

void Announcer::EventEnded(QEvent::Type type)
{
    switch (type) {
    case QEvent::FocusAboutToChange:
    case QEvent::FocusOut:
    case QEvent::InputMethodQuery:
        break; // parts of a focus change
    case QEvent::FocusIn:
        // The focus event that the screen reader gets is sent right after this one: what waits to be said lets it pass.
        QMetaObject::invokeMethod(this, &Announcer::Flush, Qt::QueuedConnection);
        break;
    default:
        Flush();
        break;
    }
}

void Announcer::Flush()
{
    const QWidget* focus = QApplication::focusWidget();
    if (m_messages.empty() || focus == nullptr) {
        return;
    }
    if (const Message message = Take(*focus->window()); !message.text.isEmpty()) {
        Announce(*message.source, message.text);
    }
}

} // namespace ui
