#include "screens/issues/PickerModel.h"

#include "model/TextFolding.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QList<PickerRow> pickerRows(const QList<OptionItem> &options, const QString &query)
{
    const QString words = query.trimmed();
    QList<PickerRow> rows;
    for (const auto &option : options) {
        if (words.isEmpty() || localizedContains(option.title, words))
            rows.append({option.id, option});
    }
    return rows;
}

std::optional<QString> newLabel(const QList<OptionItem> &options, const QString &query)
{
    QString words = query.trimmed();
    const bool isTaken = std::ranges::any_of(options, [&](const OptionItem &option) {
        return option.title.compare(words, Qt::CaseInsensitive) == 0;
    });
    if (words.isEmpty() || isTaken)
        return std::nullopt;
    return words.replace(u' ', u'-');
}

PickerRow newLabelRow(const QString &label)
{
    const QString id = u"create-label"_s;
    return {id,
            {.id = id,
             .title = u"Créer l'étiquette « "_s + label + u" »"_s,
             .icon = {OptionIcon::Symbol{u"plus"_s}},
             .keepsOpen = true}};
}

QVariant PickerModel::data(const QModelIndex &index, int role) const
{
    Q_ASSERT(checkIndex(index, CheckIndexOption::IndexIsValid));
    const auto &option = rows()[index.row()].option;
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return option.title;
    case SubtitleRole:
        return option.subtitle.value_or(QString());
    case IconRole:
        return QVariant::fromValue(OptionIconValue(option.icon));
    case IsSelectedRole:
        return option.isSelected;
    case ShortcutRole:
        return option.shortcut.value_or(QString());
    }
    return {};
}

QHash<int, QByteArray> PickerModel::roleNames() const
{
    return {{TitleRole, "title"},
            {SubtitleRole, "subtitle"},
            {IconRole, "icon"},
            {IsSelectedRole, "isSelected"},
            {ShortcutRole, "shortcut"}};
}
