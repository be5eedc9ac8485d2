#include "platform/bundles/linux/PackageOwner.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The trees of the distribution's packages, of Flatpak, Snap, Nix and Guix.
constexpr std::array PackageTrees = {"/usr/"_L1, "/app/"_L1, "/snap/"_L1, "/nix/store/"_L1,
                                     "/gnu/store/"_L1};
/// The tree for programs that are installed by hand.
constexpr auto LocalTree = "/usr/local/"_L1;

bool isListedIn(const QString &list, const QByteArray &line)
{
    QFile file(list);
    return file.open(QIODevice::ReadOnly) && ('\n' + file.readAll()).contains('\n' + line + '\n');
}

} // namespace

bool PackageOwner::owns(const QString &folder, const QString &dpkgLists)
{
    const bool isInTree =
        std::ranges::any_of(PackageTrees, [&](auto tree) { return folder.startsWith(tree); });
    if (isInTree && !folder.startsWith(LocalTree))
        return true;
    if (folder.startsWith(QDir::homePath() + u'/'))
        return false;
    const QByteArray line = QFile::encodeName(folder);
    const QDir lists(dpkgLists, u"*.list"_s);
    const QStringList names = lists.entryList(QDir::Files);
    return std::ranges::any_of(
        names, [&](const QString &name) { return isListedIn(lists.filePath(name), line); });
}
