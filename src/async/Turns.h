#pragma once

#include <QCoro/QCoroTask>

#include <memory>

/// Limits how many tasks run concurrently. The others wait and continue in the order in which they asked. Tasks that
/// already wait still get their turn after the destruction of this object.
class Turns
{
    struct State;

public:
    /// The permission to run. Its destructor resumes the next waiting task before it returns.
    class Turn
    {
    public:
        explicit Turn(std::shared_ptr<State> state) : m_state(std::move(state)) {}
        Turn(Turn &&) = default;
        Turn &operator=(Turn &&) = delete;
        Turn(const Turn &) = delete;
        Turn &operator=(const Turn &) = delete;
        ~Turn();

    private:
        std::shared_ptr<State> m_state;
    };

    /// `limit` is the number of turns that can be held at the same time; at least 1.
    explicit Turns(int limit);

    /// Waits until a turn is free.
    QCoro::Task<Turn> next();
    /// The number of turns that are currently held.
    int underWay() const;
    /// The number of tasks that wait for a turn.
    int waiting() const;

private:
    std::shared_ptr<State> m_state;
};
