#pragma once

#include <QString>

namespace PackageOwner {

/// The folder in which dpkg lists the files of each package.
inline constexpr auto DpkgLists = "/var/lib/dpkg/info";

/// True if a package manager has installed the folder: it is in a tree that only package managers write to, or dpkg
/// lists it. Reads all lists of dpkg unless the folder is below the user's home, where packages install nothing.
bool owns(const QString &folder, const QString &dpkgLists = QLatin1StringView(DpkgLists));

} // namespace PackageOwner
