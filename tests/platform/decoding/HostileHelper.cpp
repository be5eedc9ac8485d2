// A helper that misbehaves in the way that its first argument names. If a second one names a file that exists, it does
// what the third one says instead: it becomes a proper helper. It makes that file when it misbehaves.

#include "platform/decoding/DecodingProtocol.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <string_view>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int Connection = 3;

void tell(const QByteArray &bytes)
{
    [[maybe_unused]] const auto sent =
        ::send(Connection, bytes.constData(), size_t(bytes.size()), MSG_NOSIGNAL);
}

[[noreturn]] void tellWithoutEnd()
{
    const QByteArray block(1 << 16, 'x');
    while (::send(Connection, block.constData(), size_t(block.size()), MSG_NOSIGNAL) > 0) {
    }
    std::_Exit(1);
}

[[noreturn]] void hang()
{
    while (true)
        ::pause();
}

bool takesRequest()
{
    std::array<char, RequestBytes> request{};
    return ::recv(Connection, request.data(), request.size(), MSG_WAITALL) == RequestBytes;
}

/// An answer that fits a request for a picture within 100 pixels.
DecodingAnswer fitting()
{
    return {.status = DecodingStatus::Done, .pixels = {10, 10}, .whole = {10, 10}};
}

void misbehave(std::string_view how)
{
    DecodingAnswer answer = fitting();
    if (how == "hang") {
        hang();
    } else if (how == "killed") {
        std::raise(SIGKILL);
    } else if (how == "half") {
        tell(encoded(answer).first(AnswerBytes / 2));
    } else if (how == "noise") {
        tell(QByteArray(AnswerBytes, '\x7f'));
    } else if (how == "large") {
        answer.pixels = {60000, 60000};
        tell(encoded(answer));
    } else if (how == "negative") {
        answer.pixels = {-10, -10};
        tell(encoded(answer));
    } else if (how == "endless") {
        tellWithoutEnd();
    } else if (how == "version") {
        QByteArray other = encoded(answer);
        other[3] = char(other[3] + 1);
        tell(other);
    } else if (how == "more") {
        tell(encoded(answer) + "and something that nobody asked for");
        hang();
    } else if (how == "second" || how == "half-of-second") {
        tell(encoded(answer));
        takesRequest();
        if (how == "half-of-second")
            tell(encoded(answer).first(AnswerBytes / 2));
        std::raise(SIGKILL);
    } else if (how == "environment") {
        answer.pixels = {std::getenv("VELMORA_SECRET") ? 99 : 1, 1};
        tell(encoded(answer));
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 3 && ::access(argv[2], F_OK) == 0) {
        ::execl(argv[3], argv[3], "--decode", nullptr);
        return 1;
    }
    if (argc > 2)
        ::close(::open(argv[2], O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
    if (argc < 2 || std::string_view(argv[1]) == "exit")
        return 1;
    if (!takesRequest())
        return 2;
    misbehave(argv[1]);
    return 0;
}
