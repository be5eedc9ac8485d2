#include "derivation/IssueDerivationFilter.h"

std::vector<quint8> filterPasses(const IssueIndex &index, const IssueDerivationInputs &inputs)
{
    std::vector<quint8> passes(index.rows().size());
    const bool showsClosed = inputs.showsClosed();
    const bool passesAny = inputs.filters.isEmpty();
    for (std::size_t row = 0; row < passes.size(); ++row)
        passes[row] = (showsClosed || !index.rows()[row].isClosed) &&
                      (passesAny || inputs.filters.matches(*index.issues()[qsizetype(row)]));
    for (const int row : index.keys().repeats())
        passes[row] = 0;
    return passes;
}
