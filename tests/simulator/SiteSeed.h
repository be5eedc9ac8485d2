#pragma once

#include "simulator/Site.h"

/// Fictitious sites.
namespace SiteSeed {

/// A French company with the given number of issues in six projects, among them a service project and one without
/// sprints. The same number and time always give the same site. The account is "camille@lumen.example" with the token
/// "jeton-de-test".
Site company(int issues, const QDateTime &now);

} // namespace SiteSeed
