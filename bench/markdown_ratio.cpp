// Measures the conversions of documents from and to Markdown and JSON, each compared in the same run with the work of a
// library that only parses the same bytes, or with reading the same text. Times are processor time.

#include "DocumentCorpus.h"
#include "richtext/ADFCoding.h"
#include "richtext/ADFMarkdown.h"
#include "richtext/losses/MarkdownLosses.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <md4c.h>
#include <simdjson.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// The number of documents.
constexpr int documentCount = 2000;

double threadMicroseconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e6 + double(now.tv_nsec) / 1e3;
}

/// The times of the runs of one function, in microseconds.
class Times
{
public:
    void add(const std::function<void()> &work)
    {
        const double start = threadMicroseconds();
        work();
        m_runs.push_back(threadMicroseconds() - start);
    }
    double median()
    {
        std::ranges::sort(m_runs);
        return m_runs.at(m_runs.size() / 2);
    }

private:
    std::vector<double> m_runs;
};

/// Parses the text with md4c, in the dialect nearest to ours, and does nothing with what it finds.
void parseOnly(const QByteArray &utf8)
{
    MD_PARSER parser{};
    parser.flags = MD_FLAG_STRIKETHROUGH | MD_FLAG_TASKLISTS | MD_FLAG_NOHTMLBLOCKS |
                   MD_FLAG_NOINDENTEDCODEBLOCKS;
    parser.enter_block = parser.leave_block = [](MD_BLOCKTYPE, void *, void *) { return 0; };
    parser.enter_span = parser.leave_span = [](MD_SPANTYPE, void *, void *) { return 0; };
    parser.text = [](MD_TEXTTYPE, const MD_CHAR *, MD_SIZE, void *) { return 0; };
    if (md_parse(utf8.constData(), MD_SIZE(utf8.size()), &parser, nullptr) != 0)
        qFatal("md4c fails");
}

/// Parses the JSON with simdjson, and does nothing with what it finds.
void parseOnly(simdjson::dom::parser &parser, const QByteArray &json)
{
    if (parser.parse(json.constData(), size_t(json.size())).error())
        qFatal("simdjson fails");
}

/// Documents in each of their forms.
struct Corpus
{
    explicit Corpus(const QStringList &texts) : markdown(texts)
    {
        for (const QString &text : texts) {
            utf8.append(text.toUtf8());
            documents.append(ADFMarkdown::document(text));
            json.append(ADFCoding::encode(documents.last()));
        }
    }

    QStringList markdown;
    QList<QByteArray> utf8;
    QList<ADFNode> documents;
    QList<QByteArray> json;
};

void printRow(const char *name, double microseconds, const char *baseline, double ofBaseline)
{
    std::printf("%-24s %10.2f %6.2f x %s\n", name, microseconds / 1000, microseconds / ofBaseline,
                baseline);
}

void compareCorpus(const Corpus &corpus, int runs)
{
    const UserCalendar calendar = UserCalendar::system();
    simdjson::dom::parser parser;
    Times md4c;
    Times reading;
    Times writing;
    Times counting;
    Times simdjson;
    Times decoding;
    Times encoding;
    const auto each = [](const auto &list, const auto &work) {
        return [&list, work] {
            for (const auto &item : list)
                work(item);
        };
    };
    for (int i = 0; i < runs; ++i) {
        md4c.add(each(corpus.utf8, [](const QByteArray &text) { parseOnly(text); }));
        reading.add(
            each(corpus.markdown, [](const QString &text) { ADFMarkdown::document(text); }));
        writing.add(each(corpus.documents, [&](const ADFNode &document) {
            ADFMarkdown::markdown(document, calendar);
        }));
        counting.add(each(corpus.documents,
                          [](const ADFNode &document) { ADFMarkdown::losses(document, {}); }));
        simdjson.add(each(corpus.json, [&](const QByteArray &json) { parseOnly(parser, json); }));
        decoding.add(each(corpus.json, [](const QByteArray &json) {
            if (!ADFCoding::decodeNode(json))
                qFatal("The JSON is not a document");
        }));
        encoding.add(
            each(corpus.documents, [](const ADFNode &document) { ADFCoding::encode(document); }));
    }
    printRow("md4c alone", md4c.median(), "", md4c.median());
    printRow("Markdown to document", reading.median(), "md4c alone", md4c.median());
    printRow("document to Markdown", writing.median(), "Markdown to document", reading.median());
    printRow("losses of a document", counting.median(), "Markdown to document", reading.median());
    printRow("simdjson alone", simdjson.median(), "", simdjson.median());
    printRow("JSON to document", decoding.median(), "simdjson alone", simdjson.median());
    printRow("document to JSON", encoding.median(), "JSON to document", decoding.median());
}

