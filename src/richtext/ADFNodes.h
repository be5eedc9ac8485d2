#pragma once

#include "model/ADFNode.h"

#include <QStringView>

/// Constructors for the nodes that the program creates, and access to the children of any node. A kind that is given as
/// `QString` is shared and not copied.
namespace ADF {

/// A node of the given kind without other members, such as a rule or a hard break.
ADFNode plain(QString type);
ADFNode plain(QStringView type);
/// A node of the given kind with children; `content` is present even if there are none.
ADFNode container(QString type, QList<ADFNode> content);
ADFNode container(QStringView type, QList<ADFNode> content);
/// A text node; `marks` is absent if there are none.
ADFNode text(QString text, QList<ADFMark> marks = {});
/// The root of a document, in the version that Jira expects.
ADFNode document(QList<ADFNode> content);

/// The children of a node; empty if its content is absent. The list is valid as long as the node is.
const QList<ADFNode> &children(const ADFNode &node);

} // namespace ADF
