#pragma once

#include <QString>

/// Texts are stored in the words of the Mac. This is the one place that turns them into those of the system the program
/// runs on.
namespace Wording {

/// The text as this system's user should read it: on Linux shortcuts are spelt out ("⌘K" is "Ctrl+K", "⇧⌘." is
/// "Ctrl+Maj+.") and the Mac's own words are replaced ("Finder" is "gestionnaire de fichiers"); on macOS unchanged.
QString localized(const QString &macText);

} // namespace Wording
