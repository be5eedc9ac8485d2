#include "http/BodyDecoder.h"

#include <array>
#include <zlib.h>

/// Decompresses one or more compressed streams, concatenated in one body.
struct BodyDecoder::Inflation
{
    /// Adding 32 to the window size makes zlib detect gzip and zlib streams by itself.
    static constexpr int AnyFormat = 32 + MAX_WBITS;
    static constexpr std::size_t PieceSize = 65536;

    Inflation() { inflateInit2(&stream, AnyFormat); }
    ~Inflation() { inflateEnd(&stream); }
    Inflation(const Inflation &) = delete;
    Inflation &operator=(const Inflation &) = delete;

    /// Decompresses up to one buffer of data; false if the data are damaged.
    bool step()
    {
        if (isAtEnd && inflateReset2(&stream, AnyFormat) != Z_OK)
            return false;
        stream.next_out = piece.data();
        stream.avail_out = uInt(piece.size());
        const int result = inflate(&stream, Z_NO_FLUSH);
        isAtEnd = result == Z_STREAM_END;
        // Lack of input data is not an error.
        return result == Z_OK || result == Z_STREAM_END || result == Z_BUF_ERROR;
    }
    QByteArrayView unpacked() const
    {
        return QByteArrayView(piece.data(), qsizetype(piece.size() - stream.avail_out));
    }
    /// The stream may have more output for the same input only if it filled the buffer.
    bool mayHoldMore() const { return stream.avail_in > 0 || (stream.avail_out == 0 && !isAtEnd); }

    z_stream stream{};
    std::array<Bytef, PieceSize> piece{};
    bool isAtEnd = false;
    /// An empty body is complete, whatever its `Content-Encoding` is.
    bool hasBytes = false;
};

namespace {

bool isPlain(const QByteArray &coding)
{
    return coding.isEmpty() || coding == "identity";
}

} // namespace

BodyDecoder::BodyDecoder(const QByteArray &coding)
{
    const QByteArray name = coding.trimmed().toLower();
    const bool isPacked = name == "gzip" || name == "x-gzip" || name == "deflate";
    m_isKnown = isPacked || isPlain(name);
    if (isPacked)
        m_inflation = std::make_unique<Inflation>();
}

BodyDecoder::~BodyDecoder() = default;

bool BodyDecoder::feed(QByteArrayView packed, const Sink &sink)
{
    if (packed.isEmpty())
        return true;
    if (!m_inflation)
        return m_isKnown && sink(packed);
    m_inflation->hasBytes = true;
    // zlib only reads from this pointer; its interface does not declare it const.
    m_inflation->stream.next_in =
        const_cast<Bytef *>(reinterpret_cast<const Bytef *>(packed.data()));
    m_inflation->stream.avail_in = uInt(packed.size());
    do {
        if (!m_inflation->step() || !sink(m_inflation->unpacked()))
            return false;
    } while (m_inflation->mayHoldMore());
    return true;
}

bool BodyDecoder::isComplete() const
{
    return !m_inflation || !m_inflation->hasBytes || m_inflation->isAtEnd;
}
