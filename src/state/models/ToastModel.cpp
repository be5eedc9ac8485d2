#include "state/models/ToastModel.h"

void ToastModel::setToasts(const QList<Toast> &toasts)
{
    QList<ToastRow> rows;
    for (const auto &toast : toasts)
        rows.append({toast.id.toString(QUuid::WithoutBraces), toast});
    update(rows);
}

QVariant ToastModel::data(const QModelIndex &index, int role) const
{
    Q_ASSERT(checkIndex(index, CheckIndexOption::IndexIsValid));
    const auto &toast = rows()[index.row()].toast;
    switch (role) {
    case IdRole:
        return toast.id;
    case MessageRole:
    case Qt::DisplayRole:
        return toast.message;
    case SymbolRole:
        return toast.symbol;
    case IsErrorRole:
        return toast.isError();
    }
    return {};
}

QHash<int, QByteArray> ToastModel::roleNames() const
{
    return {{IdRole, "toastId"},
            {MessageRole, "message"},
            {SymbolRole, "symbol"},
            {IsErrorRole, "isError"}};
}
