#pragma once

#include "model/Attachment.h"

#include <QString>

/// Where downloaded attachments are kept: one folder for each attachment, so that two of one name never meet. An
/// attachment's content never changes, so what is there is right. Nothing is ever removed.
namespace AttachmentCache {

/// "Velmora/attachments" among the user's caches.
QString systemFolder();

/// The folder of one attachment below `cache`: its identifier, or, for an identifier that is no plain word, a name made
/// from it. It never leads out of `cache`.
QString folder(const QString &cache, const Attachment &attachment);

/// The file's name: as uploaded, with "-" for "/", ":" and what cannot be seen; at most 200 bytes long, its ending kept.
/// "fichier" where nothing is left, or what names a folder.
QString fileName(const Attachment &attachment);

/// The file of an attachment, whether it is there or not.
QString file(const QString &cache, const Attachment &attachment);

} // namespace AttachmentCache
