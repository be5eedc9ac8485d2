#pragma once

#include "derivation/IssueDerivationIndex.h"
#include "state/AppStore.h"
#include "state/palette/PaletteActions.h"
#include "state/palette/PaletteSections.h"

/// What the palette searches, prepared: texts are folded when a list changes, not when a key is typed.
class PaletteSources
{
public:
    /// The sections for a query, as the store now is.
    QList<PaletteSection> sections(const AppStore &store, const PaletteMode &mode,
                                   const QString &query, const IssueList &remote);
    /// The options of the picker are to be made anew.
    void forgetOptions() { m_options.reset(); }

private:
    QList<PaletteSection> root(const AppStore &store, const QString &query,
                               const IssueList &remote);
    IssueList found(const AppStore &store, const QString &query, const IssueList &remote);
    void prepareOpenIssues(const AppStore &store);
    const SearchableItems &actions(const AppStore &store);
    const SearchableItems &destinations(const AppStore &store);
    const SearchableItems &options(const AppStore &store, const PaletteMode::Picker &picker);

    std::optional<PaletteActionInputs> m_actionInputs;
    SearchableItems m_actions;
    QList<Project> m_projects;
    Recap::People m_people = Recap::People::Me;
    std::optional<SearchableItems> m_destinations;
    std::optional<SearchableItems> m_options;
    /// What `m_openIssues` was made for.
    IssueList m_listed;
    IssueList m_open;
    /// The open issues that are not found among the listed ones.
    IssueIndex m_openIssues;
};
