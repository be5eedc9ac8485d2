#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

/// A file or bytes to decode. Copies share the open file. May be used from any thread.
class DecodingInput
{
public:
    /// Nothing.
    DecodingInput() = default;
    /// A file. Null if it is not a regular file or cannot be opened.
    static DecodingInput file(const QString &path);
    /// Bytes in memory, which are copied into an unnamed file when they are first decoded.
    static DecodingInput bytes(const QByteArray &bytes);

    bool isNull() const { return !m_shared; }
    /// A number that no other input has.
    quint64 id() const;
    qint64 size() const;
    /// The open file; -1 if there is none. It belongs to this object.
    int descriptor() const;

private:
    struct Shared;

    std::shared_ptr<Shared> m_shared;
};
