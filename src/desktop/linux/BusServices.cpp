#include "desktop/linux/BusServices.h"

#include <QDBusMessage>

using namespace Qt::StringLiterals;

namespace {

const auto Name = u"fr.orvantis.Velmora"_s;
// The desktop entry specification derives this path from the name.
const auto ApplicationPath = u"/fr/orvantis/Velmora"_s;
// The files of the package that announce the search name these paths.
const auto SearchPath = u"/fr/orvantis/Velmora/SearchProvider"_s;
const auto RunnerPath = u"/fr/orvantis/Velmora/Runner"_s;

const auto Bus = u"org.freedesktop.DBus"_s;
const auto BusPath = u"/org/freedesktop/DBus"_s;
/// A request for a name that fails if another process has it.
constexpr uint DoNotQueue = 4;

} // namespace

BusServices::BusServices(QDBusConnection bus, AppStore &store)
    : m_bus(std::move(bus)), m_finder(store), m_search(m_finder), m_runner(m_finder)
{
    connect(&m_application, &ApplicationObject::asked, this, &DesktopServices::asked);
    connect(&m_search, &SearchProvider::asked, this, &DesktopServices::asked);
    connect(&m_runner, &RunnerObject::asked, this, &DesktopServices::asked);
    if (!m_bus.isConnected())
        return;
    // The objects exist before the name, so that no caller misses them.
    m_bus.registerObject(ApplicationPath, &m_application,
                         QDBusConnection::ExportScriptableInvokables);
    m_bus.registerObject(SearchPath, &m_search, QDBusConnection::ExportScriptableInvokables);
    m_bus.registerObject(RunnerPath, &m_runner, QDBusConnection::ExportScriptableInvokables);
    takeName();
}

BusServices::~BusServices()
{
    if (!m_bus.isConnected())
        return;
    auto message = QDBusMessage::createMethodCall(Bus, BusPath, Bus, u"ReleaseName"_s);
    message << Name;
    m_bus.send(message);
}

/// Qt's own function would block until the bus responds.
void BusServices::takeName()
{
    auto message = QDBusMessage::createMethodCall(Bus, BusPath, Bus, u"RequestName"_s);
    message << Name << DoNotQueue;
    m_bus.send(message);
}

std::unique_ptr<DesktopServices> DesktopServices::ofThisSystem(AppStore &store)
{
    return std::make_unique<BusServices>(QDBusConnection::sessionBus(), store);
}
