#pragma once

#include "simulator/Site.h"
#include "simulator/server/RawAnswer.h"
#include "simulator/server/RawRequest.h"

/// The REST interface of Jira Data Center: version 2 only, users by name instead of account, searches with `startAt` and
/// `total`, and texts in wiki markup. Simulates what is read at a sign-in: `myself`, `serverInfo`, `search`, `issue`,
/// `project` and `priority`. Accepts a personal access token.
RawAnswer dataCenterAnswerOf(const Site &site, const RawRequest &request);
