#pragma once

#include "screens/attachments/facts/AttachmentFile.h"
#include "screens/attachments/facts/UploadFacts.h"
#include "state/models/SteppedListModel.h"

#include <QtQml/qqmlregistration.h>

#include <optional>

/// A tile: a file, or one that is being uploaded.
struct FileTileRow
{
    QString key;
    /// Absent for an upload.
    std::optional<AttachmentFile> file;
    /// Absent for a file.
    std::optional<UploadFacts> upload;

    bool operator==(const FileTileRow &) const = default;
};

/// The tiles of an issue: its files in their order, then one tile for each file of the uploads under way. Many tiles are
/// created in steps.
class FileTileModel : public SteppedListModel<FileTileRow>
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the files of an issue")

public:
    enum Role { FileRole = Qt::UserRole, IsUploadRole, UploadRole };
    Q_ENUM(Role)

    /// The number of tiles that are added at once, which fills most windows.
    static constexpr qsizetype firstStep = 16;

    explicit FileTileModel(QObject *parent = nullptr) : SteppedListModel(firstStep, parent) {}

    void setTiles(const QList<Attachment> &attachments, const QList<RunningUpload> &uploads);
    /// Adds all tiles that have to wait.
    Q_INVOKABLE void addAll() { complete(); }

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
};
