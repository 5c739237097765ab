// The registry of the accessibility bus, where screen readers say of what they want to hear.
#pragma once

#include <QObject>

#include <optional>

namespace ui {

class Registry final : public QObject
{
    Q_OBJECT

public:
    static Registry& Instance();

    // Whether a screen reader listens that has not asked for announcements. It is found out once, and again after
    // somebody has come to listen or gone. Where the registry does not answer within 300 ms it is false this time.
    bool IsListenedToInSilence();

private slots:
    void Forget() { m_known.reset(); }

private:
    std::optional<bool> m_known;
    bool m_isWatching = false;
};

} // namespace ui
