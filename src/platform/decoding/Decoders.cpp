#include "platform/decoding/Decoders.h"

#include "platform/Clock.h"
#include "platform/decoding/DecodingSystem.h"

#include <QCoreApplication>
#include <QCoro/QCoroFuture>
#include <QThreadPool>

#include <algorithm>

namespace {

bool ownProgramDecodes = false;

void settle(QPromise<Decoded> &promise, const Decoded &result)
{
    promise.addResult(result);
    promise.finish();
}

DecodingProgram ownProgram()
{
    if (!ownProgramDecodes)
        return {};
    return {.path = DecodingSystem::ownProgram(), .arguments = {DecodingOption}};
}

} // namespace

/// A thread and the helper that it uses. The thread is always the same one, and stays until the worker is destroyed.
struct Decoders::Worker
{
    Worker()
    {
        thread.setMaxThreadCount(1);
        thread.setExpiryTimeout(-1);
    }

    std::shared_ptr<HelperProcess> helper;
    /// What is being decoded; null if the worker is free.
    std::shared_ptr<QPromise<Decoded>> promise;
    quint64 lastSource = 0;
    Clock::TimerHandle deadline;
    // Declared last, so that it is stopped before the other members are destroyed.
    QThreadPool thread;
};

struct Decoders::Idle
{
    Clock::TimerHandle timer;
};

Decoders::Decoders(DecodingProgram program, Clock &clock, DecodingLimits limits)
    : m_program(std::move(program)), m_clock(clock), m_limits(limits)
{
    for (int i = 0; i < m_limits.helpers; ++i)
        m_workers.push_back(std::make_unique<Worker>());
}

Decoders::~Decoders()
{
    endHelpers();
    // Callers that still wait receive a failure, because a future that never finishes would keep them suspended.
    for (const auto &worker : m_workers) {
        if (worker->promise)
            settle(*worker->promise, {});
    }
    for (const Order &order : m_waiting)
        settle(*order.promise, {});
    // The threads end as soon as their helpers are killed.
    m_workers.clear();
}

Decoders &Decoders::shared()
{
    static SystemClock clock;
    static Decoders decoders(ownProgram(), clock);
    // Timers and threads must not outlast the event loop.
    static const bool endsWithProgram = [] {
        if (QCoreApplication::instance())
            connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, &decoders,
                    &Decoders::endHelpers);
        return true;
    }();
    Q_UNUSED(endsWithProgram)
    return decoders;
}

void Decoders::setOwnProgramDecodes()
{
    ownProgramDecodes = true;
}

QCoro::Task<Decoded> Decoders::decode(DecodingInput input, DecodingRequest request)
{
    auto promise = std::make_shared<QPromise<Decoded>>();
    promise->start();
    QFuture<Decoded> future = promise->future();
    m_waiting.push_back({std::move(input), request, std::move(promise)});
    beginOrders();
    co_return co_await future;
}

Decoders::Worker *Decoders::freeWorker(quint64 source) const
{
    Worker *chosen = nullptr;
    for (const auto &worker : m_workers) {
        if (worker->promise)
            continue;
        // The one that has the file open, otherwise one whose helper runs already.
        if (worker->helper && worker->lastSource == source)
            return worker.get();
        if (!chosen || (worker->helper && !chosen->helper))
            chosen = worker.get();
    }
    return chosen;
}

void Decoders::beginOrders()
{
    while (!m_waiting.empty()) {
        Worker *worker = freeWorker(m_waiting.front().input.id());
        if (!worker)
            return;
        Order order = std::move(m_waiting.front());
        m_waiting.pop_front();
        begin(*worker, std::move(order));
    }
}

void Decoders::begin(Worker &worker, Order order)
{
    m_idle.reset();
    if (!worker.helper)
        worker.helper = std::make_shared<HelperProcess>(m_program);
    const auto helper = worker.helper;
    worker.promise = order.promise;
    worker.lastSource = order.input.id();
    worker.deadline = m_clock.after(m_limits.perPicture, [helper] { helper->cut(); });
    worker.thread.start([this, &worker, helper, input = order.input, request = order.request] {
        const Decoded result = helper->decode(input, request);
        if (result.isLast)
            helper->end();
        QMetaObject::invokeMethod(
            this, [this, &worker, result] { finish(worker, result); }, Qt::QueuedConnection);
    });
}

void Decoders::finish(Worker &worker, const Decoded &result)
{
    worker.deadline.reset();
    if (result.isLast)
        worker.helper.reset();
    const auto promise = std::exchange(worker.promise, nullptr);
    beginOrders();
    endWhenIdle();
    settle(*promise, result);
}

void Decoders::prepare()
{
    const auto isStarted = [](const auto &worker) { return worker->helper != nullptr; };
    if (std::ranges::any_of(m_workers, isStarted))
        return;
    Worker &worker = *m_workers.front();
    worker.helper = std::make_shared<HelperProcess>(m_program);
    worker.thread.start([helper = worker.helper] { helper->start(); });
    endWhenIdle();
}

int Decoders::pendingCount() const
{
    const auto isBusy = [](const auto &worker) { return worker->promise != nullptr; };
    return int(std::ranges::count_if(m_workers, isBusy)) + int(m_waiting.size());
}

void Decoders::endWhenIdle()
{
    if (pendingCount() == 0)
        m_idle = std::make_unique<Idle>(m_clock.after(m_limits.idle, [this] { endHelpers(); }));
}

void Decoders::endHelperOf(Worker &worker)
{
    const auto helper = std::exchange(worker.helper, nullptr);
    if (!helper)
        return;
    helper->cut();
    worker.thread.start([helper] { helper->end(); });
}

void Decoders::endHelpers()
{
    m_idle.reset();
    for (const auto &worker : m_workers) {
        worker->deadline.reset();
        endHelperOf(*worker);
    }
}
