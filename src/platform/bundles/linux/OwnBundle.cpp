#include "platform/bundles/linux/OwnBundle.h"

#include "platform/bundles/UpdateError.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

OwnBundle OwnBundle::of(const QString &program)
{
    const QDir folder = QFileInfo(program).dir();
    const QString bundle = QFileInfo(folder.path()).path();
    OwnBundle own;
    own.app.path = folder.path();
    own.isBundle = folder.dirName() == "bin"_L1 && bundle.endsWith(".app"_L1);
    if (!own.isBundle) {
        own.requirement = BundleCheck::Requirement{QLatin1StringView(DefaultIdentifier), {}};
        return own;
    }
    own.app.path = bundle;
    try {
        const BundleManifest manifest = BundleCheck::manifestOf(bundle);
        own.app.version = manifest.version;
        own.app.build = manifest.build;
        own.app.feed = manifest.feed;
        own.requirement = BundleCheck::Requirement{manifest.identifier, manifest.key};
    } catch (const UpdateError &) {
        own.requirement.reset();
    }
    return own;
}
