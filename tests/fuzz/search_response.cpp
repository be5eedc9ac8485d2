/// Decodes arbitrary responses to a search.
#include "fuzz/Input.h"
#include "fuzz/Promise.h"
#include "jira/IssueSearch.h"
#include "jira/wire/WireDecoding.h"

namespace {

const QDateTime now({2026, 10, 29}, {13, 32}, Qt::UTC);

void checkHistory(const Issue &issue)
{
    promise(std::ranges::is_sorted(issue.activity, {}, &ActivityEvent::date),
            "the history is in order of time");
    const DateInterval day{now, now.addDays(1)};
    for (const Issue &kept : eventsWithin({issue}, day))
        promise(!kept.activity.isEmpty(), "an issue of a recap has an event");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto page = decodeWire<SearchResponseDTO>(bytesOf(data, size));
    if (!page) {
        promise(!page.error().detail.isEmpty() && page.error().detail.size() <= 240,
                "an error says something, in at most 240 characters");
        return 0;
    }
    for (const IssueDTO &record : page->issues) {
        const Issue issue = record.model(now);
        promise(!issue.hasDetails, "a list brings no details");
        promise(issue.created.isValid() && issue.updated.isValid(), "every issue has its dates");
        checkHistory(issue);
    }
    const auto next = nextPageToken({.limit = 300}, *page, page->issues.size());
    promise(!next || (!page->issues.isEmpty() && next == page->nextPageToken),
            "a search goes on only with the token of a page that brought something");
    return 0;
}
