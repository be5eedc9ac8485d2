#pragma once

#include <QObject>

#include <memory>

/// Whether the desktop shows status items now. What is told is known a moment after it is made, and followed from then
/// on. UI thread only.
class StatusHost : public QObject
{
    Q_OBJECT

public:
    /// That of this system.
    static std::unique_ptr<StatusHost> ofThisSystem();

    virtual bool isPresent() const = 0;

Q_SIGNALS:
    void isPresentChanged();
};
