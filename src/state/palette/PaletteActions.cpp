#include "state/palette/PaletteActions.h"

#include "commands/AppearanceWords.h"
#include "state/palette/PaletteTexts.h"

using namespace Qt::StringLiterals;

namespace {

using Action = OptionAction;

OptionItem actionItem(const QString &id, const QString &title, const QString &symbol,
                      OptionAction run)
{
    return {.id = id, .title = title, .icon = {OptionIcon::Symbol{symbol}}, .run = std::move(run)};
}

OptionItem pickerItem(const QString &id, PickerKind kind, const QString &symbol,
                      const QStringList &targets)
{
    OptionItem item =
        actionItem(id, pickerActionTitle(kind), symbol, {Action::ShowPicker{kind, targets}});
    item.keepsOpen = true;
    return item;
}

QList<OptionItem> itemsForIssues(const QStringList &targets)
{
    if (targets.isEmpty())
        return {};
    return {
        pickerItem(u"status"_s, PickerKind::Status, u"circle.dashed"_s, targets),
        pickerItem(u"priority"_s, PickerKind::Priority, u"chart.bar.fill"_s, targets),
        pickerItem(u"assignee"_s, PickerKind::Assignee, u"person.crop.circle"_s, targets),
        actionItem(u"me"_s, u"M'assigner"_s, u"person.fill.checkmark"_s,
                   {Action::AssignToMe{targets}}),
        pickerItem(u"labels"_s, PickerKind::Labels, u"tag"_s, targets),
        actionItem(u"copy-key"_s, u"Copier la clé"_s, u"number"_s, {Action::CopyKeys{targets}})};
}

QList<OptionItem> itemsForOneIssue(const QStringList &targets)
{
    if (targets.size() != 1)
        return {};
    const QString &key = targets.front();
    return {
        actionItem(u"copy-branch"_s, u"Copier le nom de branche git"_s, u"arrow.triangle.branch"_s,
                   {Action::CopyBranch{key}}),
        actionItem(u"copy-link"_s, u"Copier le lien"_s, u"link"_s, {Action::CopyLink{key}}),
        actionItem(u"browser"_s, u"Ouvrir dans Jira"_s, u"safari"_s, {Action::OpenInBrowser{key}}),
        actionItem(u"window"_s, u"Ouvrir dans une nouvelle fenêtre"_s, u"macwindow.on.rectangle"_s,
                   {Action::OpenWindow{key}})};
}

OptionItem layoutItem(LayoutMode layout)
{
    const bool isBoard = layout == LayoutMode::Board;
    OptionItem item =
        actionItem(u"layout"_s, isBoard ? u"Afficher en liste"_s : u"Afficher en tableau"_s,
                   isBoard ? u"list.bullet"_s : u"rectangle.split.3x1"_s,
                   {Action::SetLayout{isBoard ? LayoutMode::List : LayoutMode::Board}});
    item.shortcut = isBoard ? u"1"_s : u"2"_s;
    return item;
}

QList<OptionItem> itemsForTheWindow(const PaletteActionInputs &inputs)
{
    const QString completed = inputs.showCompleted ? u"Masquer les tickets terminés"_s
                                                   : u"Afficher les tickets terminés"_s;
    const QString appearance =
        u"Changer l'apparence ("_s + appearanceLabel(inputs.appearance) + u')';
    return {
        layoutItem(inputs.layout),
        actionItem(u"completed"_s, completed, u"checkmark.circle"_s, {Action::ToggleCompleted{}}),
        actionItem(u"appearance"_s, appearance, u"circle.lefthalf.filled"_s,
                   {Action::CycleAppearance{}}),
        actionItem(u"reload"_s, u"Actualiser"_s, u"arrow.clockwise"_s, {Action::Reload{}}),
        actionItem(u"settings"_s, u"Réglages"_s, u"gear"_s, {Action::OpenSettings{}})};
}

QList<OptionItem> itemsForCreation(PaletteActionInputs::Creation creation)
{
    if (creation == PaletteActionInputs::Creation::Withheld)
        return {};
    return {
        actionItem(u"new"_s, u"Nouveau ticket"_s, u"square.and.pencil"_s, {Action::NewIssue{}})};
}

} // namespace

QList<OptionItem> paletteActions(const PaletteActionInputs &inputs)
{
    return itemsForCreation(inputs.creation) + itemsForIssues(inputs.targets) +
           itemsForOneIssue(inputs.targets) + itemsForTheWindow(inputs);
}
