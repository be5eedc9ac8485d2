#include "jira/wire/WireDecoding.h"

#include "jira/wire/AttachmentDTO.h"
#include "jira/wire/CommentDTO.h"
#include "jira/wire/CreatedIssueDTO.h"
#include "jira/wire/IssueDTO.h"
#include "jira/wire/JiraErrorDTO.h"
#include "jira/wire/LargeNumbers.h"
#include "jira/wire/PriorityDTO.h"
#include "jira/wire/ProjectDTO.h"
#include "jira/wire/SearchResponseDTO.h"
#include "jira/wire/StatusDTO.h"
#include "jira/wire/TransitionsDTO.h"
#include "jira/wire/UserDTO.h"
#include "jira/wire/WireReader.h"
#include "richtext/SyntaxError.h"

#include <QTextBoundaryFinder>

namespace {

/// The maximum length of the displayed description of an error, in user-perceived characters.
constexpr qsizetype MaximumCharacters = 240;

QString shortened(const QString &text)
{
    // A single user-perceived character may consist of any number of code units, so the text is first limited to this
    // length.
    QString head = text.left(16 * MaximumCharacters);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, head);
    for (qsizetype i = 0; i < MaximumCharacters; ++i) {
        if (finder.toNextBoundary() < 0)
            return head;
    }
    return head.left(finder.position());
}

/// A parser keeps about fifteen times the size of the last text that it read. Therefore, each thread keeps one parser
/// for texts up to this size in bytes.
constexpr qsizetype UsualSize = 1024LL * 1024;

simdjson::dom::parser &keptParser()
{
    thread_local simdjson::dom::parser parser;
    return parser;
}

/// A temporary parser for a larger text; null for a text of usual size.
std::unique_ptr<simdjson::dom::parser> parserForOne(qsizetype size)
{
    return size > UsualSize ? std::make_unique<simdjson::dom::parser>() : nullptr;
}

simdjson::error_code parseOnce(simdjson::dom::parser &parser, const QByteArray &json,
                               simdjson::dom::element &root)
{
    // If there is not enough space after the text, the parser works on a copy.
    const bool hasRoom = json.capacity() - json.size() >= qsizetype(simdjson::SIMDJSON_PADDING);
    return parser.parse(json.constData(), size_t(json.size()), !hasRoom).get(root);
}

/// The parser keeps its own copies of texts and numbers, so the root may be used without the text.
simdjson::error_code parse(simdjson::dom::parser &parser, const QByteArray &json,
                           simdjson::dom::element &root)
{
    const auto error = parseOnce(parser, json, root);
    const bool isNumber = error == simdjson::NUMBER_ERROR || error == simdjson::NUMBER_OUT_OF_RANGE;
    return isNumber ? parseOnce(parser, LargeNumbers::bounded(json), root) : error;
}

JiraError::Decoding errorOf(const DecodingError &error)
{
    return {shortened(error.description())};
}

} // namespace

template <typename DTO>
std::expected<DTO, JiraError::Decoding> decodeWire(const QByteArray &json)
{
    const std::unique_ptr<simdjson::dom::parser> ownParser = parserForOne(json.size());
    simdjson::dom::parser &parser = ownParser ? *ownParser : keptParser();
    simdjson::dom::element root;
    if (const auto error = parse(parser, json, root))
        return std::unexpected(errorOf(syntaxError(error)));
    DTO record;
    WireReader::beginResponse();
    if (const auto done = WireReader::read(root, record); !done)
        return std::unexpected(errorOf(done.error()));
    return record;
}

#define VELMORA_DECODES(...)                                                                       \
    template std::expected<__VA_ARGS__, JiraError::Decoding> decodeWire(const QByteArray &);

VELMORA_DECODES(UserDTO)
VELMORA_DECODES(QList<UserDTO>)
VELMORA_DECODES(ProjectDTO)
VELMORA_DECODES(ProjectSearchDTO)
VELMORA_DECODES(QList<IssueTypeStatusesDTO>)
VELMORA_DECODES(QList<PriorityDTO>)
VELMORA_DECODES(PrioritySearchDTO)
VELMORA_DECODES(SearchResponseDTO)
VELMORA_DECODES(IssueDTO)
VELMORA_DECODES(CommentsDTO)
VELMORA_DECODES(CommentDTO)
VELMORA_DECODES(TransitionsDTO)
VELMORA_DECODES(CreatedIssueDTO)
VELMORA_DECODES(QList<AttachmentDTO>)
VELMORA_DECODES(JiraErrorDTO)
