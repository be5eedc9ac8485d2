#pragma once

#include <QByteArray>
#include <QMap>

/// Counts the QObjects that were created since the census began, by means of Qt's hooks for debugging tools. There is at
/// most one census at a time, and it is used by one thread.
class ObjectCensus
{
public:
    ObjectCensus();
    ~ObjectCensus();
    ObjectCensus(const ObjectCensus &) = delete;
    ObjectCensus &operator=(const ObjectCensus &) = delete;

    /// The number of existing objects of this thread by their class. Types of QML are named after their file.
    QMap<QByteArray, int> countsByClass() const;
    /// The number of existing objects of this thread.
    int count() const;
    /// The number of timers that Qt runs for the counted objects of this thread.
    int timers() const;
};
