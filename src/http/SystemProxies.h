#pragma once

#include <QNetworkProxyFactory>

/// The proxies that the system is set to use; this machine itself is asked directly.
class SystemProxies final : public QNetworkProxyFactory
{
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery &query) override;
};
