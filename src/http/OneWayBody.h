#pragma once

#include <QIODevice>

/// A request's body that can be read once. Qt's network stack sends a request again by itself when its connection breaks
/// before the answer, and for that it takes the body back to its start; here it cannot, and gives up instead.
class OneWayBody final : public QIODevice
{
    Q_OBJECT

public:
    explicit OneWayBody(QByteArray bytes);

    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override;
    bool atEnd() const override { return m_bytes.size() == m_taken; }
    /// Refuses.
    bool reset() override { return false; }

protected:
    qint64 readData(char *data, qint64 maximum) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray m_bytes;
    qsizetype m_taken = 0;
};
