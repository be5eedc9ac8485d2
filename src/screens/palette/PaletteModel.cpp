#include "screens/palette/PaletteModel.h"

#include "screens/options/OptionIconValue.h"

QVariant PaletteModel::data(const QModelIndex &index, int role) const
{
    Q_ASSERT(checkIndex(index, CheckIndexOption::IndexIsValid));
    const auto &row = rows()[index.row()];
    switch (role) {
    case SectionTitleRole:
        return row.sectionTitle;
    case Qt::DisplayRole:
    case TitleRole:
        return row.option.title;
    case SubtitleRole:
        return row.option.subtitle.value_or(QString());
    case IconRole:
        return QVariant::fromValue(OptionIconValue(row.option.icon));
    case IsSelectedRole:
        return row.option.isSelected;
    case ShortcutRole:
        return row.option.shortcut.value_or(QString());
    }
    return {};
}

QHash<int, QByteArray> PaletteModel::roleNames() const
{
    return {{SectionTitleRole, "sectionTitle"}, {TitleRole, "title"},
            {SubtitleRole, "subtitle"},         {IconRole, "icon"},
            {IsSelectedRole, "isSelected"},     {ShortcutRole, "shortcut"}};
}
