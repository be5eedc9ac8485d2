#include "richtext/markdown/InlineParser.h"

#include <cmark-gfm-core-extensions.h>
#include <cmark-gfm.h>
#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>
#include <random>

using namespace Qt::StringLiterals;

namespace {

using Markdown::InlineRun;
using Markdown::InlineStyle;

/// The HTML that the library renders from a document, which is independent of how the program reads the library's tree.
QString html(const QByteArray &text)
{
    cmark_gfm_core_extensions_ensure_registered();
    constexpr int options = CMARK_OPT_STRIKETHROUGH_DOUBLE_TILDE;
    cmark_parser *parser = cmark_parser_new(options);
    cmark_parser_attach_syntax_extension(parser, cmark_find_syntax_extension("strikethrough"));
    cmark_parser_feed(parser, text.constData(), std::size_t(text.size()));
    cmark_node *document = cmark_parser_finish(parser);
    const std::unique_ptr<char, void (*)(void *)> rendered(
        cmark_render_html(document, options, nullptr), std::free);
    const QString result = QString::fromUtf8(rendered.get());
    cmark_node_free(document);
    cmark_parser_free(parser);
    return result;
}

/// Reads the HTML of one paragraph back into runs.
class HtmlRuns
{
public:
    explicit HtmlRuns(const QString &html)
    {
        qsizetype at = 0;
        while (at < html.size()) {
            if (html[at] == u'<') {
                const qsizetype end = html.indexOf(u'>', at);
                tag(html.sliced(at + 1, end - at - 1));
                at = end + 1;
            } else {
                const qsizetype end = std::max(at + 1, html.indexOf(u'<', at));
                add(decoded(html.sliced(at, end - at)));
                at = end;
            }
        }
    }

    const QList<InlineRun> &runs() const { return m_runs; }

private:
    static QString decoded(QString words)
    {
        words.replace(u"&lt;"_s, u"<"_s).replace(u"&gt;"_s, u">"_s);
        return words.replace(u"&quot;"_s, u"\""_s).replace(u"&amp;"_s, u"&"_s);
    }

    static QString attribute(const QString &tag, const QString &name)
    {
        const qsizetype start = tag.indexOf(name + u"=\""_s) + name.size() + 2;
        return decoded(tag.sliced(start, tag.indexOf(u'"', start) - start));
    }

    void tag(const QString &tag)
    {
        const bool isEnd = tag.startsWith(u'/');
        const QString name = isEnd ? tag.sliced(1) : tag.section(u' ', 0, 0);
        const int by = isEnd ? -1 : 1;
        m_strong += name == u"strong"_s ? by : 0;
        m_emphasized += name == u"em"_s ? by : 0;
        m_struck += name == u"del"_s ? by : 0;
        m_code += name == u"code"_s ? by : 0;
        if (name == u"a"_s)
            m_link = isEnd ? QString() : attribute(tag, u"href"_s);
        if (name == u"img"_s)
            add(attribute(tag, u"alt"_s));
    }

    void add(const QString &words)
    {
        const InlineStyle style{m_code > 0, m_strong > 0, m_emphasized > 0, m_struck > 0, m_link};
        if (words.isEmpty())
            return;
        if (!m_runs.isEmpty() && m_runs.last().style == style)
            m_runs.last().text += words;
        else
            m_runs.append({words, style});
    }

    int m_code = 0;
    int m_strong = 0;
    int m_emphasized = 0;
    int m_struck = 0;
    QString m_link;
    QList<InlineRun> m_runs;
};

QString randomLine(std::mt19937 &random)
{
    static const QStringList pieces{
        u"*"_s,     u"**"_s,   u"***"_s,  u"_"_s,   u"__"_s,     u"~~"_s,  u"~"_s,
        u"`"_s,     u"``"_s,   u"["_s,    u"]"_s,   u"](u)"_s,   u"!["_s,  u"\\"_s,
        u"&amp;"_s, u"&"_s,    u" "_s,    u" "_s,   u"a"_s,      u"b c"_s, u"é"_s,
        u"."_s,     u"("_s,    u")"_s,    u"\""_s,  u"\u00A0"_s, u"#"_s,   u"<https://x.fr>"_s,
        u"~~~"_s,   u"****"_s, u"`~~`"_s, u"« »"_s, u"🚀"_s,     u"\t"_s};
    QString line;
    for (int left = std::uniform_int_distribution(1, 16)(random); left > 0; --left)
        line += pieces.at(std::uniform_int_distribution<qsizetype>(0, pieces.size() - 1)(random));
    return line;
}

QString described(const QList<InlineRun> &runs)
{
    QStringList parts;
    for (const auto &[text, style] : runs)
        parts += u"%1%2%3%4%5\"%6\""_s.arg(
            style.code ? u"c"_s : QString(), style.strong ? u"s"_s : QString(),
            style.emphasized ? u"e"_s : QString(), style.struckThrough ? u"d"_s : QString(),
            style.link, text);
    return parts.join(u' ');
}

} // namespace

/// The words at both ends keep the library from seeing anything but a paragraph.
TEST(MarkdownReference, RandomLinesAreReadAsTheReferenceRendersThem)
{
    constexpr int count = 100000;
    std::mt19937 random(19);
    for (int i = 0; i < count; ++i) {
        const QString line = u"a "_s + randomLine(random) + u" z"_s;
        const HtmlRuns expected(html(line.toUtf8()));
        QString paragraph = described(expected.runs());
        // The end of the paragraph.
        paragraph.replace(u"\"\n\""_s, QString()).replace(u"\n"_s, QString());
        ASSERT_EQ(described(Markdown::inlineRuns(line)).toStdString(),
                  paragraph.trimmed().toStdString())
            << line.toStdString();
    }
}
