#pragma once

#include <QByteArray>

#include <functional>
#include <memory>

/// Decompresses the body of a response while it is received. The decoder is strict: it rejects a compressed body that
/// is damaged, truncated or followed by other data.
class BodyDecoder
{
public:
    /// Receives a part of the decompressed body; returns false to stop the decoding.
    using Sink = std::function<bool(QByteArrayView)>;

    /// `coding` is the value of the header `Content-Encoding`: empty, "identity", "gzip", "x-gzip" or "deflate". The
    /// program never requests any other coding, so bodies with another one count as damaged.
    explicit BodyDecoder(const QByteArray &coding);
    ~BodyDecoder();
    BodyDecoder(const BodyDecoder &) = delete;
    BodyDecoder &operator=(const BodyDecoder &) = delete;

    /// Decompresses the next bytes and passes them to the sink in parts of a limited size. False if they are damaged or
    /// the sink returned false.
    bool feed(QByteArrayView packed, const Sink &sink);
    /// True if the bytes so far form a complete body.
    bool isComplete() const;

private:
    struct Inflation;

    bool m_isKnown;
    /// Null for a body that is not compressed.
    std::unique_ptr<Inflation> m_inflation;
};
