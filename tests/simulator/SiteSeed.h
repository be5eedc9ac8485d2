#pragma once

#include "simulator/Site.h"

/// Made-up sites.
namespace SiteSeed {

/// A French company with six projects, among them a service desk and one without sprints, and so many issues. The same
/// number and instant always give the same site. Who signs in is "camille@lumen.example" with "jeton-de-test".
Site company(int issues, const QDateTime &now);

} // namespace SiteSeed
