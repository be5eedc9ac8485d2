#pragma once

#include "model/IssueStatus.h"

#include <QList>

#include <optional>

/// The transition that leads to a status: the first whose target is the same status, else the first whose target is in
/// the same status group, so that a status of another project's workflow can be reached too. Nothing if the workflow
/// offers neither.
std::optional<WorkflowTransition> transitionTo(const IssueStatus &status,
                                               const QList<WorkflowTransition> &offered);
