#include "screens/create/NewIssueOptions.h"

#include "commands/NewLabel.h"
#include "commands/OptionBuilders.h"
#include "derivation/IssueDerivationOrder.h"

#include <algorithm>
#include <functional>
#include <variant>

using namespace Qt::StringLiterals;
using Action = OptionAction;

namespace {

QString idOf(const JiraUser &user)
{
    return user.id;
}

QList<OptionItem> projectItems(const NewIssueForm &form)
{
    QList<OptionItem> items;
    for (const Project &project : form.store()->projects())
        items.append({.id = project.key,
                      .title = project.name,
                      .subtitle = project.key,
                      .icon = {project},
                      .isSelected = project.key == form.issue().projectKey});
    return items;
}

QList<OptionItem> typeItems(const NewIssueForm &form)
{
    const auto chosen = form.type();
    QList<OptionItem> items;
    for (const IssueType &type : form.types())
        items.append({.id = type.id,
                      .title = type.name,
                      .icon = {type},
                      .isSelected = chosen && chosen->id == type.id});
    return items;
}

/// The rows of the picker for issues, without any issue.
QList<OptionItem> pickerItems(PickerKind kind, const NewIssueForm &form)
{
    const AppStore &store = *form.store();
    return options(kind, {.issues = store.issues(),
                          .priorities = store.priorities(),
                          .availableAssignees = form.assignables(),
                          .me = store.me(),
                          .locale = store.calendar().locale});
}

QList<OptionItem> priorityItems(const NewIssueForm &form)
{
    auto items = pickerItems(PickerKind::Priority, form);
    for (OptionItem &item : items)
        item.isSelected =
            form.issue().priority == std::get<Action::SetPriority>(item.run.value).priority;
    return items;
}

QList<OptionItem> assigneeItems(const NewIssueForm &form)
{
    auto items = pickerItems(PickerKind::Assignee, form);
    for (OptionItem &item : items) {
        const auto &user = std::get<Action::Assign>(item.run.value).user;
        item.isSelected = user.transform(&idOf) == form.issue().assignee.transform(&idOf);
    }
    return items;
}

QList<OptionItem> labelItems(const NewIssueForm &form)
{
    const QStringList &chosen = form.issue().labels;
    QStringList labels = form.store()->derivation().menus().labels + chosen;
    labels.removeDuplicates();
    const NameOrder names(form.store()->calendar().locale);
    std::ranges::sort(labels, std::less<>(),
                      [&](const QString &label) { return names.key(label); });
    QList<OptionItem> items;
    for (const QString &label : labels)
        items.append({.id = label,
                      .title = label,
                      .icon = {OptionIcon::Label{label}},
                      .isSelected = chosen.contains(label),
                      .keepsOpen = true});
    return items;
}

} // namespace

void NewIssueOptions::setForm(NewIssueForm *form)
{
    if (m_form == form)
        return;
    if (m_form)
        m_form->disconnect(this);
    m_form = form;
    if (m_form)
        connect(m_form, &NewIssueForm::choicesChanged, this, &OptionSource::itemsChanged);
    Q_EMIT formChanged();
    Q_EMIT itemsChanged();
}

QList<OptionItem> NewIssueOptions::items() const
{
    if (!m_form || !m_form->store())
        return {};
    switch (m_kind) {
    case Project:
        return projectItems(*m_form);
    case Type:
        return typeItems(*m_form);
    case Priority:
        return priorityItems(*m_form);
    case Assignee:
        return assigneeItems(*m_form);
    case Labels:
        return labelItems(*m_form);
    }
    return {};
}

void NewIssueOptions::run(const OptionItem &item)
{
    if (!m_form)
        return;
    switch (m_kind) {
    case Project:
        return m_form->chooseProject(item.id);
    case Type:
        return m_form->chooseType(item.id);
    case Priority:
        return m_form->choosePriority(std::get<Action::SetPriority>(item.run.value).priority);
    case Assignee:
        return m_form->chooseAssignee(std::get<Action::Assign>(item.run.value).user);
    case Labels:
        return m_form->toggleLabel(item.id);
    }
}

QString NewIssueOptions::createLabel(const QString &candidate) const
{
    return newLabelTitle(candidate);
}

void NewIssueOptions::create(const QString &label)
{
    if (m_form && !m_form->issue().labels.contains(label))
        m_form->toggleLabel(label);
}
