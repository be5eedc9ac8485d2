#include "app/AddressOpener.h"

#include "app/IssueAddress.h"

#include <utility>

AddressOpener::AddressOpener(AppStore &store, Scenes &scenes) : m_store(store), m_scenes(scenes)
{
    connect(&m_store, &AppStore::phaseChanged, this, &AddressOpener::openWaiting);
}

void AddressOpener::open(const QString &address)
{
    m_waiting = address;
    openWaiting();
}

void AddressOpener::openWaiting()
{
    if (m_store.phase() != AppStore::Phase::Ready)
        return;
    const auto pageOf = [this](const QString &key) { return m_store.browseURL(key); };
    if (const auto key = IssueAddress::keyOf(std::exchange(m_waiting, {}), pageOf))
        m_scenes.showIssue(*key);
}
