#pragma once

#include <QByteArray>

/// Ed25519 signatures over manifests.
namespace BundleSignature {

/// The size in bytes of the secret from which a pair of keys is derived.
inline constexpr qsizetype SeedSize = 32;

/// The public key that belongs to a secret of `SeedSize` bytes.
QByteArray publicKey(const QByteArray &seed);
/// The signature of a text, as the content of a signature file: 128 hexadecimal digits and a line break.
QByteArray sign(const QByteArray &text, const QByteArray &seed);
/// True if `signature`, the content of a signature file, was made over `text` with the secret of `publicKey`.
bool isValid(const QByteArray &text, const QByteArray &signature, const QByteArray &publicKey);

} // namespace BundleSignature
