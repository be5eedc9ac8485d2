#pragma once

#include "derivation/IssueDerivationIndex.h"
#include "derivation/IssueDerivationInputs.h"

/// Whether the issue in a row passes the filters and the setting for closed work.
bool passesFilter(std::size_t row, const IssueIndex &index, const IssueDerivationInputs &inputs);
/// The same for each row: 1 or 0.
std::vector<quint8> filterPasses(const IssueIndex &index, const IssueDerivationInputs &inputs);
