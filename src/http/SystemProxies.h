#pragma once

#include <QNetworkProxyFactory>

/// The proxies configured in the system. Connections to the local machine use no proxy.
class SystemProxies final : public QNetworkProxyFactory
{
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery &query) override;
};
