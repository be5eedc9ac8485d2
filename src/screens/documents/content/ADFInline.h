#pragma once

#include "model/ADFNode.h"
#include "model/dates/UserCalendar.h"

#include <QColor>
#include <QList>
#include <QString>

#include <optional>

/// A piece of text in one style. The view chooses fonts and the colours that depend on the appearance.
struct InlineRun
{
    enum class Kind {
        Text,
        Mention,    ///< accent colour, semibold at 13 points
        OwnMention, ///< the same on a background, because it names the current user
        Status,     ///< bold at 10.5 points on a background
    };

    QString text;
    Kind kind = Kind::Text;
    bool isStrong = false;
    bool isEmphasized = false;
    bool isStruck = false;
    bool isUnderlined = false;
    /// Monospaced at 12 points on a background.
    bool isCode = false;
    /// In the accent colour.
    bool isAccented = false;
    /// A colour of its own. A run has either this or the accent colour.
    std::optional<QColor> color;
    /// The address of a link as the document has it; empty if the run is not a link.
    QString link;

    bool operator==(const InlineRun &) const = default;
};

using InlineRuns = QList<InlineRun>;

/// What the text of a document depends on besides its nodes.
struct InlineContext
{
    /// The account id of the current user; absent if it is unknown.
    std::optional<QString> meID;
    UserCalendar calendar = UserCalendar::system();
};

/// Turns inline nodes into styled text. Malformed values lose their style or their text, and nothing fails.
namespace ADFInline {

/// The runs of all nodes, in their order. Runs without text are left out.
InlineRuns attributed(const QList<ADFNode> &nodes, const InlineContext &context);
/// The runs of one node.
InlineRuns piece(const ADFNode &node, const InlineContext &context);
/// The characters of the runs without their styles.
QString plainText(const InlineRuns &runs);

} // namespace ADFInline
