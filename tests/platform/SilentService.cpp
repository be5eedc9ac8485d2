#include "platform/SilentService.h"

using namespace Qt::StringLiterals;

namespace {

const auto Name = u"org.freedesktop.secrets"_s;

} // namespace

SilentService::SilentService(QDBusConnection bus) : m_bus(std::move(bus))
{
    m_bus.registerObject(u"/org/freedesktop/secrets"_s, this,
                         QDBusConnection::ExportScriptableContents);
    m_bus.registerService(Name);
}

SilentService::~SilentService()
{
    m_bus.unregisterService(Name);
}

QDBusVariant SilentService::OpenSession(const QString &, const QDBusVariant &)
{
    wasAsked = true;
    setDelayedReply(true);
    return {};
}
