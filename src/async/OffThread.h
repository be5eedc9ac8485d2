#pragma once

#include "async/WorkThreads.h"

#include <QCoro/QCoroTask>
#include <QObject>
#include <QThreadPool>

#include <coroutine>
#include <exception>
#include <optional>
#include <type_traits>

/// An awaitable that runs a function on another thread and resumes the coroutine on the original one. May be awaited
/// once.
template <typename Function>
class OffThread
{
    using Result = std::invoke_result_t<Function>;

public:
    explicit OffThread(Function function) { m_function.emplace(std::move(function)); }

    bool await_ready() const { return false; }
    void await_suspend(std::coroutine_handle<> waiting)
    {
        workThreads().start([this, waiting] {
            run();
            QMetaObject::invokeMethod(
                &m_home, [waiting] { waiting.resume(); }, Qt::QueuedConnection);
        });
    }
    Result await_resume()
    {
        if (m_failure)
            std::rethrow_exception(m_failure);
        return std::move(*m_result);
    }

private:
    void run()
    {
        try {
            m_result.emplace((*m_function)());
        } catch (...) {
            m_failure = std::current_exception();
        }
        // The function is destroyed on this thread, because destroying the values that it captured may also take long.
        m_function.reset();
    }

    std::optional<Function> m_function;
    /// Belongs to the waiting thread; the coroutine is resumed through it.
    QObject m_home;
    std::optional<Result> m_result;
    std::exception_ptr m_failure;
};

/// Runs `function` on another thread and returns its result, or throws its exception, on the calling thread. The
/// function must own all the data that it uses.
template <typename Function>
QCoro::Task<std::invoke_result_t<Function>> offThread(Function function)
{
    co_return co_await OffThread<Function>(std::move(function));
}
