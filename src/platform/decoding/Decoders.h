#pragma once

#include "platform/decoding/HelperProcess.h"

#include <QCoro/QCoroTask>
#include <QObject>
#include <QPromise>

#include <deque>
#include <memory>
#include <vector>

class Clock;

struct DecodingLimits
{
    /// The maximum number of helpers that run at the same time.
    int helpers = 2;
    /// The time for one picture or page.
    std::chrono::seconds perPicture{20};
    /// The time after which helpers end that nobody uses.
    std::chrono::seconds idle{60};
};

/// Decodes pictures and pages of PDF files in helper processes, of which at most two run. A helper decodes many
/// pictures, is replaced after a failure and when it exceeds its time, and ends when it is not used. For the UI thread
/// only, which never waits for a helper.
class Decoders : public QObject
{
    Q_OBJECT

public:
    /// The clock must outlive this object.
    Decoders(DecodingProgram program, Clock &clock, DecodingLimits limits = {});
    ~Decoders() override;

    /// The instance of the program, whose helpers are the program itself. Without `setOwnProgramDecodes` it decodes
    /// nothing.
    static Decoders &shared();
    /// States that the running program decodes when it is started with `DecodingOption`. Called by `main`, before the
    /// first picture.
    static void setOwnProgramDecodes();

    /// Decodes an input. The request needs neither a source nor a size of the input. Requests are begun in their order.
    QCoro::Task<Decoded> decode(DecodingInput input, DecodingRequest request);
    /// Starts a helper if none is there, because a picture is expected soon.
    void prepare();
    /// The number of requests that are not finished.
    int pendingCount() const;
    /// Ends all helpers. What is being decoded fails; later requests start new helpers.
    void endHelpers();

private:
    struct Order
    {
        DecodingInput input;
        DecodingRequest request;
        std::shared_ptr<QPromise<Decoded>> promise;
    };
    struct Worker;
    struct Idle;

    Worker *freeWorker(quint64 source) const;
    void beginOrders();
    void begin(Worker &worker, Order order);
    void finish(Worker &worker, const Decoded &result);
    void endWhenIdle();
    static void endHelperOf(Worker &worker);

    const DecodingProgram m_program;
    Clock &m_clock;
    const DecodingLimits m_limits;
    std::deque<Order> m_waiting;
    std::vector<std::unique_ptr<Worker>> m_workers;
    /// What ends unused helpers; null while they are used.
    std::unique_ptr<Idle> m_idle;
};
