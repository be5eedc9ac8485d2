#pragma once

#include "platform/bundles/BundleManifest.h"

/// Compares bundles on Linux with their manifests.
namespace BundleCheck {

/// What another bundle must fulfil to replace the running program.
struct Requirement
{
    QString identifier;
    /// The maker's public key; absent if the running program is not signed. Then any maker is accepted.
    std::optional<QByteArray> key;

    bool operator==(const Requirement &) const = default;
};

/// Reads the manifest of the bundle in the folder `app` and verifies its signature under its own key. Does not look at
/// the files. Fails with `UpdateError::Kind::Signature`.
BundleManifest manifestOf(const QString &app);

/// Verifies that the bundle fulfils the requirement and that its folder contains exactly the files of the manifest,
/// with their content and permissions, and no links. Returns the manifest. Fails with `UpdateError::Kind::Signature`.
BundleManifest verified(const QString &app, const Requirement &requirement);

/// The SHA-256 of a file in 64 lower-case hexadecimal digits, read in pieces of 1 MiB; nothing if it cannot be read or
/// is no regular file.
std::optional<QByteArray> sha256(const QString &path);

} // namespace BundleCheck