struct Sample
{
    const char *name;
    QString text;
    int runs;
};

const QString page =
    u"## Contexte\nDepuis la version 4.2, les comptes sont **déconnectés** *exactement* 24 h "
    u"après.\n\n"
    "1. Se connecter\n2. Avancer l'horloge\n   - de 24 h\n   - de 48 h\n3. Rouvrir l'app\n\n"
    "On renvoie `identityToken` au lieu du [jeton](https://exemple.fr/jeton?a=b) ~~prévu~~.\n\n"
    "```swift\nlet session = try await api.refresh()\nstore.save(session)\n```\n\n"
    "> Maquettes validées par l'équipe.\n> - sans réserve\n\n---\n\n"
    "- [x] Reproduire\n- [ ] Corriger\n- [ ] Tester\n\n"_s;

void compare(const Sample &sample)
{
    const UserCalendar calendar = UserCalendar::system();
    const ADFNode document = ADFMarkdown::document(sample.text);
    Times reading;
    Times writing;
    Times counting;
    qsizetype written = 0;
    for (int i = 0; i < sample.runs; ++i) {
        reading.add([&] { ADFMarkdown::document(sample.text); });
        writing.add([&] { written = ADFMarkdown::markdown(document, calendar).size(); });
        counting.add([&] { ADFMarkdown::losses(document, {}); });
    }
    const double read = reading.median();
    std::printf("%-24s %8lld %10.1f %10.1f %6.2f %10.1f %6.2f\n", sample.name, qlonglong(written),
                read, writing.median(), writing.median() / read, counting.median(),
                counting.median() / read);
}

void compareShapes()
{
    std::printf(
        "\nMarkdown: processor time in microseconds (median), as a multiple of reading the text\n");
    std::printf("%-24s %8s %10s %10s %6s %10s %6s\n", "", "letters", "read", "write", "x", "losses",
                "x");
    compare({"a description", page, 2000});
    compare({"100 descriptions", page.repeated(100), 100});
    compare({"one line of 100,000", u"mot "_s.repeated(25'000), 100});
    compare({"10,000 items", u"- mot\n"_s.repeated(10'000), 50});
}

/// Prints the texts of the corpus as an array in JSON, for other programs to convert.
void printTexts()
{
    const QJsonArray texts = QJsonArray::fromStringList(documentCorpus(documentCount));
    std::puts(QJsonDocument(texts).toJson(QJsonDocument::Compact).constData());
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 1 && QByteArrayView(argv[1]) == "texts") {
        printTexts();
        return 0;
    }
    const int runs = argc > 1 ? std::atoi(argv[1]) : 25;
    const Corpus corpus(documentCorpus(documentCount));
    qsizetype bytes = 0;
    for (const QByteArray &text : corpus.utf8)
        bytes += text.size();
    std::printf("2,000 documents, %lld kB of Markdown: processor time in milliseconds (median)\n",
                qlonglong(bytes / 1000));
    compareCorpus(corpus, runs);
    if (argc <= 1)
        compareShapes();
    return 0;
}
