#pragma once

#include "async/WhileAlive.h"
#include "model/Failure.h"

#include <QCoro/QCoroTask>

#include <expected>
#include <memory>
#include <type_traits>

/// The failure of a task, as a value.
struct TaskFailure
{
    /// The text for the user.
    QString message;
    /// True if the task was cancelled; cancellations are not reported to the user.
    bool isCancellation = false;

    bool operator==(const TaskFailure &) const = default;
};

template <typename T>
using Settled = std::expected<T, TaskFailure>;

/// Awaits `task` and returns its result or its failure as a value, so that several tasks can run concurrently and be
/// examined one after the other. `kept` holds the objects that the task uses; they are destroyed after the task has
/// ended. An exception that is not a `Failure` is a fault of the program; it becomes a failure too, so that the user
/// is told. `OwnerGone` is rethrown.
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
    } catch (const OwnerGone &) {
        throw;
    } catch (const std::exception &) {
        co_return Settled<T>(std::unexpect, QStringLiteral("Une erreur inattendue est survenue."),
                             false);
    }
}
