#pragma once

#include <QString>

/// The name of a file or a person as it is shown, on one line: control characters, and characters that are invisible or
/// change the direction of writing, are replaced by U+FFFD, so that "facture\u202Egpj.exe" cannot be taken for a
/// picture.
QString shownName(const QString &name);
