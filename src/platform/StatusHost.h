#pragma once

#include <QObject>

#include <memory>

/// Tells whether the desktop currently displays status items. The answer is available shortly after construction, and
/// changes are followed from then on. UI thread only.
class StatusHost : public QObject
{
    Q_OBJECT

public:
    /// Creates the implementation for the operating system that the program runs on.
    static std::unique_ptr<StatusHost> ofThisSystem();

    /// True if the desktop displays status items. On Linux it is false until the desktop has responded.
    virtual bool isPresent() const = 0;

Q_SIGNALS:
    void isPresentChanged();
};
