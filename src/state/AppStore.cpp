#include "state/AppStore.h"

AppStore::AppStore(AppStoreContext context, QObject *parent)
    : AppStoreFields(parent), m_context(std::move(context))
{
    const Batch batch(*this);
    m_issueList.setBadges([this](const Issue &issue) { return badgeOf(issue); });
    markStale(List | Sidebar);
    readPreferences();
    refreshAppearance();
    connect(&m_context.desktop, &Desktop::appearanceChanged, this, &AppStore::refreshAppearance);
}

AppStore::~AppStore() = default;
