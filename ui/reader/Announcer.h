// Speaks through the screen reader, and only through it. A screen reader says nothing of a text box that a program
// changes, so what is to be heard is announced here. Texts said during one event are joined and announced once, when
// all focus changes of the event are over: of two messages only one would be heard, and a message before a focus change
// is cut off by it. While the window is not the active one (a screen that opens, a message box in front) they are held
// back.
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

    // The same in place of all that waits to be announced from the window of `source`.
    void SayAlone(QWidget& source, const QString& text);

    struct Message
    {
        QPointer<QWidget> source;
        QString text;
    };

    // What waits to be announced from `window`, joined to one. It does not wait any more; empty where nothing does.
    Message Take(const QWidget& window);

    // Whether nothing waits to be announced from `window`.
    bool IsSilent(const QWidget& window) const;

    // To be called when an event of this type has been handled with all that it brought about.
    void EventEnded(QEvent::Type type);

private:
    void Flush();

    std::vector<Message> m_messages;
};

} // namespace ui
