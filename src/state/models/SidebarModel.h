#pragma once

#include "state/models/KeyedListModel.h"
#include "state/models/SidebarRows.h"

#include <QtQml/qqmlregistration.h>

/// The rows of the sidebar.
class SidebarModel : public KeyedListModel<SidebarRow>
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the store")

public:
    enum Role {
        /// `SidebarEnums.RowKind`.
        KindRole = Qt::UserRole,
        TextRole,
        SymbolRole,
        /// The scope to pass to the store when the row is picked; meaningless if `isSelectable` is false.
        ScopeRole,
        IsSelectableRole,
        IsSelectedRole,
        /// An empty record for rows without a project.
        ProjectRole,
        IsFavoriteRole,
        /// The number as text; empty if there is none.
        BadgeTextRole,
        AccessibleNameRole
    };
    Q_ENUM(Role)

    using KeyedListModel::KeyedListModel;

    void setInputs(const SidebarInputs &inputs) { update(sidebarRows(inputs)); }

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
};
