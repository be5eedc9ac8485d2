#include "screens/palette/PaletteSources.h"

#include "state/palette/PaletteNavigation.h"

namespace {

PaletteActionInputs actionInputs(const AppStore &store, const QStringList &targets)
{
    return {.targets = targets,
            .layout = store.layout(),
            .showCompleted = store.showCompleted(),
            .appearance = store.appearance()};
}

} // namespace

QList<PaletteSection> PaletteSources::sections(const AppStore &store, const Subject &subject,
                                               const QString &query, const IssueList &remote)
{
    const auto *picker = subject.mode.asPicker();
    return picker ? pickerSections(query, *picker, options(store, *picker))
                  : root(store, subject.targets, query, remote);
}

QList<PaletteSection> PaletteSources::root(const AppStore &store, const QStringList &targets,
                                           const QString &query, const IssueList &remote)
{
    return rootSections(query, found(store, query, remote), actions(store, targets),
                        destinations(store));
}

IssueList PaletteSources::found(const AppStore &store, const QString &query,
                                const IssueList &remote)
{
    if (query.trimmed().isEmpty())
        return {};
    const auto &derivation = store.derivation();
    const SearchableIssues listed{derivation.inputs().issues, derivation.searchTexts()};
    return paletteIssues(query, m_inMemory.lists(listed, store.myOpenIssues()), remote);
}

const SearchableItems &PaletteSources::actions(const AppStore &store, const QStringList &targets)
{
    if (const auto inputs = actionInputs(store, targets); m_actionInputs != inputs) {
        m_actionInputs = inputs;
        m_actions = {paletteActions(inputs), SearchableItems::Texts::Title};
    }
    return m_actions;
}

const SearchableItems &PaletteSources::destinations(const AppStore &store)
{
    const auto people = store.activityTeamWide() ? Recap::People::Team : Recap::People::Me;
    if (!m_destinations || m_people != people || m_projects != store.projects()) {
        m_people = people;
        m_projects = store.projects();
        m_destinations.emplace(paletteNavigation(m_projects, m_people),
                               SearchableItems::Texts::TitleAndSubtitle);
    }
    return *m_destinations;
}

const SearchableItems &PaletteSources::options(const AppStore &store,
                                               const PaletteMode::Picker &picker)
{
    if (!m_options)
        m_options.emplace(store.options(picker.kind, picker.keys), SearchableItems::Texts::Title);
    return *m_options;
}
