#pragma once

#include <QCoro/QCoroTask>

#include <memory>

/// Lets a limited number of tasks be under way at once; the others wait, and go on in the order in which they asked.
/// What waits goes on even when this object is gone, as the turns before it end.
class Turns
{
    struct State;

public:
    /// The right to be under way; ends with this object, which lets the next task go on before its end returns.
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

    /// `limit` is at least 1.
    explicit Turns(int limit);

    /// Waits for a turn.
    QCoro::Task<Turn> next();
    int underWay() const;
    int waiting() const;

private:
    std::shared_ptr<State> m_state;
};
