#include "simulator/server/Packed.h"

#include <zlib.h>

QByteArray packed(const QByteArray &bytes)
{
    constexpr int gzip = 16 + MAX_WBITS;
    constexpr int memory = 8;
    z_stream stream{};
    deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, gzip, memory, Z_DEFAULT_STRATEGY);
    QByteArray result(qsizetype(deflateBound(&stream, uLong(bytes.size()))), Qt::Uninitialized);
    stream.next_in = const_cast<Bytef *>(reinterpret_cast<const Bytef *>(bytes.constData()));
    stream.avail_in = uInt(bytes.size());
    stream.next_out = reinterpret_cast<Bytef *>(result.data());
    stream.avail_out = uInt(result.size());
    deflate(&stream, Z_FINISH);
    result.truncate(qsizetype(stream.total_out));
    deflateEnd(&stream);
    return result;
}
