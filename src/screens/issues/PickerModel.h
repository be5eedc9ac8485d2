#pragma once

#include "screens/options/OptionIconValue.h"
#include "state/OptionItem.h"
#include "state/models/KeyedListModel.h"

#include <QtQml/qqmlregistration.h>

/// A row of a picker.
struct PickerRow
{
    /// The option's id.
    QString key;
    OptionItem option;

    bool operator==(const PickerRow &) const = default;
};

/// The rows whose title contains the query, in their order; all of them for a query without a word.
QList<PickerRow> pickerRows(const QList<OptionItem> &options, const QString &query);
/// The label that the query would make, its blanks as hyphens; nothing without a word, and where an option has that
/// title already, whatever the case.
std::optional<QString> newLabel(const QList<OptionItem> &options, const QString &query);
/// The row that makes a label.
PickerRow newLabelRow(const QString &label);

/// The rows of a picker.
class PickerModel : public KeyedListModel<PickerRow>
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the picker")

public:
    enum Role {
        TitleRole = Qt::UserRole,
        /// Empty without one.
        SubtitleRole,
        IconRole,
        IsSelectedRole,
        /// The digit that picks the row; empty without one.
        ShortcutRole
    };
    Q_ENUM(Role)

    using KeyedListModel::KeyedListModel;

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
};
