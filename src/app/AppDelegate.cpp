#include "app/AppDelegate.h"

AppDelegate::AppDelegate(Scenes &scenes, AppStore &store, StatusHost &host)
    : m_scenes(scenes), m_store(store), m_host(host)
{
    connect(&m_host, &StatusHost::isPresentChanged, this, &AppDelegate::followHost);
    connect(&m_scenes, &Scenes::allClosed, this, &AppDelegate::endWithoutItem);
    followHost();
}

void AppDelegate::showMainWindow()
{
    m_scenes.showMain();
}

void AppDelegate::followHost()
{
    if (m_host.isPresent() == (m_item != nullptr))
        return;
    if (m_host.isPresent())
        return makeItem();
    m_item.reset();
    if (m_scenes.mainWindow() && m_scenes.isAllClosed())
        showMainWindow();
}

void AppDelegate::makeItem()
{
    m_item = std::make_unique<StatusItem>(m_store);
    connect(m_item.get(), &StatusItem::issueChosen, &m_scenes, &Scenes::showIssue);
    connect(m_item.get(), &StatusItem::newIssueChosen, this, &AppDelegate::createIssue);
    connect(m_item.get(), &StatusItem::mainWindowChosen, this, &AppDelegate::showMainWindow);
    connect(m_item.get(), &StatusItem::quitChosen, this, &AppDelegate::quitRequested);
}

void AppDelegate::createIssue()
{
    // The window is shown first, because the create screen is part of it.
    showMainWindow();
    m_store.newIssue();
}

void AppDelegate::endWithoutItem()
{
    if (!m_item)
        Q_EMIT quitRequested();
}
