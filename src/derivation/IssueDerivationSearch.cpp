#include "derivation/IssueDerivationSearch.h"

#include "model/TextFolding.h"

#include <algorithm>
#include <cstring>

namespace {

/// The terminator after each text. This byte never occurs in UTF-8, so no needle can match across two texts.
constexpr char endOfText = '\xff';

QString assigneeName(const Issue &issue)
{
    return issue.assignee ? issue.assignee->name : QString();
}

void appendText(QByteArray &texts, const QString &text)
{
    texts += foldedForSearch(text).toUtf8();
    texts += endOfText;
}

} // namespace

QByteArray SearchTexts::needle(const QString &filterText)
{
    return foldedForSearch(filterText.trimmed()).toUtf8();
}

bool SearchTexts::sameTexts(const Issue &a, const Issue &b)
{
    return a.key == b.key && a.summary == b.summary && a.labels == b.labels &&
           assigneeName(a) == assigneeName(b);
}

void SearchTexts::reserve(qsizetype issues, qsizetype bytes)
{
    m_ends.reserve(issues);
    m_texts.reserve(bytes);
}

void SearchTexts::append(const Issue &issue)
{
    appendText(m_texts, issue.key);
    appendText(m_texts, issue.summary);
    for (const auto &label : issue.labels)
        appendText(m_texts, label);
    appendText(m_texts, assigneeName(issue));
    m_ends.push_back(m_texts.size());
}

void SearchTexts::append(const SearchTexts &other, qsizetype row)
{
    m_texts.append(other.textsOf(row));
    m_ends.push_back(m_texts.size());
}

std::vector<quint8> SearchTexts::containing(const QByteArray &needle) const
{
    std::vector<quint8> hits(m_ends.size(), needle.isEmpty() ? 1 : 0);
    if (needle.isEmpty())
        return hits;
    const char *const begin = m_texts.constData();
    const char *const end = begin + m_texts.size();
    const char *at = begin;
    std::size_t row = 0;
    while (
        (at = static_cast<const char *>(memmem(at, end - at, needle.constData(), needle.size())))) {
        while (m_ends[row] <= at - begin)
            ++row;
        hits[row] = 1;
        at = begin + m_ends[row];
    }
    return hits;
}

std::vector<quint8> SearchTexts::containing(const QByteArray &needle,
                                            std::vector<quint8> hits) const
{
    // If more than one in `few` issues is an earlier hit, one scan of all texts is faster than a search in each of
    // those issues.
    constexpr std::ptrdiff_t few = 8;
    if (std::ranges::count(hits, 1) * few > std::ssize(hits))
        return containing(needle);
    for (std::size_t row = 0; row < hits.size(); ++row)
        hits[row] = hits[row] != 0 && textsOf(qsizetype(row)).contains(needle);
    return hits;
}

QByteArrayView SearchTexts::textsOf(qsizetype row) const
{
    const auto start = row == 0 ? 0 : m_ends[row - 1];
    return QByteArrayView(m_texts).sliced(start, m_ends[row] - start);
}
