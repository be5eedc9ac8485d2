#include "shell/Scenes.h"

#include "shell/about/About.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQuickGraphicsConfiguration>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

void bringForward(QQuickWindow *window)
{
    if (window->windowStates().testFlag(Qt::WindowMinimized))
        window->setWindowStates(window->windowStates() & ~Qt::WindowStates(Qt::WindowMinimized));
    // A window that is shown again is raised to the top.
    if (window->isVisible())
        window->raise();
    window->show();
    window->requestActivate();
}

} // namespace

Scenes::Scenes(QQmlEngine &engine, AppStore &store, Preferences &preferences, Farewell &farewell,
               UpdateScreens &updates, DesktopShortcuts *shortcuts)
    : m_engine(engine),
      m_store(store),
      m_farewell(farewell),
      m_updates(updates),
      m_shortcuts(shortcuts),
      m_memory(preferences),
      m_tabs(preferences)
{
    QQmlEngine::setObjectOwnership(&m_farewell, QQmlEngine::CppOwnership);
    QQmlEngine::setObjectOwnership(&m_updates, QQmlEngine::CppOwnership);
    QQmlEngine::setObjectOwnership(m_updates.updater(), QQmlEngine::CppOwnership);
    QQmlEngine::setObjectOwnership(&m_memory, QQmlEngine::CppOwnership);
    QQmlEngine::setObjectOwnership(&m_tabs, QQmlEngine::CppOwnership);
    if (m_shortcuts)
        QQmlEngine::setObjectOwnership(m_shortcuts, QQmlEngine::CppOwnership);
    connect(&m_farewell, &Farewell::windowWanted, this, &Scenes::showMain);
    connect(&m_store, &AppStore::openWindowRequested, this, &Scenes::showIssue);
    connect(&m_store, &AppStore::settingsRequested, this, &Scenes::showSettings);
    connect(&m_store, &AppStore::shortcutsRequested, this, &Scenes::showShortcuts);
    connect(&m_store, &AppStore::updateCheckRequested, &m_updates, &UpdateScreens::checkFromMenu);
    // Alerts are shown above the main window.
    connect(&m_updates, &UpdateScreens::alertRaised, this, &Scenes::showMain);
    connect(&About::shared(), &About::isShownChanged, this, [this] {
        if (About::shared().isShown())
            showMain();
    });
    connect(&m_updates, &UpdateScreens::addressChosen, &m_store, &AppStore::openAddress);
}

Scenes::~Scenes()
{
    About::shared().hide();
    // Signals of windows that are being destroyed are ignored.
    if (m_main)
        m_main->disconnect(this);
    QList<QQuickWindow *> others = m_issues.values();
    if (m_settings)
        others.append(m_settings);
    for (auto *window : others)
        window->disconnect(this);
    qDeleteAll(others);
    // The windows are destroyed before the objects that they show.
    qDeleteAll(m_leaving);
}

bool Scenes::showMain()
{
    if (!m_main) {
        m_main.reset(make(u"RootView"_s, mainProperties()));
        if (!m_main)
            return false;
        m_memory.follow(m_main.get());
        watch(m_main.get());
    }
    bringForward(m_main.get());
    return true;
}

void Scenes::showIssue(const QString &key)
{
    auto *&window = m_issues[key];
    if (!window) {
        window = make(u"IssueWindow"_s, {{u"key"_s, key}});
        watch(window);
    }
    bringForward(window);
}

void Scenes::showSettings()
{
    if (!m_settings) {
        m_settings =
            make(u"settings/SettingsView"_s, {{u"tabs"_s, QVariant::fromValue(&m_tabs)},
                                              {u"shortcuts"_s, QVariant::fromValue(m_shortcuts)},
                                              {u"updates"_s, QVariant::fromValue(&m_updates)}});
        watch(m_settings);
    }
    bringForward(m_settings);
}

void Scenes::showShortcuts()
{
    m_tabs.setTab(u"shortcuts"_s);
    showSettings();
}

bool Scenes::isAllClosed() const
{
    const auto isSeen = [](const QQuickWindow *window) { return window && window->isVisible(); };
    return !isSeen(m_main.get()) && !isSeen(m_settings) && std::ranges::none_of(m_issues, isSeen);
}

QVariantMap Scenes::mainProperties()
{
    QList<QRect> screens;
    for (const auto *screen : QGuiApplication::screens())
        screens += screen->availableGeometry();
    auto properties = m_memory.initialProperties(screens);
    properties.insert(u"farewell"_s, QVariant::fromValue(&m_farewell));
    properties.insert(u"memory"_s, QVariant::fromValue(&m_memory));
    properties.insert(u"updates"_s, QVariant::fromValue(&m_updates));
    return properties;
}

QQuickWindow *Scenes::make(const QString &file, const QVariantMap &properties)
{
    QQmlComponent component(&m_engine, QUrl(u"qrc:/qt/qml/Velmora/Shell/"_s + file + u".qml"_s));
    QVariantMap all = properties;
    all.insert(u"store"_s, QVariant::fromValue(&m_store));
    auto *window = qobject_cast<QQuickWindow *>(component.beginCreate(m_engine.rootContext()));
    if (!window) {
        qWarning().noquote() << component.errorString();
        return nullptr;
    }
    component.setInitialProperties(window, all);
    // Nearly everything is translucent or has round corners, so it is drawn from back to front and depth is of no use.
    auto graphics = window->graphicsConfiguration();
    graphics.setDepthBufferFor2D(false);
    window->setGraphicsConfiguration(graphics);
    // The frame is set before the window is shown. A remembered frame already fits.
    if (!all.contains(u"width"_s) && window->screen())
        window->resize(sizeOnScreen(window->size(), window->screen()->availableSize()));
    component.completeCreate();
    return window;
}

void Scenes::watch(QQuickWindow *window)
{
    About::shared().watch(*window);
    connect(window, &QWindow::visibleChanged, this, [this, window](bool isVisible) {
        if (isVisible)
            return;
        forget(window);
        if (isAllClosed())
            Q_EMIT allClosed();
    });
}

void Scenes::forget(QQuickWindow *window)
{
    if (window == m_main.get())
        return;
    if (window == m_settings)
        m_settings = nullptr;
    m_issues.removeIf([window](const auto &entry) { return entry.value() == window; });
    // The window's own code may be running.
    window->deleteLater();
    m_leaving.removeAll(nullptr);
    m_leaving.append(window);
}
