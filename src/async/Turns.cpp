#include "async/Turns.h"

#include <coroutine>
#include <deque>

struct Turns::State
{
    explicit State(int most) : limit(most) {}

    bool isFree() const { return underWay < limit; }

    /// A loop instead of a recursion, because many tasks may end immediately one after the other.
    void wakeWaiting()
    {
        if (isWaking)
            return;
        isWaking = true;
        while (isFree() && !waiting.empty()) {
            const auto next = waiting.front();
            waiting.pop_front();
            ++underWay;
            next.resume();
        }
        isWaking = false;
    }

    int limit;
    int underWay = 0;
    bool isWaking = false;
    std::deque<std::coroutine_handle<>> waiting;
};

namespace {

/// `Access` is a template parameter because the state is a private type of `Turns`.
template <typename Access>
struct Place
{
    std::shared_ptr<Access> state;

    /// A new request queues behind the ones that are already waiting.
    bool await_ready() const
    {
        if (!state->waiting.empty() || !state->isFree())
            return false;
        ++state->underWay;
        return true;
    }
    void await_suspend(std::coroutine_handle<> handle) const { state->waiting.push_back(handle); }
    void await_resume() const {}
};

template <typename Access>
QCoro::Task<Turns::Turn> turnOf(std::shared_ptr<Access> state)
{
    const Place<Access> place{state};
    co_await place;
    co_return Turns::Turn(state);
}

} // namespace

Turns::Turn::~Turn()
{
    if (!m_state)
        return;
    --m_state->underWay;
    m_state->wakeWaiting();
}

Turns::Turns(int limit) : m_state(std::make_shared<State>(limit)) {}

QCoro::Task<Turns::Turn> Turns::next()
{
    return turnOf(m_state);
}

int Turns::underWay() const
{
    return m_state->underWay;
}

int Turns::waiting() const
{
    return int(m_state->waiting.size());
}
