// The sheet of what is given, as the tests read it.
#pragma once

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>

namespace support {

inline QList<QJsonObject> Objects(const QJsonArray& array)
{
    QList<QJsonObject> objects;
    for (const QJsonValue value : array) {
        objects += value.toObject();
    }
    return objects;
}

// All windows, the menu first.
inline QList<QJsonObject> Given()
{
    QFile file(GIVEN);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("no %s", GIVEN);
    }
    return Objects(QJsonDocument::fromJson(file.readAll()).array());
}

} // namespace support
