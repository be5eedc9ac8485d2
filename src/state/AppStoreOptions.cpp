#include "state/AppStore.h"

#include <variant>

namespace {

template <typename... Cases>
struct Overloaded : Cases...
{
    using Cases::operator()...;
};

} // namespace

QList<OptionItem> AppStore::options(PickerKind kind, const QStringList &keys) const
{
    return ::options(kind, optionInputs(keys));
}

QList<IssueStatus> AppStore::statusOptions(const QStringList &keys) const
{
    return ::statusOptions(optionInputs(keys));
}

QList<JiraUser> AppStore::assigneeOptions(const QStringList &keys) const
{
    return ::assigneeOptions(optionInputs(keys));
}

QList<IssuePriority> AppStore::priorityOptions() const
{
    return ::priorityOptions(optionInputs({}));
}

OptionInputs AppStore::optionInputs(const QStringList &keys) const
{
    const IssueDerivationMenus &menus = derivation().menus();
    return {.keys = keys,
            .targets = knownIssues(keys),
            .issues = *m_issues,
            .myOpenIssues = *m_myOpenIssues,
            .transitions = *m_transitions,
            .projectStatuses = *m_projectStatuses,
            .assignables = *m_assignables,
            .priorities = *m_priorities,
            .availableAssignees = menus.assignees,
            .availableLabels = menus.labels,
            .me = *m_me,
            .locale = m_context.calendar.locale};
}

void AppStore::run(const OptionAction &action)
{
    using Action = OptionAction;
    // A copy: carrying it out changes the rows that it may belong to.
    const OptionAction kept = action; // NOLINT(performance-unnecessary-copy-initialization)
    std::visit(Overloaded{[](const Action::None &) {},
                          [this](const Action::SetStatus &a) { setStatus(a.status, a.keys); },
                          [this](const Action::SetPriority &a) { setPriority(a.priority, a.keys); },
                          [this](const Action::Assign &a) { assign(a.keys, a.user); },
                          [this](const Action::ToggleLabel &a) { toggleLabel(a.label, a.keys); }},
               kept.value);
}
