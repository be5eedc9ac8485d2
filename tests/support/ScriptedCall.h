#pragma once

#include "model/Failure.h"

#include <QCoro/QCoroTask>

#include <coroutine>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <stop_token>
#include <tuple>
#include <variant>

/// One call of a scripted operation: its arguments, and functions to complete it. Completing a call resumes the waiting
/// coroutine before the function returns. A requested stop of the caller's token ends a pending call immediately with
/// `Cancelled`.
template <typename T, typename... Args>
class ScriptedCall
{
    using Value = std::conditional_t<std::is_void_v<T>, std::monostate, T>;

public:
    explicit ScriptedCall(std::stop_token stop, Args... arguments)
        : m_state(std::make_shared<State>(std::move(stop))), m_arguments(std::move(arguments)...)
    {
    }

    /// The N-th argument of the call, without its stop token.
    template <std::size_t N = 0>
    const auto &argument() const
    {
        return std::get<N>(m_arguments);
    }
    bool isPending() const { return !m_state->value && !m_state->failure; }
    /// True once the caller has requested a stop.
    bool wasStopped() const { return m_state->stop.stop_requested(); }

    void finish(Value value = {})
    {
        expectPending();
        m_state->value.emplace(std::move(value));
        State::wake(m_state);
    }
    void fail(const auto &failure) { failWith(std::make_exception_ptr(failure)); }
    void cancel() { fail(Cancelled()); }

    void failWith(std::exception_ptr failure)
    {
        expectPending();
        m_state->failure = std::move(failure);
        State::wake(m_state);
    }
    QCoro::Task<T> answer() const { return wait(m_state); }

private:
    struct State
    {
        explicit State(std::stop_token token) : stop(std::move(token)) {}

        static void wake(std::shared_ptr<State> state)
        {
            state->onStop.reset();
            if (const auto handle = std::exchange(state->waiting, nullptr))
                handle.resume();
        }

        std::stop_token stop;
        std::optional<Value> value;
        std::exception_ptr failure;
        std::coroutine_handle<> waiting;
        std::optional<std::stop_callback<std::function<void()>>> onStop;
    };

    struct Suspension
    {
        std::shared_ptr<State> state;

        bool await_ready() const { return state->value || state->failure; }
        void await_suspend(std::coroutine_handle<> handle) const
        {
            // This copy is needed because a token that is already stopped ends the wait, and destroys this object,
            // within the next statement.
            const auto kept = state;
            kept->waiting = handle;
            kept->onStop.emplace(kept->stop, [weak = std::weak_ptr(kept)] {
                const auto stopped = weak.lock();
                if (!stopped || stopped->value || stopped->failure)
                    return;
                stopped->failure = std::make_exception_ptr(Cancelled());
                if (const auto waiting = std::exchange(stopped->waiting, nullptr))
                    waiting.resume();
            });
        }
        void await_resume() const {}
    };

    static QCoro::Task<T> wait(std::shared_ptr<State> state)
    {
        if (!state->value && !state->failure && state->stop.stop_requested())
            state->failure = std::make_exception_ptr(Cancelled());
        const Suspension answered{state};
        co_await answered;
        if (state->failure)
            std::rethrow_exception(state->failure);
        if constexpr (!std::is_void_v<T>)
            co_return *state->value;
    }

    void expectPending() const
    {
        if (!isPending())
            throw std::logic_error("This call has been answered already.");
    }

    std::shared_ptr<State> m_state;
    std::tuple<Args...> m_arguments;
};

/// All calls of one operation, in the order received. A call waits for the test to complete it, unless an automatic
/// response is set when it arrives.
template <typename T, typename... Args>
class ScriptedCalls
{
    using Value = std::conditional_t<std::is_void_v<T>, std::monostate, T>;

public:
    using Call = ScriptedCall<T, Args...>;

    int count() const { return int(m_calls.size()); }
    /// The call with this index, starting at 0; throws if there was no such call.
    Call &operator[](int index) { return m_calls.at(std::size_t(index)); }
    Call &last() { return m_calls.at(m_calls.size() - 1); }

    /// From now on, every call is completed immediately: with the value, with the result of the function (which may
    /// throw), or with the failure.
    void answerWith(Value value = {})
    {
        m_automatic = [value = std::move(value)](const Args &...) { return value; };
    }
    void answerBy(std::function<Value(const Args &...)> function)
    {
        m_automatic = std::move(function);
    }
    void failWith(const auto &failure)
    {
        m_automatic = [failure](const Args &...) -> Value { throw failure; };
    }
    /// From now on, calls wait for the test again.
    void hold() { m_automatic = nullptr; }
    /// Ends all pending calls, so that no coroutine outlives its test.
    void cancelPending()
    {
        for (std::size_t i = 0; i < m_calls.size(); ++i) {
            if (m_calls[i].isPending())
                m_calls[i].cancel();
        }
    }

    /// The implementation of the service's operation.
    QCoro::Task<T> call(std::stop_token stop, Args... arguments)
    {
        Call &call = m_calls.emplace_back(std::move(stop), arguments...);
        if (m_automatic)
            answer(call, arguments...);
        return call.answer();
    }

private:
    void answer(Call &call, const Args &...arguments)
    {
        try {
            call.finish(m_automatic(arguments...));
        } catch (const Failure &) {
            call.failWith(std::current_exception());
        }
    }

    // A deque, because completing a call may cause the next one, and references to calls must stay valid.
    std::deque<Call> m_calls;
    std::function<Value(const Args &...)> m_automatic;
};
