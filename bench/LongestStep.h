#pragma once

#include <QCoreApplication>

/// An application that knows the longest time that its thread has spent on one event.
class LongestStep final : public QCoreApplication
{
    Q_OBJECT

public:
    using QCoreApplication::QCoreApplication;

    bool notify(QObject *receiver, QEvent *event) override;
    /// In nanoseconds of the processor, since the last call.
    qint64 take() { return std::exchange(m_longest, 0); }

private:
    qint64 m_longest = 0;
    int m_depth = 0;
};
