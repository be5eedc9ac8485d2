#pragma once

#include "richtext/markdown/BlockContext.h"
#include "richtext/markdown/ListLine.h"

#include <span>

/// Tasks of the outermost level, ticked or not. Each task and the list itself carry a local id.
namespace Markdown::TaskList {

/// Makes the list of the task lines at the front of `lines`, and takes these away. The front line begins a task list.
ADFNode build(std::span<const ListLine> &lines, const BlockContext &context);

} // namespace Markdown::TaskList
