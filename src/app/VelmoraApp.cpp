#include "app/VelmoraApp.h"

#include "async/Spawn.h"
#include "screens/kit/KitProviders.h"
#include "screens/theme/Fonts.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QScreen>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Velmora_ModelPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_StatePlugin)
Q_IMPORT_QML_PLUGIN(Velmora_ThemePlugin)
Q_IMPORT_QML_PLUGIN(Velmora_KitPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_OptionsPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_IssuesPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_PalettePlugin)
Q_IMPORT_QML_PLUGIN(Velmora_ShellPlugin)

VelmoraApp::VelmoraApp(Outside outside)
    : m_outside(std::move(outside)), m_store(context()), m_windowMemory(*m_outside.preferences)
{
    Fonts::load();
    m_engine.addImportPath(QStringLiteral(":/qt/qml"));
    registerKitProviders(m_engine);
}

AppStoreContext VelmoraApp::context()
{
    return {*m_outside.clock, *m_outside.preferences, *m_outside.desktop, m_outside.calendar,
            [this] { return m_outside.makeDemo(*m_outside.clock, m_outside.calendar); }};
}

QVariantMap VelmoraApp::rootProperties()
{
    QList<QRect> screens;
    for (const auto *screen : QGuiApplication::screens())
        screens += screen->availableGeometry();
    auto properties = m_windowMemory.initialProperties(screens);
    properties.insert(QStringLiteral("store"), QVariant::fromValue(&m_store));
    properties.insert(QStringLiteral("memory"), QVariant::fromValue(&m_windowMemory));
    return properties;
}

bool VelmoraApp::open()
{
    m_engine.setInitialProperties(rootProperties());
    m_engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Velmora/Shell/RootView.qml")));
    if (m_engine.rootObjects().isEmpty())
        return false;
    m_windowMemory.follow(mainWindow());
    spawn(m_store.bootstrap());
    return true;
}

QQuickWindow *VelmoraApp::mainWindow() const
{
    const auto roots = m_engine.rootObjects();
    return roots.isEmpty() ? nullptr : qobject_cast<QQuickWindow *>(roots.first());
}
