#pragma once

#include "jira/JiraClient.h"

#include <QUrl>

#include <functional>
#include <ostream>

/// One of the operations of a client, as a fault meets it.
struct Operation
{
    enum class Kind {
        /// Goes by what the answer says.
        ReadsAnswer,
        /// The same, and the answer is a list at its top.
        ReadsList,
        /// Any success will do.
        IgnoresAnswer,
        Upload,
        Download,
        /// Never asks the site.
        Local,
    };
    enum class Effect { None, ChangesSite };

    const char *name;
    Kind kind = Kind::ReadsAnswer;
    Effect effect = Effect::None;
    /// Starts it on a site whose only file to upload is `file`.
    std::function<QCoro::Task<>(JiraClient &client, const QUrl &file)> start;
};

/// Names an operation in test output.
inline void PrintTo(const Operation &operation, std::ostream *stream)
{
    *stream << operation.name;
}

/// Every operation of the contract; those that go several ways, once for each way.
const QList<Operation> &allOperations();
