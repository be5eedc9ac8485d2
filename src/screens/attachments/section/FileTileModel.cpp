#include "screens/attachments/section/FileTileModel.h"

using namespace Qt::StringLiterals;

void FileTileModel::setTiles(const QList<Attachment> &attachments,
                             const QList<RunningUpload> &uploads)
{
    QList<FileTileRow> rows;
    for (const Attachment &attachment : attachments)
        rows.append({u"file "_s + attachment.id, AttachmentFile{attachment}, std::nullopt});
    for (const RunningUpload &upload : uploads) {
        const QString key = u"upload "_s + QString::number(upload.id) + u' ';
        for (int i = 0; i < int(upload.fileNames.size()); ++i)
            rows.append({key + QString::number(i), std::nullopt, UploadFacts{upload, i}});
    }
    setRows(rows);
}

QVariant FileTileModel::data(const QModelIndex &index, int role) const
{
    Q_ASSERT(checkIndex(index, CheckIndexOption::IndexIsValid));
    const auto &row = rows()[index.row()];
    switch (role) {
    case FileRole:
        return QVariant::fromValue(row.file.value_or(AttachmentFile()));
    case IsUploadRole:
        return row.upload.has_value();
    case UploadRole:
        return QVariant::fromValue(row.upload.value_or(UploadFacts()));
    }
    return {};
}

QHash<int, QByteArray> FileTileModel::roleNames() const
{
    return {{FileRole, "file"}, {IsUploadRole, "isUpload"}, {UploadRole, "upload"}};
}
