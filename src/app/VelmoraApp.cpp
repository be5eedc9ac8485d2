#include "app/VelmoraApp.h"

#include "async/Spawn.h"
#include "screens/kit/KitProviders.h"
#include "screens/theme/Fonts.h"

#include <QGuiApplication>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Velmora_ModelPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_StatePlugin)
Q_IMPORT_QML_PLUGIN(Velmora_ThemePlugin)
Q_IMPORT_QML_PLUGIN(Velmora_KitPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_OptionsPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_DocumentsPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_AttachmentsPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_ComposerPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_IssuesPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_DetailPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_PalettePlugin)
Q_IMPORT_QML_PLUGIN(Velmora_UpdatePlugin)
Q_IMPORT_QML_PLUGIN(Velmora_UpdateScreensPlugin)
Q_IMPORT_QML_PLUGIN(Velmora_ShellPlugin)

namespace {

constexpr auto longestFarewell = std::chrono::seconds(3);

QCoro::Task<> quitAfter(QCoro::Task<> task)
{
    co_await task;
    QCoreApplication::quit();
}

} // namespace

VelmoraApp::VelmoraApp(Outside outside)
    : m_outside(std::move(outside)),
      m_images(ImageLoader::shared(), *m_outside.clock),
      m_sessions(
          *m_outside.preferences, *m_outside.keychain,
          [this](const JiraCredentials &credentials) {
              return m_outside.makeClient(credentials, *m_outside.clock, *m_outside.calendar);
          },
          [this](const JiraCredentials &credentials) { m_images.showCredentials(credentials); }),
      m_store(context()),
      m_farewell(*m_outside.clock, m_store),
      m_updateTransport(m_outside.makeUpdateTransport(*m_outside.clock)),
      m_updater(updaterContext()),
      m_updates(m_updater, *m_outside.calendar),
      m_scenes(m_engine, m_store, *m_outside.preferences, m_farewell, m_updates,
               m_outside.shortcuts.get()),
      m_delegate(m_scenes, m_store, *m_outside.statusHost)
{
    if (InputFrames::isUsefulOn(QGuiApplication::platformName()))
        m_inputFrames.emplace();
    Fonts::load();
    m_engine.addImportPath(QStringLiteral(":/qt/qml"));
    registerKitProviders(m_engine);
    QObject::connect(m_outside.calendar.get(), &SystemCalendar::changed, &m_store,
                     [this] { m_store.setCalendar(m_outside.calendar->current()); });
    const auto quitForUser = [this] { quit(Farewell::Reason::User); };
    QObject::connect(&m_engine, &QQmlEngine::quit, &m_store, quitForUser, Qt::QueuedConnection);
    QObject::connect(&m_delegate, &AppDelegate::quitRequested, &m_store, quitForUser,
                     Qt::QueuedConnection);
    QObject::connect(&m_farewell, &Farewell::ended, &m_store, [this] { end(); });
}

AppStoreContext VelmoraApp::context()
{
    return {*m_outside.clock,
            *m_outside.preferences,
            *m_outside.desktop,
            m_sessions,
            m_outside.calendar->current(),
            [this] { return m_outside.makeDemo(*m_outside.clock, *m_outside.calendar); }};
}

/// The installation of an update asks to quit while a button is being pressed, so it is queued.
UpdaterContext VelmoraApp::updaterContext()
{
    const auto quitForUpdate = [this] {
        QMetaObject::invokeMethod(
            &m_store, [this] { quit(Farewell::Reason::User); }, Qt::QueuedConnection);
    };
    return {.clock = *m_outside.clock,
            .preferences = *m_outside.preferences,
            .transport = *m_updateTransport,
            .bundles = m_outside.bundles,
            .quit = quitForUpdate,
            .temporaryFolder = m_outside.temporaryFolder};
}

bool VelmoraApp::open()
{
    m_updater.start();
    if (!m_scenes.showMain())
        return false;
    bootstrap();
    return true;
}

void VelmoraApp::quit(Farewell::Reason reason)
{
    m_farewell.begin(reason);
}

void VelmoraApp::end()
{
    m_lastMoment = m_outside.clock->after(longestFarewell, &QCoreApplication::quit);
    spawn(quitAfter(m_sessions.settled()));
}

/// The window is shown first, because the system's store for secrets may ask the user something.
void VelmoraApp::bootstrap()
{
    if (m_store.startsWithDemo())
        spawn(m_store.bootstrap());
    else
        QObject::connect(
            mainWindow(), &QQuickWindow::frameSwapped, &m_store,
            [this] { spawn(m_store.bootstrap()); }, Qt::SingleShotConnection);
}
