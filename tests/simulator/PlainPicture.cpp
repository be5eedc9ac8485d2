#include "simulator/PlainPicture.h"

#include <QtEndian>

namespace {

QByteArray bigEndian(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

/// The CRC-32 checksum of PNG and zip, computed bit by bit.
quint32 crc32(const QByteArray &bytes)
{
    quint32 crc = 0xFFFFFFFF;
    for (const char byte : bytes) {
        crc ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320 : 0);
    }
    return ~crc;
}

QByteArray chunk(const QByteArray &name, const QByteArray &data)
{
    return bigEndian(quint32(data.size())) + name + data + bigEndian(crc32(name + data));
}

} // namespace

QByteArray plainPicture(int width, int height, size_t colour)
{
    const QByteArray pixel = bigEndian(quint32(colour)).sliced(1);
    const QByteArray row = '\0' + pixel.repeated(width);
    const QByteArray eightBitRgb("\x08\x02\x00\x00\x00", 5);
    // Qt adds four bytes with the length before the zlib data.
    const QByteArray packed = qCompress(row.repeated(height)).sliced(4);
    return QByteArray("\x89PNG\r\n\x1A\n", 8) +
           chunk("IHDR", bigEndian(quint32(width)) + bigEndian(quint32(height)) + eightBitRgb) +
           chunk("IDAT", packed) + chunk("IEND", {});
}
