#pragma once

#include "simulator/Site.h"
#include "simulator/SiteRoute.h"
#include "simulator/server/RawAnswer.h"

/// The REST interface of the site as a function from a request to a response, which may also change the site. Requests
/// without the right `Authorization` get 401 or what anybody gets, paths unknown to the interface get 404, and requests
/// beyond the limit of the site get 429.
RawAnswer answerOf(Site &site, const RawRequest &request);

/// The same for the server for files and pictures, which requires a token in the address and rejects the site's
/// credentials.
RawAnswer fileAnswerOf(const Site &site, const RawRequest &request);
