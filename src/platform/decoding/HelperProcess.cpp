#include "platform/decoding/HelperProcess.h"

#include "platform/decoding/DecodingSystem.h"
#include "platform/decoding/Mapping.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

/// Where the helper finds its end of the connection.
constexpr int HelperDescriptor = 3;
/// What the helper needs to find its libraries and plugins. It learns nothing else of the user's environment.
constexpr std::array PassedOn{"LD_LIBRARY_PATH", "QT_PLUGIN_PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS"};

QList<QByteArray> helperEnvironment()
{
    QList<QByteArray> environment{"LC_ALL=C.UTF-8"};
    for (const char *name : PassedOn) {
        if (const char *value = std::getenv(name))
            environment += QByteArray(name) + '=' + value;
    }
    return environment;
}

/// The form in which the system takes lists of texts. They must outlive the result.
std::vector<char *> pointersTo(QList<QByteArray> &texts)
{
    std::vector<char *> pointers;
    for (QByteArray &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// How the helper is started: with nothing open but its end of the connection, and in a group of its own, so that the
/// interrupt key of a terminal does not reach it.
class SpawnPlan
{
public:
    explicit SpawnPlan(int helperEnd)
    {
        posix_spawn_file_actions_init(&m_actions);
        // First, because a program without standard streams may have its connection in their place.
        posix_spawn_file_actions_adddup2(&m_actions, helperEnd, HelperDescriptor);
        posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, "/dev/null", O_RDWR, 0);
        posix_spawn_file_actions_adddup2(&m_actions, STDIN_FILENO, STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&m_actions, STDIN_FILENO, STDERR_FILENO);
        posix_spawnattr_init(&m_attributes);
        sigset_t signals;
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&m_attributes, &signals);
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&m_attributes, &signals);
        posix_spawnattr_setpgroup(&m_attributes, 0);
        posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF |
                                                    POSIX_SPAWN_SETPGROUP);
    }
    SpawnPlan(const SpawnPlan &) = delete;
    SpawnPlan &operator=(const SpawnPlan &) = delete;
    ~SpawnPlan()
    {
        posix_spawn_file_actions_destroy(&m_actions);
        posix_spawnattr_destroy(&m_attributes);
    }

    /// -1 if the program cannot be started.
    pid_t start(const DecodingProgram &program) const
    {
        QList<QByteArray> arguments = QList<QByteArray>{program.path} + program.arguments;
        QList<QByteArray> environment = helperEnvironment();
        pid_t process = -1;
        const int error = posix_spawn(&process, program.path.constData(), &m_actions, &m_attributes,
                                      pointersTo(arguments).data(), pointersTo(environment).data());
        return error == 0 ? process : -1;
    }

private:
    posix_spawn_file_actions_t m_actions{};
    posix_spawnattr_t m_attributes{};
};

/// The result that the helper has written. The pixels are copied, because the helper could still change them.
QImage imageIn(const Mapping &output, const DecodingAnswer &answer)
{
    const auto format =
        answer.hasAlpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    QImage image(answer.pixels, format);
    const qsizetype line = qsizetype(answer.pixels.width()) * 4;
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(image.scanLine(y), output.data() + y * line, size_t(line));
    return image;
}

Decoded resultOf(const Mapping &output, const DecodingAnswer &answer,
                 const DecodingRequest &request)
{
    Decoded result{.status = answer.status,
                   .isLast = answer.isLast,
                   .whole = answer.whole,
                   .isAnimated = answer.isAnimated,
                   .delay = std::chrono::milliseconds(answer.delay),
                   .pageCount = answer.pageCount};
    if (answer.status != DecodingStatus::Done)
        return result;
    if (request.kind == DecodingKind::Pages)
        result.pages =
            pagesIn(output.bytes()).first(std::min(answer.pageCount, MaximumDecodedPages));
    else
        result.image = imageIn(output, answer);
    return result;
}

/// Closes a file at the end of its scope.
class ScopedFile
{
public:
    explicit ScopedFile(int file) : m_file(file) {}
    ScopedFile(const ScopedFile &) = delete;
    ScopedFile &operator=(const ScopedFile &) = delete;
    ~ScopedFile()
    {
        if (m_file >= 0)
            ::close(m_file);
    }
    int descriptor() const { return m_file; }

private:
    int m_file;
};

} // namespace

