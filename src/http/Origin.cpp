#include "http/Origin.h"

using namespace Qt::StringLiterals;

namespace {

int portOf(const QString &scheme)
{
    if (scheme == "https"_L1)
        return 443;
    return scheme == "http"_L1 ? 80 : -1;
}

} // namespace

Origin Origin::of(const QUrl &url)
{
    const QString scheme = url.scheme();
    return {scheme, url.host(QUrl::FullyEncoded).toLower(), url.port(portOf(scheme))};
}
