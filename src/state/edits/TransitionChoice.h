#pragma once

#include "model/IssueStatus.h"

#include <QList>

#include <optional>

/// The transition that leads to a wished status: the first whose target is that very status, else the first whose target
/// means the same, so that a status of another project's workflow finds its counterpart. Nothing when the workflow
/// offers neither.
std::optional<WorkflowTransition> transitionTo(const IssueStatus &status,
                                               const QList<WorkflowTransition> &offered);
