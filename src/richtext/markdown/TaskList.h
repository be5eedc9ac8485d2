#pragma once

#include "richtext/markdown/BlockContext.h"
#include "richtext/markdown/ListLine.h"

#include <span>

/// Tasks of the outermost level, done or not. Each task and the list itself have a local id.
namespace Markdown::TaskList {

/// Builds the list from the task lines at the start of `lines` and removes them from `lines`. The first line must begin
/// a task list.
ADFNode build(std::span<const ListLine> &lines, const BlockContext &context);

} // namespace Markdown::TaskList
