#pragma once

#include <QString>

#include <exception>

/// The base of everything that an operation can fail with. Its text is French and fit to be shown as it stands.
class Failure : public std::exception
{
public:
    explicit Failure(QString message) : m_message(std::move(message)), m_utf8(m_message.toUtf8()) {}

    /// What the user reads.
    const QString &message() const { return m_message; }
    const char *what() const noexcept override { return m_utf8.constData(); }

private:
    QString m_message;
    QByteArray m_utf8;
};

/// The operation was called off. Nobody ever reports it.
class Cancelled final : public Failure
{
public:
    Cancelled() : Failure(QString()) {}
};
