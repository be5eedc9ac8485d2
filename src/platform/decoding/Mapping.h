#pragma once

#include <QByteArray>

#include <sys/mman.h>
#include <utility>

/// The content of a file as memory. Reading it after the file was cut off ends the process, so the program itself maps
/// only files that cannot change their size.
class Mapping
{
public:
    enum class Access { Read, Write };

    Mapping() = default;
    /// Has no data if the file cannot be mapped.
    Mapping(int file, qint64 size, Access access) : m_size(size)
    {
        const bool writes = access == Access::Write;
        void *place =
            size <= 0 ? MAP_FAILED
                      : ::mmap(nullptr, size_t(size), writes ? PROT_READ | PROT_WRITE : PROT_READ,
                               writes ? MAP_SHARED : MAP_PRIVATE, file, 0);
        m_data = place == MAP_FAILED ? nullptr : static_cast<char *>(place);
    }
    Mapping(Mapping &&other) noexcept
        : m_data(std::exchange(other.m_data, nullptr)), m_size(other.m_size)
    {
    }
    Mapping &operator=(Mapping &&other) noexcept
    {
        std::swap(m_data, other.m_data);
        std::swap(m_size, other.m_size);
        return *this;
    }
    Mapping(const Mapping &) = delete;
    Mapping &operator=(const Mapping &) = delete;
    ~Mapping()
    {
        if (m_data)
            ::munmap(m_data, size_t(m_size));
    }

    char *data() const { return m_data; }
    /// The content without a copy; empty without data. Valid as long as this object.
    QByteArray bytes() const
    {
        return m_data ? QByteArray::fromRawData(m_data, m_size) : QByteArray();
    }

private:
    char *m_data = nullptr;
    qint64 m_size = 0;
};
