#pragma once

#include <QString>

#include <chrono>
#include <optional>

/// The texts of the sheet "À propos de Velmora".
namespace AboutTexts {

/// "Version 1.4 (build 140)". A program outside a bundle has the version "dev" and no build: then it is the version of
/// the sources alone.
QString version(const QString &version, const QString &build);
/// "14,2 ms" below a tenth of a second, "412 ms" from there on; that nothing was measured yet if it is absent.
QString time(std::optional<std::chrono::nanoseconds> time);
/// "182,4 Mo"; that it is unknown if it is absent.
QString memory(std::optional<qint64> bytes);

} // namespace AboutTexts
