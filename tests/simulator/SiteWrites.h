#pragma once

#include "simulator/Site.h"
#include "simulator/SiteRoute.h"
#include "simulator/server/RawAnswer.h"

/// The operations that change the site. They are as strict as the real ones: an invalid request gets 400 with a message
/// for each field and changes nothing.
namespace SiteWrites {

RawAnswer perform(Site &site, const SiteRoute &route, const QByteArray &body);
RawAnswer update(Site &site, const SiteRoute &route, const QByteArray &body);
RawAnswer assign(Site &site, const SiteRoute &route, const QByteArray &body);
RawAnswer addComment(Site &site, const SiteRoute &route, const QByteArray &body);
RawAnswer create(Site &site, const QByteArray &body);
/// Accepts a form with files. Rejected with 403 without the header against cross-site request forgery, and with 413 if
/// it is too large.
RawAnswer upload(Site &site, const SiteRoute &route, const RawRequest &request);
RawAnswer deleteAttachment(Site &site, const SiteRoute &route);

} // namespace SiteWrites
