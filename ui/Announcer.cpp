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
    connect(qApp, &QApplication::focusChanged, this, &Announcer::FocusChanged);
}

Announcer::~Announcer()
{
    instance = nullptr;
}

Announcer& Announcer::Instance()
{
    return *instance;
}

void Announcer::FocusChanged()
{
    // The focus event that the reader gets follows this signal: what waits to be said lets it pass.
    if (!m_messages.empty() && !m_focusIsMoving) {
        m_focusIsMoving = true;
        QMetaObject::invokeMethod(
            this, [this] { m_focusIsMoving = false; }, Qt::QueuedConnection);
    }
}

void Announcer::Say(QWidget& source, const QString& text)
{
    std::erase_if(m_messages, [&source](const Message& message) { return message.source == &source; });
    if (!text.isEmpty()) {
        m_messages.push_back({&source, text});
    }
}

void Announcer::EventEnded()
{
    const QWidget* focus = QApplication::focusWidget();
    if (m_messages.empty() || m_focusIsMoving || focus == nullptr) {
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
