#pragma once

#include <QCoreApplication>

/// An application that records the longest time its thread has spent on one event.
class LongestStep final : public QCoreApplication
{
    Q_OBJECT

public:
    using QCoreApplication::QCoreApplication;

    bool notify(QObject *receiver, QEvent *event) override;
    /// The longest time since the previous call, in nanoseconds of processor time.
    qint64 take() { return std::exchange(m_longest, 0); }

private:
    qint64 m_longest = 0;
    int m_depth = 0;
};
