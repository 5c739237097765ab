#include "Announcer.h"

#include "Accessible.h"

#include <QApplication>
#include <QStringList>

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

void Announcer::EventEnded(QEvent::Type type)
{
    switch (type) {
    case QEvent::FocusAboutToChange:
    case QEvent::FocusOut:
    case QEvent::InputMethodQuery:
        break; // parts of a focus change
    case QEvent::FocusIn:
        // The focus event that the reader gets is sent right after this one: what waits to be said lets it pass.
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
    QWidget* source = nullptr;
    QStringList texts;
    std::erase_if(m_messages, [&](const Message& message) {
        const bool canBeHeard = message.source && message.source->window() == focus->window();
        if (canBeHeard) {
            source = message.source;
            texts += message.text;
        }
        return canBeHeard || !message.source;
    });
    if (source != nullptr) {
        Announce(*source, texts.join(' '));
    }
}

} // namespace ui
