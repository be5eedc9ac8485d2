#include "screens/issues/PickerModel.h"

#include "model/TextFolding.h"

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
        return QVariant::fromValue(PickerIcon(option.icon));
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
