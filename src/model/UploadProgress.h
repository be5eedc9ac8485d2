#pragma once

#include <QtGlobal>

#include <functional>

/// How much of an upload has been sent, in bytes of its whole request.
struct UploadProgress
{
    qint64 sent = 0;
    /// 0 as long as it is not known.
    qint64 total = 0;

    bool operator==(const UploadProgress &) const = default;
};

/// Called on the thread of the caller each time a part of an upload was sent. It may cancel the upload.
using UploadObserver = std::function<void(const UploadProgress &)>;
