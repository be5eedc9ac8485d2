#pragma once

#include "platform/bundles/AppBundles.h"
#include "update/ReleaseInfo.h"
#include "update/UpdateTransport.h"

/// What happens to an archive between its arrival and the installation. Blocks; called on a thread of its own.
namespace Preparation {

/// The working folder of a release below `parent`: "Velmora-update-" and the build. Characters of the build that could
/// lead to another folder are percent-encoded.
QString workingFolder(const QString &parent, const QString &build);

/// Deletes what is at `path` and creates an empty folder there that only the user can enter. Fails with `UpdateError`,
/// also if another user owns what is there.
void makePrivateFolder(const QString &path);

/// Moves the archive into its working folder, compares its hash with that of the release, unpacks it and verifies the
/// application in it. Returns the path of the application. Fails with `UpdateError`.
QString preparedApp(const AppBundles &bundles, const UpdateTransport::Archive &archive,
                    const ReleaseInfo &release, const QString &parent);

} // namespace Preparation
