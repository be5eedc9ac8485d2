#pragma once

#include "model/Attachment.h"

#include <QString>
#include <QUrl>

/// The paths under which downloaded attachments are stored. Each attachment has its own folder, so that attachments
/// with the same name do not conflict. The content of an attachment never changes, so a stored file of the announced
/// size stays valid. Files are never deleted.
namespace AttachmentCache {

/// "Velmora/attachments" in the user's cache folder.
QString systemFolder();

/// The folder of a site below `cache`. Attachments of different sites may have the same identifier, so each scheme,
/// host and port has a folder of its own.
QString siteFolder(const QString &cache, const QUrl &site);

/// The folder of one attachment below the folder of its site, named after its identifier, or after a hash of it if the
/// identifier contains more than letters, digits, "_" and "-". The folder is always inside the folder of the site.
QString folder(const QString &siteFolder, const Attachment &attachment);

/// The name of the file: the uploaded name with "-" in place of "/", ":" and invisible characters, shortened to 200
/// bytes but with its extension. "fichier" if nothing is left or if the name would denote a folder.
QString fileName(const Attachment &attachment);

/// The path of an attachment's file, whether or not the file exists.
QString file(const QString &siteFolder, const Attachment &attachment);

} // namespace AttachmentCache
