#include "commands/PickerWords.h"

#include "commands/CommandTable.h"

using namespace Qt::StringLiterals;

QString pickerActionTitle(PickerKind kind)
{
    // The palette shows the issues beside the title, so the verb does not need an object.
    return kind == PickerKind::Assignee ? u"Assigner…"_s : commandTitle(pickCommand(kind));
}

QString pickerTitle(PickerKind kind)
{
    return pickerActionTitle(kind).chopped(1);
}

QString pickerPlaceholder(PickerKind kind)
{
    switch (kind) {
    case PickerKind::Status:
        return u"Statut…"_s;
    case PickerKind::Priority:
        return u"Priorité…"_s;
    case PickerKind::Assignee:
        return u"Assigner…"_s;
    case PickerKind::Labels:
        return u"Ajouter des étiquettes…"_s;
    }
    return {};
}
