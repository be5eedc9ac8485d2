#include "state/AppStore.h"

AppStore::AppStore(AppStoreContext context, QObject *parent)
    : AppStorePreferences(context.preferences, context.desktop, parent),
      m_context(std::move(context))
{
    const Batch batch(*this);
    m_issueList.setBadges([this](const Issue &issue) { return badgeOf(issue); });
    markStale(List | Sidebar);
    readPreferences();
}

AppStore::~AppStore() = default;
