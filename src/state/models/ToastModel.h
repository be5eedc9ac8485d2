#pragma once

#include "state/Toast.h"
#include "state/models/KeyedListModel.h"

#include <QtQml/qqmlregistration.h>

/// A toast with its id as the key.
struct ToastRow
{
    QString key;
    Toast toast;

    bool operator==(const ToastRow &) const = default;
};

/// The toasts that are shown, oldest first.
class ToastModel : public KeyedListModel<ToastRow>
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the store")

public:
    enum Role { IdRole = Qt::UserRole, MessageRole, SymbolRole, IsErrorRole };
    Q_ENUM(Role)

    using KeyedListModel::KeyedListModel;

    void setToasts(const QList<Toast> &toasts);

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
};
