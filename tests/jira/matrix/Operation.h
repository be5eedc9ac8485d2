#pragma once

#include "jira/JiraClient.h"

#include <QUrl>

#include <functional>
#include <ostream>

/// An operation of the client, as tested with a fault.
struct Operation
{
    enum class Kind {
        /// Uses the contents of the response.
        ReadsAnswer,
        /// Uses the contents of the response, which is a JSON array.
        ReadsList,
        /// Only checks that the response has a success status.
        IgnoresAnswer,
        Upload,
        Download,
        /// Sends no request to the site.
        Local,
    };
    enum class Effect { None, ChangesSite };

    const char *name;
    Kind kind = Kind::ReadsAnswer;
    Effect effect = Effect::None;
    /// Starts the operation; `file` is a local file to upload.
    std::function<QCoro::Task<>(JiraClient &client, const QUrl &file)> start;
};

/// Names an operation in test output.
inline void PrintTo(const Operation &operation, std::ostream *stream)
{
    *stream << operation.name;
}

/// All operations of `IssueService`; an operation with several variants occurs once for each.
const QList<Operation> &allOperations();
