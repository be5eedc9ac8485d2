#pragma once

#include "screens/documents/speech/SpokenTree.h"

#include <QAccessible>
#include <QPointer>

class DocumentReader;

/// What a screen reader knows of a document: the accessible interfaces of its parts, which are not items. They are
/// created on demand and destroyed when the document changes.
class DocumentSpeech
{
public:
    explicit DocumentSpeech(DocumentReader &reader) : m_reader(reader) {}
    ~DocumentSpeech() { forget(); }
    DocumentSpeech(const DocumentSpeech &) = delete;
    DocumentSpeech &operator=(const DocumentSpeech &) = delete;

    /// The interface of every `DocumentReader` comes from here, from the first call on.
    static void install();

    DocumentReader &reader() const { return m_reader; }
    /// The parts of the present document.
    const std::vector<SpokenNode> &tree();
    /// The interface of a part.
    QAccessibleInterface *node(int number);
    /// The interface of the part that has a focus stop, or null.
    QAccessibleInterface *stop(int number);
    /// The rectangle of a part on the screen.
    QRect box(int number);
    /// The document has changed.
    void forget();

private:
    DocumentReader &m_reader;
    std::vector<SpokenNode> m_tree;
    std::vector<QAccessible::Id> m_ids;
};
