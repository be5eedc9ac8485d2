#include "platform/files/FileTools.h"
#include "platform/files/QtFileDialogs.h"

#import <AppKit/AppKit.h>

namespace {

class FileManagerMac final : public FileManager {
public:
    void reveal(const QUrl &file) override
    {
        [NSWorkspace.sharedWorkspace activateFileViewerSelectingURLs:@[ file.toNSURL() ]];
    }
};

} // namespace

FileTools FileTools::ofThisSystem()
{
    static const FileTools tools { .dialogs = std::make_shared<QtFileDialogs>(),
        .manager = std::make_shared<FileManagerMac>() };
    return tools;
}
