#include "screens/options/OptionIconValue.h"

#include <type_traits>

namespace {

template <OptionIcons::Kind kind, typename T>
constexpr bool isAt =
    std::is_same_v<std::variant_alternative_t<std::size_t(kind), decltype(OptionIcon::value)>, T>;

using OptionIcons::Kind;

static_assert(isAt<Kind::None, OptionIcon::None> && isAt<Kind::Status, IssueStatus> &&
              isAt<Kind::Priority, PriorityLevel> && isAt<Kind::User, OptionIcon::User> &&
              isAt<Kind::Label, OptionIcon::Label> && isAt<Kind::Type, IssueType> &&
              isAt<Kind::Project, Project> && isAt<Kind::Symbol, OptionIcon::Symbol>);

} // namespace
