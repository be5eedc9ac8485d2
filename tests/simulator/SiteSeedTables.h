#pragma once

#include "simulator/Site.h"

/// The data of a fictitious company other than its issues.
namespace SiteSeedTables {

QList<SiteUser> users();
QList<SitePriority> priorities();
QList<SiteSprint> sprints();
QList<SiteProject> projects();
const QStringList &actions();
const QStringList &things();
const QStringList &circumstances();
const QStringList &sentences();
const QStringList &labels();

} // namespace SiteSeedTables
