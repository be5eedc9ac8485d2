#include "screens/documents/content/ADFInline.h"

#include "model/dates/DateParts.h"
#include "model/text/VisibleText.h"
#include "richtext/ADFQueries.h"
#include "screens/documents/content/HexColor.h"

#include <QUrl>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> attribute(const ADFMark &mark, const QString &name)
{
    return mark.attrs ? mark.attrs->value(name).string() : std::nullopt;
}

bool isAddress(const QString &text)
{
    return !text.isEmpty() && QUrl(text, QUrl::StrictMode).isValid();
}

void follow(InlineRun &run, const QString &address)
{
    run.link = address;
    run.isAccented = true;
    run.color.reset();
}

void apply(const ADFMark &mark, InlineRun &run)
{
    if (mark.type == u"strong") {
        run.isStrong = true;
    } else if (mark.type == u"em") {
        run.isEmphasized = true;
    } else if (mark.type == u"strike") {
        run.isStruck = true;
    } else if (mark.type == u"code") {
        run.isCode = true;
    } else if (mark.type == u"underline") {
        run.isUnderlined = true;
    } else if (mark.type == u"link") {
        if (const auto address = attribute(mark, u"href"_s); address && isAddress(*address))
            follow(run, *address);
    } else if (mark.type == u"textColor") {
        if (const auto color = colorFromHex(attribute(mark, u"color"_s).value_or(QString()))) {
            run.color = color;
            run.isAccented = false;
        }
    }
}

InlineRun textRun(const ADFNode &node)
{
    InlineRun run{.text = node.text.value_or(QString())};
    if (node.marks) {
        for (const auto &mark : *node.marks)
            apply(mark, run);
    }
    if (!run.link.isEmpty())
        run.text = visibleText(run.text);
    return run;
}

InlineRun mention(const ADFNode &node, const InlineContext &context)
{
    const auto id = ADF::attribute(node, u"id"_s);
    const bool isOwn = context.meID && id == context.meID;
    return {.text = visibleText(ADF::attribute(node, u"text"_s).value_or(u"@"_s)),
            .kind = isOwn ? InlineRun::Kind::OwnMention : InlineRun::Kind::Mention,
            .isAccented = true};
}

InlineRun card(const ADFNode &node)
{
    const auto address = ADF::attribute(node, u"url"_s).value_or(QString());
    return {.text = visibleText(address),
            .isAccented = true,
            .link = isAddress(address) ? address : QString()};
}

QString date(const ADFNode &node, const UserCalendar &calendar)
{
    // The largest instant that a document can sensibly name: the year 9999.
    constexpr double farthest = 253402300799999.0;
    bool isNumber = false;
    const double time =
        ADF::attribute(node, u"timestamp"_s).value_or(QString()).toDouble(&isNumber);
    if (!isNumber || !std::isfinite(time) || std::abs(time) > farthest)
        return {};
    const auto instant = QDateTime::fromMSecsSinceEpoch(qint64(time), Qt::UTC);
    return dayShortMonthAndYear(calendar.day(instant), calendar.locale);
}

/// The run of an inline node, whose text may be empty. Nothing for a node of any other kind.
std::optional<InlineRun> leaf(const ADFNode &node, const InlineContext &context)
{
    if (node.type == u"text")
        return textRun(node);
    if (node.type == u"hardBreak")
        return InlineRun{.text = u"\n"_s};
    if (node.type == u"mention")
        return mention(node, context);
    if (node.type == u"emoji")
        return InlineRun{.text = ADF::attribute(node, u"text"_s)
                                     .or_else([&] { return ADF::attribute(node, u"shortName"_s); })
                                     .value_or(QString())};
    if (node.type == u"inlineCard" || node.type == u"blockCard")
        return card(node);
    if (node.type == u"status")
        return InlineRun{
            .text = u' ' + ADF::attribute(node, u"text"_s).value_or(QString()).toUpper() + u' ',
            .kind = InlineRun::Kind::Status};
    if (node.type == u"date")
        return InlineRun{.text = date(node, context.calendar)};
    return {};
}

void append(const ADFNode &node, const InlineContext &context, InlineRuns &runs)
{
    if (auto run = leaf(node, context)) {
        if (!run->text.isEmpty())
            runs.append(std::move(*run));
    } else if (node.content) {
        for (const auto &child : *node.content)
            append(child, context, runs);
    }
}

} // namespace

InlineRuns ADFInline::attributed(const QList<ADFNode> &nodes, const InlineContext &context)
{
    InlineRuns runs;
    for (const auto &node : nodes)
        append(node, context, runs);
    return runs;
}

InlineRuns ADFInline::piece(const ADFNode &node, const InlineContext &context)
{
    InlineRuns runs;
    append(node, context, runs);
    return runs;
}

QString ADFInline::plainText(const InlineRuns &runs)
{
    QString text;
    for (const auto &run : runs)
        text += run.text;
    return text;
}
