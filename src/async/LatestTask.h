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

/// The newest request wins. Each `start` calls off the task before it; only the newest task's outcome is delivered, and
/// none once this object is gone or `cancel` was called. Used by every search that is tied to a text being typed.
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

    /// Calls off the running task, if any, and starts a new one. `deliver` gets its result or its failure, but never a
    /// cancellation, on the calling thread.
    void start(Operation operation, Deliver deliver)
    {
        cancel();
        m_run = std::make_shared<Run>();
        spawn(follow(m_run, std::move(operation), std::move(deliver)));
    }

    /// Calls off the running task; its outcome will not be delivered.
    void cancel()
    {
        // Taken out first: a stop may end the task, and its owner's code, before request_stop returns.
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
