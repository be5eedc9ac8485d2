#pragma once

#include "commands/OptionItem.h"
#include "screens/options/OptionIconValue.h"
#include "state/models/KeyedListModel.h"

#include <QtQml/qqmlregistration.h>

/// A row of a list of options.
struct OptionListRow
{
    /// Identifies an item among all items and the row that creates a value.
    QString key;
    OptionItem item;

    bool operator==(const OptionListRow &) const = default;
};

/// The row for an item.
OptionListRow itemRow(const OptionItem &item);
/// The row that creates a value, with its title.
OptionListRow createRow(const QString &title);

/// The rows of a list of options.
class OptionListModel : public KeyedListModel<OptionListRow>
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the list of options")

public:
    enum Role {
        TitleRole = Qt::UserRole,
        /// Empty if there is none.
        SubtitleRole,
        IconRole,
        IsSelectedRole,
        /// The digit that picks the row. Empty if there is none.
        ShortcutRole
    };
    Q_ENUM(Role)

    using KeyedListModel::KeyedListModel;

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
};
