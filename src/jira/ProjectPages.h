#pragma once

#include "jira/SiteConnection.h"
#include "model/Project.h"

#include <QList>

/// All projects of a site, page after page, up to the bound told by `SiteAnswers::nextProjects`. A failure of one page
/// fails the whole.
QCoro::Task<QList<Project>> allProjects(SiteConnectionPtr connection, std::stop_token stop);
