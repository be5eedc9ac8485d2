#pragma once

#include "screens/documents/content/FocusStops.h"

#include <vector>

/// A part of a document as a screen reader presents it.
struct SpokenNode
{
    enum class Kind {
        Document,
        Heading,
        Paragraph,
        Code,
        List,
        Item,
        Task,
        Quote,
        Panel,
        Table,
        Row,
        HeaderCell,
        Cell,
        Expand,
        Link,
        Rule,
        Media,
    };

    Kind kind = Kind::Document;
    /// What is said of the node, in French.
    QString name;
    int parent = -1;
    std::vector<int> children;
    /// The place of the node: its flow, and its piece or frame there. -1 for what it has not.
    int flow = 0;
    int piece = -1;
    int frame = -1;
    /// The number of the focus stop of a link or an expand, or -1.
    int stop = -1;
    /// The number of the media block, or -1.
    int media = -1;
    /// The level of a heading, 1 to 3.
    int level = 0;
    /// The task is done, or the expand is open.
    bool isOn = false;
};

/// The parts of a document from the outside inwards. The document itself is the first.
std::vector<SpokenNode> spokenTree(const DocumentBlocks &blocks,
                                   const std::vector<FocusStop> &stops);
