// Speaks through the screen reader, and only through it. A reader says nothing of a text box that a program changes, so
// what is to be heard is announced here. Texts said during one event are joined and announced once, when all focus
// changes of the event are over: of two messages only one would be heard, and a message before a focus change is cut
// off by it. While the window is not the active one (a screen that opens, a message box in front) they are held back.
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <vector>

namespace ui {

class Announcer final : public QObject
{
    Q_OBJECT

public:
    // The application has the only one.
    Announcer();
    ~Announcer() override;
    static Announcer& Instance();

    // Has `text` announced as coming from `source`, in place of what the same source said earlier in the same event.
    // An empty text takes that back.
    void Say(QWidget& source, const QString& text);

    // Whether nothing waits to be announced.
    bool IsSilent() const { return m_messages.empty(); }

    // To be called when an event of this type has been handled with all that it brought about.
    void EventEnded(QEvent::Type type);

private:
    void Flush();

    struct Message
    {
        QPointer<QWidget> source;
        QString text;
    };

    std::vector<Message> m_messages;
};

} // namespace ui
