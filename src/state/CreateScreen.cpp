#include "state/CreateScreen.h"

void CreateScreen::open(AppStore *store, const QString &projectKey)
{
    if (store)
        store->newIssue(projectKey.isEmpty() ? std::nullopt : std::optional(projectKey));
}
