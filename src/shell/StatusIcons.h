#pragma once

#include "model/Enums.h"
#include "model/IssueStatus.h"

#include <QIcon>

/// Icons for native menus, which cannot hold a live drawing. Each is drawn once.

/// The icon of a status, 14 wide; a finished status has the accent's colour.
QIcon statusMenuIcon(const IssueStatus &status, AccentChoice accent);
/// The program's mark, which can be told apart on light panels and on dark ones.
QIcon statusItemIcon();
