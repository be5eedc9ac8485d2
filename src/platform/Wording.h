#pragma once

#include <QString>

/// The texts of the program are written with the terms of macOS. This is the only place that converts them to the terms
/// of the operating system that the program runs on.
namespace Wording {

/// The text in the terms of the current system. On Linux, shortcuts are spelled out ("⌘K" becomes "Ctrl+K", "⇧⌘."
/// becomes "Ctrl+Maj+.") and macOS terms are replaced ("Finder" becomes "gestionnaire de fichiers"). On macOS the text
/// is returned unchanged.
QString localized(const QString &macText);

} // namespace Wording
