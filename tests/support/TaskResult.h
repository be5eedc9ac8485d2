#pragma once

#include "async/Spawn.h"

#include <QCoro/QCoroTask>

#include <exception>
#include <memory>
#include <optional>

/// Observes a task from outside a coroutine: whether it has ended, and its result.
template <typename T>
class TaskResult
{
public:
    explicit TaskResult(QCoro::Task<T> task) { spawn(follow(std::move(task), m_state)); }

    bool isDone() const { return m_state->value.has_value() || m_state->failure; }
    bool hasFailed() const { return bool(m_state->failure); }
    /// The result; rethrows the task's failure. Call this only after the task has ended.
    const T &value() const
    {
        if (m_state->failure)
            std::rethrow_exception(m_state->failure);
        return m_state->value.value();
    }

private:
    struct State
    {
        std::optional<T> value;
        std::exception_ptr failure;
    };

    static QCoro::Task<> follow(QCoro::Task<T> task, std::shared_ptr<State> state)
    {
        try {
            state->value.emplace(co_await task);
        } catch (...) {
            state->failure = std::current_exception();
        }
    }

    std::shared_ptr<State> m_state = std::make_shared<State>();
};

template <>
class TaskResult<void>
{
public:
    explicit TaskResult(QCoro::Task<> task) { spawn(follow(std::move(task), m_state)); }

    bool isDone() const { return m_state->isDone; }
    bool hasFailed() const { return bool(m_state->failure); }
    /// Rethrows the task's failure, if it has one.
    void value() const
    {
        if (m_state->failure)
            std::rethrow_exception(m_state->failure);
    }

private:
    struct State
    {
        bool isDone = false;
        std::exception_ptr failure;
    };

    static QCoro::Task<> follow(QCoro::Task<> task, std::shared_ptr<State> state)
    {
        try {
            co_await task;
        } catch (...) {
            state->failure = std::current_exception();
        }
        state->isDone = true;
    }

    std::shared_ptr<State> m_state = std::make_shared<State>();
};
