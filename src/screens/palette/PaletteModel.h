#pragma once

#include "state/models/KeyedListModel.h"
#include "state/palette/PaletteRow.h"

#include <QtQml/qqmlregistration.h>

/// The rows of the palette.
class PaletteModel : public KeyedListModel<PaletteRow>
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the palette")

public:
    enum Role {
        /// What stands above the row; empty for most.
        SectionTitleRole = Qt::UserRole,
        TitleRole,
        /// Empty without one.
        SubtitleRole,
        IconRole,
        IsSelectedRole,
        /// The digit shown at the row's end; empty without one.
        ShortcutRole
    };
    Q_ENUM(Role)

    using KeyedListModel::KeyedListModel;

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
};
