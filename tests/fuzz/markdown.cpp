/// Writes documents as Markdown, both those that the input is as JSON and those that it is read as. The text must be
/// that of the second implementation, and a document without losses must be read again with the same words.
#include "fuzz/Input.h"
#include "fuzz/Promise.h"
#include "richtext/ADFCoding.h"
#include "richtext/ADFMarkdown.h"
#include "richtext/ADFQueries.h"
#include "richtext/WritingOracle.h"
#include "richtext/losses/MarkdownLosses.h"

using namespace Qt::StringLiterals;

namespace {

const UserCalendar &calendar()
{
    static const UserCalendar value{{QLocale::French, QLocale::France}, QTimeZone("Europe/Paris")};
    return value;
}

/// The lines of the document that have a text.
QStringList linesOf(const ADFNode &document)
{
    QStringList lines;
    for (const QString &line : ADF::plainText(document).split(u'\n')) {
        if (!line.trimmed().isEmpty())
            lines.append(line.trimmed());
    }
    return lines;
}

/// Returns the document that the written text is read as.
ADFNode writtenAndRead(const ADFNode &document)
{
    const QString markdown = ADFMarkdown::markdown(document, calendar());
    promise(markdown == markdownOracle(document, calendar()), "a document is written by the rules");
    ADFNode read = ADFMarkdown::document(markdown, [] { return u"id"_s; });
    promise(ADFCoding::decodeNode(ADFCoding::encode(read)).has_value(), "what is read can be sent");
    return read;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (const auto node = ADFCoding::decodeNode(bytesOf(data, size))) {
        writtenAndRead(*node);
        const MarkdownLosses losses = ADFMarkdown::losses(*node, {});
        promise(losses.isEmpty() == losses.sentence().isEmpty(), "each loss has a name");
    }
    const ADFNode document = ADFMarkdown::document(textOf(data, size), [] { return u"id"_s; });
    const ADFNode again = writtenAndRead(document);
    if (ADFMarkdown::losses(document, {}).isEmpty())
        promise(linesOf(again) == linesOf(document), "what loses nothing keeps its words");
    return 0;
}
