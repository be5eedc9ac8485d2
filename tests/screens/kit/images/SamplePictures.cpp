#include "screens/kit/images/SamplePictures.h"

#include <QBuffer>
#include <QImage>
#include <QRandomGenerator>
#include <QtEndian>

#include <array>
#include <bit>

namespace {

constexpr QSize enormous(60000, 60000);

/// The checksum of a PNG chunk.
quint32 crcOf(const QByteArray &bytes)
{
    quint32 crc = 0xffffffffU;
    for (const char byte : bytes) {
        crc ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1U) != 0 ? (crc >> 1U) ^ 0xedb88320U : crc >> 1U;
    }
    return ~crc;
}

template <typename T>
void writeLittle(QByteArray &bytes, qsizetype at, T value)
{
    qToLittleEndian(value, bytes.data() + at);
}

template <typename T>
void writeBig(QByteArray &bytes, qsizetype at, T value)
{
    qToBigEndian(value, bytes.data() + at);
}

QByteArray damaged(QByteArray bytes, QRandomGenerator &random)
{
    const int wounds = 1 + random.bounded(20);
    for (int i = 0; i < wounds; ++i)
        bytes[random.bounded(bytes.size())] = char(random.bounded(256));
    return bytes;
}

QByteArray noise(QRandomGenerator &random)
{
    QByteArray bytes(1 + random.bounded(4000), Qt::Uninitialized);
    for (char &byte : bytes)
        byte = char(random.bounded(256));
    return bytes;
}

QList<QByteArray> notPictures()
{
    return {
        "",
        "\x89PNG\r\n\x1a\n",
        "GIF89a",
        "BM",
        "\xff\xd8\xff",
        "<html><body>Connexion</body></html>",
        "{\"errorMessages\":[\"no\"]}",
        "%PDF-1.7\n1 0 obj\n",
        "PK\x03\x04 zip",
        "<svg width='60000' height='60000'><rect width='60000' height='60000'/></svg>",
        "<!DOCTYPE svg [<!ENTITY a 'aa'><!ENTITY b '&a;&a;'>]><svg>&b;</svg>",
        "/* XPM */ static char *a[] = {\"60000 60000 1 1\", \"a c #000\"};",
        "P6 60000 60000 255 ",
        "#define a_width 60000\n#define a_height 60000\nstatic char a_bits[] = {0};",
    };
}

} // namespace

QByteArray SamplePictures::picture(const char *format, QSize size, const QColor &color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

QByteArray SamplePictures::pngClaiming(QSize size)
{
    auto bytes = picture("png");
    writeBig<quint32>(bytes, 16, quint32(size.width()));
    writeBig<quint32>(bytes, 20, quint32(size.height()));
    writeBig<quint32>(bytes, 29, crcOf(bytes.mid(12, 17)));
    return bytes;
}

QByteArray SamplePictures::bmpClaiming(QSize size)
{
    auto bytes = picture("bmp");
    writeLittle<qint32>(bytes, 18, size.width());
    writeLittle<qint32>(bytes, 22, size.height());
    return bytes;
}

// Qt can read GIF but not write it, so the bytes are those of a minimal GIF.
QByteArray SamplePictures::gifClaiming(QSize size)
{
    auto bytes = QByteArray::fromHex(
        "47494638396101000100800000ff0000ffffff2c00000000010001000002024401003b");
    writeLittle<quint16>(bytes, 6, quint16(size.width()));
    writeLittle<quint16>(bytes, 8, quint16(size.height()));
    return bytes;
}

QByteArray SamplePictures::iconHolding(const QByteArray &png)
{
    auto bytes = QByteArray::fromHex("00000100010020200000010020000000000016000000");
    writeLittle<quint32>(bytes, 14, quint32(png.size()));
    return bytes + png;
}

QList<QByteArray> SamplePictures::hostile()
{
    QRandomGenerator random(20261029);
    const QList<QByteArray> good{picture("png"), picture("jpg"),      picture("bmp"),
                                 picture("ico"), gifClaiming({1, 1}), iconHolding(picture("png"))};
    QList<QByteArray> pictures = notPictures();
    pictures += {pngClaiming(enormous),
                 bmpClaiming(enormous),
                 bmpClaiming({60000, -60000}),
                 bmpClaiming({-1, -1}),
                 gifClaiming({65535, 65535}),
                 pngClaiming({2147483647, 1}),
                 pngClaiming({0, 0}),
                 iconHolding(pngClaiming(enormous)),
                 iconHolding(iconHolding(picture("png")))};
    for (const auto &bytes : good)
        pictures += iconHolding(bytes);
    while (pictures.size() < 600)
        pictures += damaged(good[random.bounded(good.size())], random);
    while (pictures.size() < 900) {
        const auto &whole = good[random.bounded(good.size())];
        pictures += whole.first(random.bounded(whole.size()));
    }
    while (pictures.size() < 1000)
        pictures += noise(random);
    return pictures;
}
