#pragma once

#include "async/Spawn.h"
#include "model/Failure.h"

#include <QCoro/QCoroTask>

#include <expected>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <utility>

/// Runs at most one task at a time: each `start` cancels the previous task, and only the result of the newest task is
/// delivered. Nothing is delivered after `cancel` or after the destruction of this object. Used by every search that
/// follows a text while the user types it.
template <typename T>
class LatestTask
{
public:
    using Outcome = std::expected<T, Failure>;
    using Operation = std::function<QCoro::Task<T>(std::stop_token)>;
    using Deliver = std::function<void(Outcome)>;

    LatestTask() = default;
    ~LatestTask() { cancel(); }
    LatestTask(const LatestTask &) = delete;
    LatestTask &operator=(const LatestTask &) = delete;

    /// Cancels the running task, if any, and starts a new one. `deliver` receives its result or its failure on the
    /// calling thread. It is not called for a cancellation.
    void start(Operation operation, Deliver deliver)
    {
        cancel();
        m_run = std::make_shared<Run>();
        spawn(follow(m_run, std::move(operation), std::move(deliver)));
    }

    /// Cancels the running task; its result will not be delivered.
    void cancel()
    {
        // `m_run` is cleared first, because `request_stop` may end the task and run code of its owner before it
        // returns.
        if (const auto run = std::exchange(m_run, nullptr)) {
            run->isCurrent = false;
            run->stop.request_stop();
        }
    }

    bool isRunning() const { return m_run && m_run->isCurrent; }

private:
    struct Run
    {
        std::stop_source stop;
        bool isCurrent = true;
    };

    static QCoro::Task<> follow(std::shared_ptr<Run> run, Operation operation, Deliver deliver)
    {
        std::optional<Outcome> outcome;
        try {
            outcome.emplace(co_await operation(run->stop.get_token()));
        } catch (const Cancelled &) {
            run->isCurrent = false;
        } catch (const Failure &failure) {
            outcome.emplace(std::unexpected(failure));
        } catch (...) {
            run->isCurrent = false;
            throw;
        }
        if (!run->isCurrent)
            co_return;
        run->isCurrent = false;
        deliver(std::move(*outcome));
    }

    std::shared_ptr<Run> m_run;
};
