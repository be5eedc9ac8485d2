#include "screens/gallery/SampleFiles.h"

using namespace Qt::StringLiterals;

namespace {

AttachmentFile file(const QString &name, const QString &mimeType, qint64 size)
{
    Attachment attachment;
    attachment.id = name;
    attachment.filename = name;
    attachment.mimeType = mimeType;
    attachment.size = size;
    return {attachment};
}

} // namespace

QList<AttachmentFile> SampleFiles::files() const
{
    return {file(u"facture-septembre-erreur.png"_s, u"image/png"_s, 6'123),
            file(u"worker-facturation.log"_s, u"text/x-log"_s, 386),
            file(u"Cahier des charges.pdf"_s, u"application/pdf"_s, 1'540'000),
            file(u"config.json"_s, u"application/json"_s, 980),
            file(u"Budget 2026.xlsx"_s,
                 u"application/vnd.openxmlformats-officedocument.spreadsheetml.sheet"_s, 52'400),
            file(u"démo.mp4"_s, u"video/mp4"_s, 48'200'000),
            file(u"sonnerie.mp3"_s, u"audio/mpeg"_s, 3'100'000),
            file(u"journaux.zip"_s, u"application/zip"_s, 2'250'000'000),
            file(u"sauvegarde.bin"_s, u"application/octet-stream"_s, 0)};
}

UploadFacts SampleFiles::upload() const
{
    return {RunningUpload{1, u"SUP-41"_s, {u"notes.txt"_s}, {64, 100}}};
}

AttachmentFile SampleFiles::trick() const
{
    return file(u"facture\u202Egpj.exe"_s, u"application/octet-stream"_s, 24'000);
}
