#include "platform/decoding/helper/DecodeMain.h"

#include "platform/decoding/Decoders.h"
#include "platform/decoding/DecodingSystem.h"
#include "platform/decoding/helper/DecodingDesk.h"
#include "platform/decoding/helper/PictureFormat.h"

#include <QCoreApplication>

#include <array>
#include <cerrno>
#include <cstring>
#include <ctime>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int Connection = 3;
/// After this much processor time the helper asks to be replaced, well before the limit that would kill it.
constexpr std::time_t LongestService = 60;

/// A request and the two files that came with it.
struct Received
{
    std::optional<DecodingRequest> request;
    int files[2] = {-1, -1};
};

Received nextRequest()
{
    Received received;
    QByteArray bytes(RequestBytes, '\0');
    iovec part{bytes.data(), size_t(bytes.size())};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof received.files)> control{};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    ssize_t read = -1;
    do {
        read = ::recvmsg(Connection, &message, MSG_WAITALL);
    } while (read < 0 && errno == EINTR);
    const cmsghdr *header = CMSG_FIRSTHDR(&message);
    if (read != RequestBytes || !header || header->cmsg_type != SCM_RIGHTS ||
        header->cmsg_len != CMSG_LEN(sizeof received.files))
        return received;
    std::memcpy(received.files, CMSG_DATA(header), sizeof received.files);
    received.request = requestIn(bytes);
    return received;
}

bool isSpent()
{
    timespec used{};
    return ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used) != 0 || used.tv_sec >= LongestService;
}

/// Answers until the program ends or sends something that is no request.
void serve()
{
    DecodingDesk desk;
    bool goesOn = true;
    while (goesOn) {
        const Received received = nextRequest();
        if (!received.request)
            return;
        DecodingAnswer answer =
            desk.answer(*received.request, received.files[0], received.files[1]);
        ::close(received.files[0]);
        ::close(received.files[1]);
        answer.isLast = isSpent();
        const QByteArray bytes = encoded(answer);
        const ssize_t sent = ::send(Connection, bytes.constData(), size_t(bytes.size()),
                                    DecodingSystem::quietSendFlag());
        goesOn = sent == bytes.size() && !answer.isLast;
    }
}

int decodeMain(int argc, char **argv)
{
    DecodingSystem::closeDescriptorsFrom(Connection + 1);
    DecodingSystem::endWithParent();
    const QCoreApplication application(argc, argv);
    loadDecoders();
    if (!DecodingSystem::confine())
        ::_exit(3);
    serve();
    // Nothing is left to be written, and a confined process could not end in the usual way.
    ::_exit(0);
}

} // namespace

std::optional<int> decodeIfAsked(int argc, char **argv)
{
    if (argc == 2 && qstrcmp(argv[1], DecodingOption) == 0)
        return decodeMain(argc, argv);
    Decoders::setOwnProgramDecodes();
    return std::nullopt;
}
