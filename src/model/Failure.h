#pragma once

#include <QString>

#include <exception>

/// The base class of every error that an operation can fail with. Its text is in French and can be shown to the user
/// unchanged.
class Failure : public std::exception
{
public:
    explicit Failure(QString message) : m_message(std::move(message)), m_utf8(m_message.toUtf8()) {}

    /// The text for the user.
    const QString &message() const { return m_message; }
    const char *what() const noexcept override { return m_utf8.constData(); }

private:
    QString m_message;
    QByteArray m_utf8;
};

/// The operation was cancelled. This failure is never reported to the user.
class Cancelled final : public Failure
{
public:
    Cancelled() : Failure(QString()) {}
};
