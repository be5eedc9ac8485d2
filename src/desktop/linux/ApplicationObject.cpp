#include "desktop/linux/ApplicationObject.h"

#include "desktop/Requests.h"

using namespace Qt::StringLiterals;

namespace {

Activation activationIn(const QVariantMap &platformData)
{
    const auto text = [&platformData](const QString &key) {
        return platformData.value(key).toString().toUtf8();
    };
    return Activation::of(text(u"activation-token"_s), text(u"desktop-startup-id"_s));
}

} // namespace

void ApplicationObject::Activate(const QVariantMap &platformData)
{
    Q_EMIT asked(activationIn(platformData), {});
}

void ApplicationObject::Open(const QStringList &addresses, const QVariantMap &platformData)
{
    for (const QString &address : addresses.first(qMin(addresses.size(), MostAddresses)))
        Q_EMIT asked(activationIn(platformData), address.toUtf8());
}

void ApplicationObject::ActivateAction(const QString &action, const QVariantList & /*parameters*/,
                                       const QVariantMap &platformData)
{
    Q_EMIT asked(activationIn(platformData), Requests::ofAction(action));
}
