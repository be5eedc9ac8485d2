#pragma once

#include "model/ADFNode.h"
#include "model/dates/UserCalendar.h"

/// The Markdown of a document, by a second implementation that states each rule in the simplest form and builds every
/// text from the texts of its parts.
QString markdownOracle(const ADFNode &document, const UserCalendar &calendar);
