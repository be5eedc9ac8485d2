#pragma once

#include <QObject>

#include <memory>

/// Counts what has been sent, or waits to be sent, and is not answered yet, so that the program can wait for it before
/// it ends. UI thread only.
class PendingWrites : public QObject
{
    Q_OBJECT

public:
    /// A write that counts for as long as the token exists.
    using Token = std::shared_ptr<const void>;

    using QObject::QObject;

    [[nodiscard]] Token begin();
    int count() const { return m_count; }

Q_SIGNALS:
    void countChanged();

private:
    void end();

    int m_count = 0;
};
