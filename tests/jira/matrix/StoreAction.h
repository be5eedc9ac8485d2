#pragma once

#include "jira/matrix/Operation.h"
#include "simulator/SiteRoute.h"
#include "state/AppStore.h"

#include <functional>
#include <ostream>

/// Something that a person does, and the request of it that meets a fault.
struct StoreAction
{
    const char *name;
    SiteOperation operation = SiteOperation::Myself;
    Operation::Kind kind = Operation::Kind::IgnoresAnswer;
    /// Whether its failure is told in a toast; what only refreshes fails in silence or tells elsewhere.
    enum class Outcome { Told, Silent } outcome = Outcome::Told;
    std::function<QCoro::Task<>(AppStore &store, const QString &key)> start;
};

inline void PrintTo(const StoreAction &action, std::ostream *stream)
{
    *stream << action.name;
}

const QList<StoreAction> &allStoreActions();
