#pragma once

#include <QString>

/// An account of the simulated site.
struct SiteUser
{
    QString accountId;
    QString displayName;
    /// Empty when the account hides it.
    QString email;
    /// "atlassian" for people, "app" for programs, "customer" for those of a service portal.
    QString accountType;
    bool isActive = true;
};
