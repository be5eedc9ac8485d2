#pragma once

#include "jira/matrix/Operation.h"
#include "simulator/SiteRoute.h"
#include "state/AppStore.h"

#include <functional>
#include <ostream>

/// A user action, and the operation in it that fails with a fault.
struct StoreAction
{
    const char *name;
    SiteOperation operation = SiteOperation::Myself;
    Operation::Kind kind = Operation::Kind::IgnoresAnswer;
    /// Whether a failure is displayed in a toast. Refreshes fail silently or display their failure elsewhere.
    enum class Outcome { Told, Silent } outcome = Outcome::Told;
    std::function<QCoro::Task<>(AppStore &store, const QString &key)> start;
};

inline void PrintTo(const StoreAction &action, std::ostream *stream)
{
    *stream << action.name;
}

const QList<StoreAction> &allStoreActions();
