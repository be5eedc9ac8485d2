#pragma once

#include <QString>

/// The text with its invisible characters made visible: "facture\u202Egpj.exe" becomes "facture[U+202E]gpj.exe". For
/// texts that others have chosen and that users rely on: the texts of links, the names of files and of people.
///
/// Replaced are control characters (also line breaks), characters that change the direction of writing, invisible
/// operators and separators, fillers, soft hyphens, tags, and unpaired surrogates. What a script or an emoji needs
/// stays: joiners between letters of scripts that use them and between emoji, variation selectors after emoji and after
/// Chinese characters, and the tags of a flag. A text without such characters is returned as it is.
QString visibleText(const QString &text);

/// The text without the characters that `visibleText` replaces.
QString withoutInvisible(const QString &text);
