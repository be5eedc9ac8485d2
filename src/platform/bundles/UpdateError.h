#pragma once

#include "model/Failure.h"

/// Why an update could not be found, verified or installed. The texts are for the user.
class UpdateError final : public Failure
{
public:
    enum class Kind {
        /// The server answered with a status outside 200 to 299.
        BadResponse,
        /// The new application is not from the maker of the running one, or its signature cannot be checked.
        Signature,
        /// The folder of the running application cannot be changed by the user.
        NotWritable,
        /// A tool of the operating system, or the code in its place, has refused the archive.
        Tool,
        /// The archive is not the one that the feed describes.
        Checksum,
        /// The archive contains no application at its first level.
        MissingApp
    };

    static UpdateError badResponse(int status);
    static UpdateError signature(const QString &detail);
    /// `folder` is the folder that would have to be written to.
    static UpdateError notWritable(const QString &folder);
    static UpdateError tool(const QString &message);
    static UpdateError checksum();
    static UpdateError missingApp();

    Kind kind() const { return m_kind; }

private:
    UpdateError(Kind kind, const QString &message) : Failure(message), m_kind(kind) {}

    Kind m_kind;
};
