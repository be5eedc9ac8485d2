#pragma once

#include <QCoro/QCoroTask>
#include <QObject>
#include <QPointer>

#include <exception>
#include <optional>
#include <type_traits>

/// Thrown into a coroutine whose owner was destroyed while it waited, so that it unwinds without touching the owner.
/// Deliberately no `Failure`: a handler for failures must not run without its owner.
class OwnerGone final : public std::exception
{
public:
    const char *what() const noexcept override { return "the owner of the task is gone"; }
};

/// Awaits `task` for a member of `owner`: gives its result or its failure as they are while the owner lives, and throws
/// `OwnerGone` in their place once it has been destroyed. Members of QObjects await everything through this.
template <typename T>
QCoro::Task<T> whileAlive(QPointer<QObject> owner, QCoro::Task<T> task)
{
    std::exception_ptr failure;
    if constexpr (std::is_void_v<T>) {
        try {
            co_await task;
        } catch (...) {
            failure = std::current_exception();
        }
        if (!owner)
            throw OwnerGone();
        if (failure)
            std::rethrow_exception(failure);
    } else {
        std::optional<T> result;
        try {
            result.emplace(co_await task);
        } catch (...) {
            failure = std::current_exception();
        }
        if (!owner)
            throw OwnerGone();
        if (failure)
            std::rethrow_exception(failure);
        co_return std::move(*result);
    }
}
