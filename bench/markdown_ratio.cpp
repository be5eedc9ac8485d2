// Measures the time to write a document as Markdown, compared in the same run with the time to read that text as a
// document. Times are processor time.

#include "richtext/ADFMarkdown.h"
#include "richtext/losses/MarkdownLosses.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

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

} // namespace

int main()
{
    std::printf(
        "Markdown: processor time in microseconds (median), as a multiple of reading the text\n");
    std::printf("%-24s %8s %10s %10s %6s %10s %6s\n", "", "letters", "read", "write", "x", "losses",
                "x");
    compare({"a description", page, 2000});
    compare({"100 descriptions", page.repeated(100), 100});
    compare({"one line of 100,000", u"mot "_s.repeated(25'000), 100});
    compare({"10,000 items", u"- mot\n"_s.repeated(10'000), 50});
    return 0;
}
