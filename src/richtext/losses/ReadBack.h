#pragma once

#include "model/ADFNode.h"

/// Where the text of a block is read from: a line of its own, or a line after the marker of a list or of a task.
enum class TextPlace { Page, Item, Task };

/// True if the Markdown of the block, a paragraph, heading, task or code block, is read as the same text with the same
/// marks. What Markdown replaces by text (mentions, emoji, cards, statuses, dates) and marks that it cannot represent
/// are left out of the comparison.
bool readsBack(const ADFNode &block, TextPlace place);
