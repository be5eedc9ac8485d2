#pragma once

#include "jira/SiteConnection.h"
#include "model/Project.h"

#include <QList>

/// Fetches all projects of a site, page by page, up to the limit of `SiteAnswers::nextProjects`. If a page fails, the
/// whole operation fails.
QCoro::Task<QList<Project>> allProjects(SiteConnectionPtr connection, std::stop_token stop);
