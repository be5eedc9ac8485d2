#include "app/SingleInstance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds RetryPause = 50ms;
constexpr std::chrono::milliseconds AnswerLimit = 2000ms;
const QByteArray Answer = "ok\n";
// A question is one line: the activation token, and the request and the startup id in Base64, separated by tabs.
constexpr char Separator = '\t';

/// The name must be short, because the path of a local socket is limited to about a hundred characters.
QString nameOf(const QString &profile)
{
    const auto hash = QCryptographicHash::hash(profile.toUtf8(), QCryptographicHash::Sha256);
    return u"velmora-"_s + QString::fromLatin1(hash.toHex().first(16));
}

QString inRuntimeFolder(const QString &name)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return QDir(folder.isEmpty() ? QDir::tempPath() : folder).filePath(name);
}

} // namespace

SingleInstance::SingleInstance(const QString &profile, Clock &clock)
    : m_name(inRuntimeFolder(nameOf(profile))), m_clock(clock), m_lock(m_name + u".lock"_s)
{
    m_lock.setStaleLockTime(0);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::answer);
}

void SingleInstance::start(const QByteArray &request, const Activation &activation)
{
    m_activation = activation;
    if (request.size() <= LargestRequest)
        m_request = request;
    m_limit = m_clock.after(AnswerLimit, [this] { giveUp(); });
    retry();
}

void SingleInstance::retry()
{
    if (m_lock.tryLock(0))
        listen();
    else
        ask();
}

void SingleInstance::listen()
{
    m_limit.reset();
    // Removes the socket file of a process that crashed.
    QLocalServer::removeServer(m_name);
    m_server.listen(m_name);
    Q_EMIT isFirst();
}

void SingleInstance::answer()
{
    auto *socket = m_server.nextPendingConnection();
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
        if (!socket->canReadLine())
            return;
        const QByteArrayList words = socket->readLine().chopped(1).split(Separator);
        socket->write(Answer);
        const auto startupId = QByteArray::fromBase64(words.value(2));
        Q_EMIT asked(Activation::of(words.first(), startupId),
                     QByteArray::fromBase64(words.value(1)));
    });
}

void SingleInstance::ask()
{
    m_socket = std::make_unique<QLocalSocket>();
    connect(m_socket.get(), &QLocalSocket::readyRead, this, [this] {
        m_limit.reset();
        Q_EMIT isSecond();
    });
    // The other process may be about to listen, or about to end.
    connect(m_socket.get(), &QLocalSocket::errorOccurred, this,
            [this] { m_retry = m_clock.after(RetryPause, [this] { retry(); }); });
    m_socket->connectToServer(m_name);
    m_socket->write(m_activation.token + Separator + m_request.toBase64() + Separator +
                    m_activation.startupId.toBase64() + '\n');
}

void SingleInstance::giveUp()
{
    m_retry.reset();
    m_socket.reset();
    Q_EMIT isFirst();
}
