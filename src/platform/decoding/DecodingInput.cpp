#include "platform/decoding/DecodingInput.h"

#include "platform/decoding/DecodingSystem.h"
#include "platform/decoding/Mapping.h"

#include <QFile>

#include <atomic>
#include <cstring>
#include <fcntl.h>
#include <mutex>
#include <sys/stat.h>
#include <unistd.h>

namespace {

quint64 nextId()
{
    static std::atomic<quint64> last = 0;
    return ++last;
}

int fileWith(const QByteArray &bytes)
{
    const int file = DecodingSystem::anonymousFile(bytes.size());
    if (file < 0)
        return -1;
    const Mapping mapping(file, bytes.size(), Mapping::Access::Write);
    if (!mapping.data()) {
        ::close(file);
        return -1;
    }
    std::memcpy(mapping.data(), bytes.constData(), size_t(bytes.size()));
    return file;
}

} // namespace

struct DecodingInput::Shared
{
    Shared() = default;
    Shared(const Shared &) = delete;
    Shared &operator=(const Shared &) = delete;
    ~Shared()
    {
        if (file >= 0)
            ::close(file);
    }

    const quint64 id = nextId();
    qint64 size = 0;
    std::once_flag isWritten;
    QByteArray bytes;
    int file = -1;
};

DecodingInput DecodingInput::file(const QString &path)
{
    // Opening a pipe would block without the flag.
    const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0)
        return {};
    DecodingInput input;
    input.m_shared = std::make_shared<Shared>();
    input.m_shared->file = file;
    struct stat status{};
    if (::fstat(file, &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    input.m_shared->size = status.st_size;
    return input;
}

DecodingInput DecodingInput::bytes(const QByteArray &bytes)
{
    DecodingInput input;
    input.m_shared = std::make_shared<Shared>();
    input.m_shared->bytes = bytes;
    input.m_shared->size = bytes.size();
    return input;
}

quint64 DecodingInput::id() const
{
    return m_shared ? m_shared->id : 0;
}

qint64 DecodingInput::size() const
{
    return m_shared ? m_shared->size : 0;
}

int DecodingInput::descriptor() const
{
    if (!m_shared)
        return -1;
    std::call_once(m_shared->isWritten, [this] {
        if (m_shared->file < 0)
            m_shared->file = fileWith(m_shared->bytes);
        m_shared->bytes.clear();
    });
    return m_shared->file;
}
