#pragma once

#include "model/Enums.h"
#include "model/IssueStatus.h"

#include <QIcon>

/// Icons for native menus, which can only show bitmaps. Each is drawn once.

/// The icon of a status, 14 wide. A finished status has the accent colour.
QIcon statusMenuIcon(const IssueStatus &status, AccentChoice accent);
/// The program's mark, recognizable on light and dark panels.
QIcon statusItemIcon();
