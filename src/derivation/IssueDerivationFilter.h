#pragma once

#include "derivation/IssueDerivationIndex.h"
#include "derivation/IssueDerivationInputs.h"

/// For each row, 1 if its issue passes the filters and the setting for closed work, else 0. When several issues have
/// the same key, only the first passes, so that no list shows a key twice.
std::vector<quint8> filterPasses(const IssueIndex &index, const IssueDerivationInputs &inputs);
