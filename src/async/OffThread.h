#pragma once

#include <QCoro/QCoroTask>
#include <QObject>
#include <QThreadPool>

#include <coroutine>
#include <exception>
#include <optional>
#include <type_traits>

/// Runs a function on another thread and resumes the coroutine on its own. To be awaited once.
template <typename Function>
class OffThread
{
    using Result = std::invoke_result_t<Function>;

public:
    explicit OffThread(Function function) { m_function.emplace(std::move(function)); }

    bool await_ready() const { return false; }
    void await_suspend(std::coroutine_handle<> waiting)
    {
        QThreadPool::globalInstance()->start([this, waiting] {
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
        // What it worked on may take long to take apart, too.
        m_function.reset();
    }

    std::optional<Function> m_function;
    /// Lives on the thread that waits.
    QObject m_home;
    std::optional<Result> m_result;
    std::exception_ptr m_failure;
};

/// Runs `function` on another thread: gives its result, or throws what it threw, on the thread of the call. What the
/// function works on must be its own.
template <typename Function>
QCoro::Task<std::invoke_result_t<Function>> offThread(Function function)
{
    co_return co_await OffThread<Function>(std::move(function));
}
