#pragma once

#include <QCoro/QCoroTask>
#include <QObject>
#include <QPointer>

#include <exception>
#include <optional>
#include <type_traits>

/// Thrown into a coroutine whose owner was destroyed while it waited, so that the coroutine ends without using the
/// owner. Deliberately not a `Failure`: handlers of failures must not run without the owner.
class OwnerGone final : public std::exception
{
public:
    const char *what() const noexcept override { return "the owner of the task is gone"; }
};

/// Awaits `task`, whose owner may go before `caller` does: gives `otherwise` in place of a result when only the task's
/// owner is gone.
template <typename T>
QCoro::Task<T> unlessGone(QPointer<QObject> caller, QCoro::Task<T> task, T otherwise)
{
    try {
        co_return co_await task;
    } catch (const OwnerGone &) {
        if (!caller)
            throw;
    }
    co_return otherwise;
}

/// The same for a task without a result.
inline QCoro::Task<> unlessGone(QPointer<QObject> caller, QCoro::Task<> task)
{
    try {
        co_await task;
    } catch (const OwnerGone &) {
        if (!caller)
            throw;
    }
}

/// Awaits `task` on behalf of a member function of `owner`. Returns its result or throws its failure as long as the
/// owner exists, and throws `OwnerGone` instead once the owner was destroyed. Member functions of QObjects await
/// everything through this function.
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
