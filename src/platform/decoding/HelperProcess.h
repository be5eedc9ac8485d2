#pragma once

#include "platform/decoding/DecodingInput.h"
#include "platform/decoding/DecodingProtocol.h"

#include <QImage>
#include <QList>
#include <QMutex>

#include <chrono>
#include <optional>
#include <sys/types.h>

/// The program that decodes when it is started with these arguments.
struct DecodingProgram
{
    /// Empty if there is none.
    QByteArray path;
    QList<QByteArray> arguments;
};

/// The option with which a program decodes instead of doing what it usually does.
constexpr auto DecodingOption = "--decode";

/// The result of a request, in the program's own memory.
struct Decoded
{
    /// `Unreadable` also for every failure of the helper.
    DecodingStatus status = DecodingStatus::Unreadable;
    /// The helper ends after this result, or has failed.
    bool isLast = true;
    /// Null for the sizes of pages.
    QImage image;
    QSize whole;
    bool isAnimated = false;
    std::chrono::milliseconds delay{0};
    /// The sizes of the first pages, in points.
    QList<QSizeF> pages;
    /// The number of pages in the file.
    int pageCount = 0;
};

/// One helper process. Everything but `cut` must be called from the same thread, which must not end before `end` was
/// called, because the system ends the process with it.
class HelperProcess
{
public:
    explicit HelperProcess(DecodingProgram program) : m_program(std::move(program)) {}
    HelperProcess(const HelperProcess &) = delete;
    HelperProcess &operator=(const HelperProcess &) = delete;
    ~HelperProcess() { end(); }

    /// Starts the process if it is not running. False if that is not possible.
    bool start();
    /// Sends a request and waits for the result. Starts the process if it is not running or does not wait for a request.
    /// If a process that ran already ends before its answer begins, the request is sent once more, to a new one.
    Decoded decode(const DecodingInput &input, DecodingRequest request);
    /// Kills the process and waits until it is gone. It cannot be started again.
    void end();

    /// Interrupts a running or future `decode`. May be called from any thread.
    void cut();

private:
    bool connect();
    /// Kills the process and waits until it is gone.
    void stop();
    bool spawn(int helperEnd);
    /// The result of one try; nothing if the process ended before its answer began.
    std::optional<Decoded> tried(const DecodingRequest &request, int input) const;
    bool send(const QByteArray &bytes, int input, int output) const;
    /// Fewer bytes if the connection ends before.
    QByteArray receive(qsizetype size) const;
    /// Whether the process has sent something that nobody asked for, or has ended.
    bool isOutOfStep() const;

    const DecodingProgram m_program;
    /// Guards the next two, which `cut` uses.
    QMutex m_mutex;
    bool m_isCut = false;
    int m_socket = -1;
    pid_t m_process = -1;
};
