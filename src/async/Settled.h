#pragma once

#include "model/Failure.h"

#include <QCoro/QCoroTask>

#include <expected>
#include <memory>
#include <type_traits>

/// How a task failed, as a value.
struct TaskFailure
{
    /// What the user reads.
    QString message;
    /// The task was called off, which nobody reports.
    bool isCancellation = false;

    bool operator==(const TaskFailure &) const = default;
};

template <typename T>
using Settled = std::expected<T, TaskFailure>;

/// Awaits `task` and gives its result or its failure as a value, so that several tasks can run side by side and each be
/// looked at in its turn. `kept` lives until the task has ended: what the task works on. Exceptions that are no
/// `Failure` pass through.
template <typename T>
QCoro::Task<Settled<T>> settled(std::shared_ptr<const void> kept, QCoro::Task<T> task)
{
    Q_UNUSED(kept)
    try {
        if constexpr (std::is_void_v<T>) {
            co_await task;
            co_return Settled<T>();
        } else {
            co_return Settled<T>(co_await task);
        }
    } catch (const Failure &failure) {
        const bool isCancellation = dynamic_cast<const Cancelled *>(&failure) != nullptr;
        co_return Settled<T>(std::unexpect, failure.message(), isCancellation);
    }
}
