#include "state/AppStoreFields.h"

using namespace Qt::StringLiterals;

namespace {

/// The suffix of the addresses of all Jira Cloud sites.
constexpr auto CloudSuffix = ".atlassian.net"_L1;

} // namespace

QString AppStoreFields::siteName() const
{
    return *m_session ? (*m_session)->service()->siteName() : QString();
}

QString AppStoreFields::siteShortName() const
{
    return siteName().remove(CloudSuffix, Qt::CaseInsensitive);
}

IssueScope AppStoreFields::sidebarSelection() const
{
    const ActivityPeriod *period = m_scope->asActivity();
    if (!period)
        return *m_scope;
    ActivityPeriod own = *period;
    own.teamWide = false;
    return IssueScope::activity(own);
}
