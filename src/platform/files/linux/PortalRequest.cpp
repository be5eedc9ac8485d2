#include "platform/files/linux/PortalRequest.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace {

const auto Service = u"org.freedesktop.portal.Desktop"_s;
const auto Path = u"/org/freedesktop/portal/desktop"_s;
const auto FileChooser = u"org.freedesktop.portal.FileChooser"_s;
const auto Request = u"org.freedesktop.portal.Request"_s;

/// The values of a response. Others mean that the dialog ended for another reason.
constexpr uint Chosen = 0;
constexpr uint CancelledByUser = 1;

QString newToken()
{
    return u"velmora_"_s + QUuid::createUuid().toString(QUuid::Id128);
}

QString requestPath(const QDBusConnection &bus, const QString &token)
{
    QString sender = bus.baseService().mid(1);
    sender.replace(u'.', u'_');
    return Path + u"/request/"_s + sender + u'/' + token;
}

} // namespace

QFuture<PortalRequest::Answer> PortalRequest::ask(const QDBusConnection &bus, const QString &method,
                                                  const QString &window, const QString &title,
                                                  QVariantMap options)
{
    const QString token = newToken();
    options.insert(u"handle_token"_s, token);
    // It destroys itself in `finish`.
    auto *request =
        std::unique_ptr<PortalRequest>(new PortalRequest(bus, requestPath(bus, token))).release();
    auto message = QDBusMessage::createMethodCall(Service, Path, FileChooser, method);
    message.setArguments({window, title, options});
    auto *call =
        std::make_unique<QDBusPendingCallWatcher>(bus.asyncCall(message), request).release();
    QObject::connect(call, &QDBusPendingCallWatcher::finished, request, [request, call] {
        const QDBusPendingReply<QDBusObjectPath> reply = *call;
        if (reply.isError())
            request->finish(std::nullopt);
        else if (reply.value().path() != request->m_path)
            request->listen(reply.value().path()); // portals before version 0.9
    });
    return request->m_promise.future();
}

PortalRequest::PortalRequest(QDBusConnection bus, QString path) : m_bus(std::move(bus))
{
    m_promise.start();
    listen(path);
    m_path = std::move(path);
}

void PortalRequest::listen(const QString &path)
{
    // The service name is left empty, because Qt would otherwise look up its owner on the bus and block until the
    // response.
    m_bus.connect({}, path, Request, u"Response"_s, this, SLOT(takeResponse(uint, QVariantMap)));
}

void PortalRequest::takeResponse(uint response, const QVariantMap &results)
{
    if (response == Chosen)
        finish(QUrl::fromStringList(results.value(u"uris"_s).toStringList()));
    else if (response == CancelledByUser)
        finish(QList<QUrl>());
    else
        finish(std::nullopt);
}

void PortalRequest::finish(const Answer &answer)
{
    if (std::exchange(m_isFinished, true))
        return;
    m_promise.addResult(answer);
    m_promise.finish();
    deleteLater();
}
