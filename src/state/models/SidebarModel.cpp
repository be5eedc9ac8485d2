#include "state/models/SidebarModel.h"

#include "model/OneLineText.h"

QVariant SidebarModel::data(const QModelIndex &index, int role) const
{
    Q_ASSERT(checkIndex(index, CheckIndexOption::IndexIsValid));
    const auto &row = rows()[index.row()];
    switch (role) {
    case KindRole:
        return QVariant::fromValue(row.kind);
    case Qt::DisplayRole:
    case TextRole:
        return oneLine(row.text);
    case SymbolRole:
        return row.symbol;
    case ScopeRole:
        return QVariant::fromValue(row.scope.value_or(IssueScope()));
    case IsSelectableRole:
        return row.scope.has_value();
    case IsSelectedRole:
        return row.isSelected;
    case ProjectRole:
        return QVariant::fromValue(row.project.value_or(Project()));
    case IsFavoriteRole:
        return row.isFavorite;
    case BadgeTextRole:
        return row.badge == 0 ? QString() : QString::number(row.badge);
    case AccessibleNameRole:
        return row.accessibleName();
    }
    return {};
}

QHash<int, QByteArray> SidebarModel::roleNames() const
{
    return {{KindRole, "kind"},
            {TextRole, "text"},
            {SymbolRole, "symbol"},
            {ScopeRole, "scope"},
            {IsSelectableRole, "isSelectable"},
            {IsSelectedRole, "isSelected"},
            {ProjectRole, "project"},
            {IsFavoriteRole, "isFavorite"},
            {BadgeTextRole, "badgeText"},
            {AccessibleNameRole, "accessibleName"}};
}
