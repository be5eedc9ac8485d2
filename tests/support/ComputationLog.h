#pragma once

#include <QHash>
#include <QString>

/// Counts what the log of computations says while this object exists; see `derivation/Memo.h`. Only one may exist at a
/// time. Other messages go to the handler that was installed before.
class ComputationLog
{
public:
    ComputationLog();
    ~ComputationLog();
    ComputationLog(const ComputationLog &) = delete;
    ComputationLog &operator=(const ComputationLog &) = delete;

    /// How often the value with this name was computed.
    int count(const QString &name) const { return m_counts.value(name); }
    const QHash<QString, int> &counts() const { return m_counts; }

private:
    static void take(QtMsgType type, const QMessageLogContext &context, const QString &message);

    QHash<QString, int> m_counts;
    QtMessageHandler m_former = nullptr;
};
