#pragma once

#include <QString>

/// Why a piece of JSON could not be read.
struct DecodingError
{
    /// Where, as a path from the root: "content[2].type"; empty for the root itself.
    QString place;
    /// What is wrong there, for the user to read.
    QString message;

    /// Both in one line: "content[2].type : texte attendu".
    QString description() const
    {
        return place.isEmpty() ? message : QString(place).append(u" : ").append(message);
    }

    bool operator==(const DecodingError &) const = default;
};
