#pragma once

#include <QString>

/// An account of the simulated site.
struct SiteUser
{
    QString accountId;
    QString displayName;
    /// Empty if the account hides it.
    QString email;
    /// "atlassian" for people, "app" for apps, "customer" for customers of a service project.
    QString accountType;
    bool isActive = true;
};
