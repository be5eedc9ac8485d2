#include "desktop/DesktopServices.h"

std::unique_ptr<DesktopServices> DesktopServices::ofThisSystem(AppStore & /*store*/)
{
    return nullptr;
}
