#pragma once

#include <QUrl>

/// The program in which users look through their folders.
class FileManager
{
public:
    FileManager() = default;
    virtual ~FileManager() = default;
    FileManager(const FileManager &) = delete;
    FileManager &operator=(const FileManager &) = delete;

    /// Shows a local file selected in its folder, or only the folder where the file manager cannot select.
    virtual void reveal(const QUrl &file) = 0;
};
