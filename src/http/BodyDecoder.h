#pragma once

#include <QByteArray>

#include <functional>
#include <memory>

/// Unpacks the body of an answer as it comes in. Strict: a packed body that is damaged, cut short or followed by
/// anything else is no body.
class BodyDecoder
{
public:
    /// Takes a piece of the body; false when it wants no more.
    using Sink = std::function<bool(QByteArrayView)>;

    /// For the value of the header `Content-Encoding`: nothing, "identity", "gzip", "x-gzip" or "deflate". Any other
    /// is one that nobody asked for, and every body in it is damaged.
    explicit BodyDecoder(const QByteArray &coding);
    ~BodyDecoder();
    BodyDecoder(const BodyDecoder &) = delete;
    BodyDecoder &operator=(const BodyDecoder &) = delete;

    /// Unpacks the next bytes, in pieces of a bounded size. False when they are damaged or the sink wants no more.
    bool feed(QByteArrayView packed, const Sink &sink);
    /// Whether the bytes so far make a whole body.
    bool isComplete() const;

private:
    struct Inflation;

    bool m_isKnown;
    /// Absent for a body that is not packed.
    std::unique_ptr<Inflation> m_inflation;
};
