#pragma once

#include "simulator/RawAnswer.h"
#include "simulator/Site.h"
#include "simulator/SiteRoute.h"

/// The operations that change the site, each as strict about what it is sent as the real one: what it does not know it
/// refuses with 400 and a message for each field, and then nothing has changed.
namespace SiteWrites {

RawAnswer perform(Site &site, const SiteRoute &route, const QByteArray &body);
RawAnswer update(Site &site, const SiteRoute &route, const QByteArray &body);
RawAnswer assign(Site &site, const SiteRoute &route, const QByteArray &body);
RawAnswer addComment(Site &site, const SiteRoute &route, const QByteArray &body);
RawAnswer create(Site &site, const QByteArray &body);
/// A form with files; refused with 403 without the header that tells it from a forged one, with 413 when too large.
RawAnswer upload(Site &site, const SiteRoute &route, const RawRequest &request);
RawAnswer deleteAttachment(Site &site, const SiteRoute &route);

} // namespace SiteWrites
