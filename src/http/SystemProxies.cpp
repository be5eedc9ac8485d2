#include "http/SystemProxies.h"

#include <QHostAddress>

using namespace Qt::StringLiterals;

namespace {

bool isThisMachine(const QString &host)
{
    return host.compare("localhost"_L1, Qt::CaseInsensitive) == 0 ||
           QHostAddress(host).isLoopback();
}

} // namespace

QList<QNetworkProxy> SystemProxies::queryProxy(const QNetworkProxyQuery &query)
{
    if (isThisMachine(query.peerHostName()))
        return {QNetworkProxy(QNetworkProxy::NoProxy)};
    return systemProxyForQuery(query);
}
