#pragma once

#include "simulator/RawAnswer.h"
#include "simulator/Site.h"
#include "simulator/SiteRoute.h"

/// The site's interface as a function: what a request gets, and does to the site. Requests without the right
/// `Authorization` get 401, paths that the interface does not have 404.
RawAnswer answerOf(Site &site, const RawRequest &request);

/// The same for the place where the site keeps files and pictures: it wants a token in the address, and no credentials
/// of the site.
RawAnswer fileAnswerOf(const Site &site, const RawRequest &request);
