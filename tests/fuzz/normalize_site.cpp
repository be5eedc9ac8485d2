/// Normalizes the address of a site as a user may type it.
#include "fuzz/Input.h"
#include "fuzz/Promise.h"
#include "jira/JiraCredentials.h"
#include "jira/JiraRequest.h"

using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto site = JiraCredentials::normalizeSite(textOf(data, size));
    if (!site)
        return 0;
    promise(site->isValid() && !site->isRelative(), "a site is a whole address");
    const QString host = site->host();
    promise(host.contains(u'.') || host.contains(u':'), "a site has a whole name, or a number");
    promise(site->path().isEmpty() && !site->hasQuery() && !site->hasFragment(),
            "a site is no page");
    // The address is stored as text and parsed again at the next start.
    const QUrl stored(site->toString());
    promise(stored == *site, "a site survives being kept");
    promise(JiraCredentials::normalizeSite(site->toString()) == site, "a site is its own address");
    const auto issue = browseURL(*site, u"A-1"_s);
    promise(issue && issue->host() == site->host(), "an issue is on its site");
    return 0;
}
