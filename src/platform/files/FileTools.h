#pragma once

#include "platform/files/FileDialogs.h"
#include "platform/files/FileManager.h"

#include <memory>

/// What the desktop offers to choose and to show files.
struct FileTools
{
    std::shared_ptr<FileDialogs> dialogs;
    std::shared_ptr<FileManager> manager;

    /// The tools of the current system, created on the first call.
    static FileTools ofThisSystem();
};
