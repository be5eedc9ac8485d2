#include "state/models/ToastModel.h"

#include "model/text/VisibleText.h"

using namespace Qt::StringLiterals;

namespace {

/// Messages contain names of files and texts of sites, in which characters can hide. Line breaks stay, and tabs become
/// spaces.
QString shownMessage(const QString &message)
{
    QString plain = message;
    plain.replace(u"\r\n"_s, u"\n"_s).replace(u'\t', u' ');
    QStringList lines = plain.split(u'\n');
    for (QString &line : lines)
        line = visibleText(line);
    return lines.join(u'\n');
}

} // namespace

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
        return shownMessage(toast.message);
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
