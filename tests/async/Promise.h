#pragma once

#include <QCoro/QCoroTask>

#include <coroutine>
#include <exception>
#include <memory>
#include <optional>
#include <utility>
#include <variant>

/// A task that the test completes. Copies refer to the same task.
template <typename T>
class Promise
{
public:
    /// The task. At most one coroutine may wait for it.
    QCoro::Task<T> task() const { return wait(m_state); }

    void succeed(T value) const
    {
        m_state->outcome = std::move(value);
        wake();
    }
    template <typename E>
    void fail(E error) const
    {
        m_state->outcome = std::make_exception_ptr(std::move(error));
        wake();
    }

private:
    struct State
    {
        std::variant<std::monostate, T, std::exception_ptr> outcome;
        std::coroutine_handle<> waiting;
    };

    struct Waiter
    {
        std::shared_ptr<State> state;

        bool await_ready() const { return state->outcome.index() != 0; }
        void await_suspend(std::coroutine_handle<> handle) const { state->waiting = handle; }
        void await_resume() const {}
    };

    static QCoro::Task<T> wait(std::shared_ptr<State> state)
    {
        co_await Waiter{state};
        if (const auto *failure = std::get_if<std::exception_ptr>(&state->outcome))
            std::rethrow_exception(*failure);
        co_return std::get<T>(state->outcome);
    }

    void wake() const
    {
        if (const auto waiting = std::exchange(m_state->waiting, nullptr))
            waiting.resume();
    }

    std::shared_ptr<State> m_state = std::make_shared<State>();
};
