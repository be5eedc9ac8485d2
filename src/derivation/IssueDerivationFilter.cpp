#include "derivation/IssueDerivationFilter.h"

namespace {

bool passesFilter(std::size_t row, const IssueIndex &index, const IssueDerivationInputs &inputs)
{
    return (inputs.showsClosed() || !index.rows()[row].isClosed) &&
           (inputs.filters.isEmpty() || inputs.filters.matches(*index.issues()[qsizetype(row)]));
}

} // namespace

std::vector<quint8> filterPasses(const IssueIndex &index, const IssueDerivationInputs &inputs)
{
    std::vector<quint8> passes(index.rows().size());
    for (std::size_t row = 0; row < passes.size(); ++row)
        passes[row] = passesFilter(row, index, inputs);
    for (const int row : index.keys().repeats())
        passes[row] = 0;
    return passes;
}