bool HelperProcess::start()
{
    return m_process > 0 || connect();
}

bool HelperProcess::connect()
{
    int ends[2] = {-1, -1};
    if (m_program.path.isEmpty() || !DecodingSystem::connectedSockets(ends))
        return false;
    const ScopedFile helperEnd(ends[1]);
    {
        const QMutexLocker locker(&m_mutex);
        m_socket = ends[0];
        if (m_isCut)
            return false;
    }
    m_process = SpawnPlan(helperEnd.descriptor()).start(m_program);
    if (m_process <= 0)
        stop();
    return m_process > 0;
}

Decoded HelperProcess::decode(const DecodingInput &input, DecodingRequest request)
{
    request.source = input.id();
    request.inputBytes = input.size();
    const int source = input.descriptor();
    // A helper that was killed while it was idle is no fault of this picture.
    if (m_process > 0 && isOutOfStep())
        stop();
    const bool wasRunning = m_process > 0;
    if (source < 0 || outputBytesOf(request) <= 0 || !start())
        return {};
    auto result = tried(request, source);
    // Nor is one that is killed just after that. A new helper that ends was ended by this picture.
    if (!result && wasRunning) {
        stop();
        result = start() ? tried(request, source) : std::nullopt;
    }
    return result.value_or(Decoded());
}

std::optional<Decoded> HelperProcess::tried(const DecodingRequest &request, int input) const
{
    const qint64 outputBytes = outputBytesOf(request);
    const ScopedFile output(DecodingSystem::anonymousFile(outputBytes));
    if (output.descriptor() < 0)
        return Decoded();
    if (!send(encoded(request), input, output.descriptor()))
        return std::nullopt;
    const QByteArray bytes = receive(AnswerBytes);
    if (bytes.isEmpty())
        return std::nullopt;
    const auto answer = answerIn(bytes, request);
    if (!answer)
        return Decoded();
    // The file has the size with which it was made, whatever the helper did.
    const Mapping result(output.descriptor(), outputBytes, Mapping::Access::Read);
    return result.data() ? resultOf(result, *answer, request) : Decoded();
}

bool HelperProcess::isOutOfStep() const
{
    char byte = 0;
    return ::recv(m_socket, &byte, 1, MSG_PEEK | MSG_DONTWAIT) >= 0;
}

bool HelperProcess::send(const QByteArray &bytes, int input, int output) const
{
    const int files[2] = {input, output};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof files)> control{};
    QByteArray content = bytes;
    iovec part{content.data(), size_t(content.size())};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    cmsghdr *header = CMSG_FIRSTHDR(&message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(sizeof files);
    std::memcpy(CMSG_DATA(header), files, sizeof files);
    return ::sendmsg(m_socket, &message, DecodingSystem::quietSendFlag()) == bytes.size();
}

QByteArray HelperProcess::receive(qsizetype size) const
{
    QByteArray bytes;
    while (bytes.size() < size) {
        std::array<char, AnswerBytes> part{};
        const auto most = size_t(std::min(size - bytes.size(), qsizetype(part.size())));
        const ssize_t read = ::recv(m_socket, part.data(), most, 0);
        if (read < 0 && errno == EINTR)
            continue;
        if (read <= 0)
            break;
        bytes.append(part.data(), read);
    }
    return bytes;
}

void HelperProcess::stop()
{
    {
        const QMutexLocker locker(&m_mutex);
        if (m_socket >= 0)
            ::close(m_socket);
        m_socket = -1;
    }
    if (m_process <= 0)
        return;
    ::kill(m_process, SIGKILL);
    while (::waitpid(m_process, nullptr, 0) < 0 && errno == EINTR) {
    }
    m_process = -1;
}

void HelperProcess::end()
{
    cut();
    stop();
}

void HelperProcess::cut()
{
    const QMutexLocker locker(&m_mutex);
    m_isCut = true;
    // The waiting thread then receives the end of the connection.
    if (m_socket >= 0)
        ::shutdown(m_socket, SHUT_RDWR);
}
