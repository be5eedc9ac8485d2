#include "platform/FakePortal.h"

#include <QDBusMessage>

using namespace Qt::StringLiterals;

FakePortal::FakePortal(QDBusConnection bus) : m_bus(std::move(bus))
{
    m_bus.registerObject(u"/org/freedesktop/portal/desktop"_s, this,
                         QDBusConnection::ExportScriptableContents);
    m_bus.registerService(u"org.freedesktop.portal.Desktop"_s);
}

void FakePortal::set(const QString &group, const QString &key, const QVariant &value)
{
    m_values[group + u'/' + key] = value;
}

void FakePortal::change(const QString &group, const QString &key, const QVariant &value)
{
    set(group, key, value);
    Q_EMIT SettingChanged(group, key, QDBusVariant(value));
}

QDBusVariant FakePortal::Read(const QString &group, const QString &key)
{
    ++m_reads;
    const auto found = m_values.find(group + u'/' + key);
    if (found == m_values.end()) {
        sendErrorReply(u"org.freedesktop.portal.Error.NotFound"_s,
                       u"Requested setting not found"_s);
        return {};
    }
    // A real portal wraps the result of a read in two variants.
    return QDBusVariant(QVariant::fromValue(QDBusVariant(found->second)));
}
