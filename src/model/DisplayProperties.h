#pragma once

#include <QByteArray>
#include <QObject>

#include <optional>

/// Which optional columns a row of the issue list shows. The list itself decides on the other columns and their places.
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

    /// A JSON object with the names of the seven fields as its keys.
    QByteArray toJson() const;
    /// Parses the format of `toJson`. Nothing unless the bytes are an object with all seven keys, each a boolean.
    static std::optional<DisplayProperties> fromJson(const QByteArray &json);

    bool operator==(const DisplayProperties &) const = default;
};
