#pragma once

#include <QByteArray>
#include <QObject>

#include <optional>

/// Which columns a row of the list shows. Key, status and summary placement are the list's own affair.
struct DisplayProperties
{
    Q_GADGET
    Q_PROPERTY(bool key MEMBER key CONSTANT FINAL)
    Q_PROPERTY(bool priority MEMBER priority CONSTANT FINAL)
    Q_PROPERTY(bool type MEMBER type CONSTANT FINAL)
    Q_PROPERTY(bool labels MEMBER labels CONSTANT FINAL)
    Q_PROPERTY(bool assignee MEMBER assignee CONSTANT FINAL)
    Q_PROPERTY(bool dueDate MEMBER dueDate CONSTANT FINAL)
    Q_PROPERTY(bool updated MEMBER updated CONSTANT FINAL)

public:
    bool key = true;
    bool priority = true;
    bool type = false;
    bool labels = true;
    bool assignee = true;
    bool dueDate = true;
    bool updated = true;

    /// A JSON object with the seven names as keys.
    QByteArray toJson() const;
    /// Nothing unless the bytes are such an object with all seven keys, each a boolean.
    static std::optional<DisplayProperties> fromJson(const QByteArray &json);

    bool operator==(const DisplayProperties &) const = default;
};
