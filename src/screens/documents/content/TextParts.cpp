#include "screens/documents/content/TextParts.h"

#include <algorithm>

namespace {

/// The end of the part that begins at `from`.
qsizetype endOfPart(const QString &text, qsizetype from)
{
    const qsizetype end = from + longestTextPart;
    if (end >= text.size())
        return text.size();
    const QStringView part = QStringView(text).sliced(from, longestTextPart);
    for (const QChar separator : {u'\n', u' '}) {
        if (const auto at = part.lastIndexOf(separator); at >= longestTextPart / 2)
            return from + at + 1;
    }
    return text.at(end).isLowSurrogate() && end > from + 1 ? end - 1 : end;
}

/// Takes the runs from a place on that cover `length` characters.
class RunReader
{
public:
    explicit RunReader(const InlineRuns &runs) : m_runs(runs) {}

    InlineRuns take(qsizetype length)
    {
        InlineRuns taken;
        while (length > 0 && m_run < m_runs.size()) {
            InlineRun run = m_runs[m_run];
            const auto size = std::min(length, run.text.size() - m_offset);
            run.text = run.text.sliced(m_offset, size);
            taken.append(std::move(run));
            length -= size;
            m_offset += size;
            if (m_offset == m_runs[m_run].text.size()) {
                ++m_run;
                m_offset = 0;
            }
        }
        return taken;
    }

private:
    const InlineRuns &m_runs;
    qsizetype m_run = 0;
    qsizetype m_offset = 0;
};

} // namespace

std::vector<TextPart> textParts(const InlineRuns &runs)
{
    const QString text = ADFInline::plainText(runs);
    if (text.size() <= longestTextPart)
        return {{runs, QString()}};
    std::vector<TextPart> parts;
    RunReader reader(runs);
    QString joint;
    for (qsizetype from = 0; from < text.size();) {
        const auto end = endOfPart(text, from);
        const bool endsLine = text.at(end - 1) == u'\n' && end < text.size();
        parts.push_back({reader.take(end - from - (endsLine ? 1 : 0)), joint});
        if (endsLine)
            reader.take(1);
        joint = endsLine ? QStringLiteral("\n") : QString();
        from = end;
    }
    return parts;
}
