#include "screens/options/OptionListModel.h"

#include "model/OneLineText.h"

using namespace Qt::StringLiterals;

OptionListRow itemRow(const OptionItem &item)
{
    return {u"item "_s + item.id, item};
}

OptionListRow createRow(const QString &title)
{
    return {u"create"_s,
            {.id = u"create"_s, .title = title, .icon = {OptionIcon::Symbol{u"plus"_s}}}};
}

QVariant OptionListModel::data(const QModelIndex &index, int role) const
{
    Q_ASSERT(checkIndex(index, CheckIndexOption::IndexIsValid));
    const auto &item = rows()[index.row()].item;
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return oneLine(item.title);
    case SubtitleRole:
        return oneLine(item.subtitle.value_or(QString()));
    case IconRole:
        return QVariant::fromValue(OptionIconValue(item.icon));
    case IsSelectedRole:
        return item.isSelected;
    case ShortcutRole:
        return item.shortcut.value_or(QString());
    default:
        return {};
    }
}

QHash<int, QByteArray> OptionListModel::roleNames() const
{
    return {{TitleRole, "title"},
            {SubtitleRole, "subtitle"},
            {IconRole, "icon"},
            {IsSelectedRole, "isSelected"},
            {ShortcutRole, "shortcut"}};
}
