#pragma once

#include "simulator/Site.h"
#include "simulator/SiteRoute.h"
#include "simulator/server/RawAnswer.h"

/// The responses of the operations that only read.
namespace SiteReads {

RawAnswer myself(const Site &site);
/// A page according to `startAt` and `maxResults` (default 50, at most 100), ordered by name.
RawAnswer projects(const Site &site, const SiteRoute &route);
RawAnswer project(const Site &site, const SiteRoute &route);
/// One entry for each issue type of the project.
RawAnswer statuses(const Site &site, const SiteRoute &route);
RawAnswer prioritySearch(const Site &site, const SiteRoute &route);
RawAnswer priorities(const Site &site);
/// All accounts to which issues of the project can be assigned, including apps and customers; at most 1000.
RawAnswer assignableUsers(const Site &site, const SiteRoute &route);
/// Finds users by a word of the name or the beginning of the e-mail.
RawAnswer userSearch(const Site &site, const SiteRoute &route);
/// `fields` and `expand` select the contents; without `fields`, all fields are included.
RawAnswer issue(const Site &site, const SiteRoute &route);
RawAnswer comments(const Site &site, const SiteRoute &route);
RawAnswer transitions(const Site &site, const SiteRoute &route);
/// A redirect to the server for files.
RawAnswer attachment(const Site &site, const SiteRoute &route);
/// A page of a search. The body must have the documented members and no others.
RawAnswer search(const Site &site, const QByteArray &body);

} // namespace SiteReads
