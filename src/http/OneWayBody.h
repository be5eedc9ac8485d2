#pragma once

#include <QIODevice>

/// The body of a request, which can be read only once. If a connection breaks before the response, Qt's network stack
/// sends the request again, for which it resets the body to its start. This body refuses the reset, so the request
/// fails instead.
class OneWayBody final : public QIODevice
{
    Q_OBJECT

public:
    explicit OneWayBody(QByteArray bytes);

    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override;
    bool atEnd() const override { return m_bytes.size() == m_taken; }
    /// Always refuses.
    bool reset() override { return false; }

protected:
    qint64 readData(char *data, qint64 maximum) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray m_bytes;
    qsizetype m_taken = 0;
};
