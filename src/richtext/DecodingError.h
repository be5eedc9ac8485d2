#pragma once

#include <QString>

/// Why a text could not be decoded as JSON.
struct DecodingError
{
    /// The position, as a path from the root: "content[2].type"; empty for the root itself.
    QString place;
    /// The description of the error, for the user.
    QString message;

    /// The position and the message in one line: "content[2].type : texte attendu".
    QString description() const
    {
        return place.isEmpty() ? message : QString(place).append(u" : ").append(message);
    }

    bool operator==(const DecodingError &) const = default;
};
