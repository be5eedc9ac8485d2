#include "screens/attachments/section/FileTileModel.h"

using namespace Qt::StringLiterals;

void FileTileModel::setTiles(const QList<Attachment> &attachments, int uploads)
{
    QList<FileTileRow> rows;
    for (const Attachment &attachment : attachments)
        rows.append({u"file "_s + attachment.id, AttachmentFile{attachment}});
    for (int i = 0; i < uploads; ++i)
        rows.append({u"upload "_s + QString::number(i), std::nullopt});
    update(rows);
}

QVariant FileTileModel::data(const QModelIndex &index, int role) const
{
    Q_ASSERT(checkIndex(index, CheckIndexOption::IndexIsValid));
    const auto &row = rows()[index.row()];
    switch (role) {
    case FileRole:
        return QVariant::fromValue(row.file.value_or(AttachmentFile()));
    case IsUploadRole:
        return !row.file;
    }
    return {};
}

QHash<int, QByteArray> FileTileModel::roleNames() const
{
    return {{FileRole, "file"}, {IsUploadRole, "isUpload"}};
}
