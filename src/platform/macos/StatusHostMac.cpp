#include "platform/StatusHost.h"

namespace {

/// macOS always displays the menu bar.
class StatusHostMac final : public StatusHost
{
public:
    bool isPresent() const override { return true; }
};

} // namespace

std::unique_ptr<StatusHost> StatusHost::ofThisSystem()
{
    return std::make_unique<StatusHostMac>();
}
