#include "http/OneWayBody.h"

#include <cstring>

OneWayBody::OneWayBody(QByteArray bytes) : m_bytes(std::move(bytes))
{
    // Unbuffered, so that the read position is counted only here.
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 OneWayBody::bytesAvailable() const
{
    return m_bytes.size() - m_taken + QIODevice::bytesAvailable();
}

qint64 OneWayBody::readData(char *data, qint64 maximum)
{
    const qsizetype count = std::min<qsizetype>(maximum, m_bytes.size() - m_taken);
    if (count == 0)
        return m_bytes.size() == m_taken ? -1 : 0;
    std::memcpy(data, m_bytes.constData() + m_taken, size_t(count));
    m_taken += count;
    return count;
}
