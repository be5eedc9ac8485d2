#pragma once

#include "state/AppStore.h"
#include "state/palette/IssuesInMemory.h"
#include "state/palette/PaletteActions.h"
#include "state/palette/PaletteSections.h"

/// The prepared search data of the palette: texts are folded when a list changes, and not at each key press.
class PaletteSources
{
public:
    /// What is listed: the mode, and the issues that the commands apply to.
    struct Subject
    {
        PaletteMode mode;
        QStringList targets;
    };

    /// The sections for a query in the present state of the store.
    QList<PaletteSection> sections(const AppStore &store, const Subject &subject,
                                   const QString &query, const IssueList &remote);
    /// The options of the picker must be computed again.
    void forgetOptions() { m_options.reset(); }

private:
    QList<PaletteSection> root(const AppStore &store, const QStringList &targets,
                               const QString &query, const IssueList &remote);
    IssueList found(const AppStore &store, const QString &query, const IssueList &remote);
    const SearchableItems &actions(const AppStore &store, const QStringList &targets);
    const SearchableItems &destinations(const AppStore &store);
    const SearchableItems &options(const AppStore &store, const PaletteMode::Picker &picker);

    std::optional<PaletteActionInputs> m_actionInputs;
    SearchableItems m_actions;
    QList<Project> m_projects;
    Recap::People m_people = Recap::People::Me;
    std::optional<SearchableItems> m_destinations;
    std::optional<SearchableItems> m_options;
    IssuesInMemory m_inMemory;
};
