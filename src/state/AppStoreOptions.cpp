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

OptionInputs AppStore::optionInputs(const QStringList &keys) const
{
    const IssueDerivationMenus &menus = derivation().menus();
    return {.keys = keys,
            .targets = knownIssues(keys),
            .issues = *m_issues,
            .myOpenIssues = myOpenIssues(),
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
    using A = OptionAction;
    // A copy is visited, because the action may belong to rows that it changes.
    std::visit(Overloaded{[](const A::None &) {},
                          [this](const A::SetStatus &a) { setStatus(a.status, a.keys); },
                          [this](const A::SetPriority &a) { setPriority(a.priority, a.keys); },
                          [this](const A::Assign &a) { assign(a.keys, a.user); },
                          [this](const A::ToggleLabel &a) { toggleLabel(a.label, a.keys); },
                          [this](const A::AddLabel &a) { addLabel(a.label, a.keys); },
                          [this](const A::RunCommand &a) {
                              carryOut(a.command, a.keys, FocusMove::Plain);
                          },
                          [this](const A::Select &a) { select(a.scope); }},
               OptionAction(action).value);
}
