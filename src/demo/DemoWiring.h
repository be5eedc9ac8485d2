#pragma once

#include "demo/DemoSite.h"

/// Connects the attachments of the seed with the comments and descriptions of their issues.
namespace DemoWiring {

/// Adds the attachments to the site. Where the service issue SUP-41 has them, it refers to them in each of the ways that
/// a site may use: the first comment contains the first attachment by its id, the second comment has the last one beside
/// its text, and the description begins with the first one, named by its file name alone. What is missing is left out.
void attach(DemoSite &site, const QHash<QString, QList<Attachment>> &files,
            const DemoSeed::NewID &newID);

} // namespace DemoWiring
