#pragma once

#include "simulator/RawAnswer.h"
#include "simulator/Site.h"
#include "simulator/SiteRoute.h"

/// The answers of the operations that only read.
namespace SiteReads {

RawAnswer myself(const Site &site);
/// A page, by `startAt` and `maxResults` (50 unless told, at most 100), by name.
RawAnswer projects(const Site &site, const SiteRoute &route);
RawAnswer project(const Site &site, const SiteRoute &route);
/// An entry for each type of the project.
RawAnswer statuses(const Site &site, const SiteRoute &route);
RawAnswer prioritySearch(const Site &site, const SiteRoute &route);
RawAnswer priorities(const Site &site);
/// Everyone who can take an issue of the project, programs and customers too; at most 1000.
RawAnswer assignableUsers(const Site &site, const SiteRoute &route);
/// By a word of the name, or the beginning of the e-mail.
RawAnswer userSearch(const Site &site, const SiteRoute &route);
/// `fields` and `expand` tell what comes; without fields, all do.
RawAnswer issue(const Site &site, const SiteRoute &route);
RawAnswer comments(const Site &site, const SiteRoute &route);
RawAnswer transitions(const Site &site, const SiteRoute &route);
/// A redirect to where the site keeps its files.
RawAnswer attachment(const Site &site, const SiteRoute &route);
/// A page of a search; the body is as told in the interface, and nothing else.
RawAnswer search(const Site &site, const QByteArray &body);

} // namespace SiteReads
