#pragma once

#include "model/ADFNode.h"

#include <QStringView>

/// The nodes that the program itself makes.
namespace ADF {

/// A node of the kind with nothing else: a rule, a hard break.
ADFNode plain(QStringView type);
/// A node of the kind with children; `content` is present even when there are none.
ADFNode container(QStringView type, QList<ADFNode> content);
/// A text node; `marks` is absent when there are none.
ADFNode text(QString text, QList<ADFMark> marks = {});
/// The root of a document, in the version that Jira expects.
ADFNode document(QList<ADFNode> content);

} // namespace ADF
