#include "screens/palette/PaletteSources.h"

#include "state/palette/PaletteIssues.h"
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
    prepareOpenIssues(store);
    return paletteIssues(query,
                         {{derivation.inputs().issues, derivation.searchTexts()},
                          {m_openIssues.issues(), m_openIssues.texts()}},
                         remote);
}

void PaletteSources::prepareOpenIssues(const AppStore &store)
{
    const auto &listed = store.derivation().inputs().issues;
    // Compares identity and not equality, because comparing the contents may take time linear in both.
    if (m_listed.constData() == listed.constData() &&
        m_open.constData() == store.myOpenIssues().constData())
        return;
    m_listed = listed;
    m_open = store.myOpenIssues();
    m_openIssues.update(notYetSearched(m_open, m_listed));
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
