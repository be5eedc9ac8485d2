#include "demo/DemoWiring.h"

#include "richtext/ADFNodes.h"

using namespace Qt::StringLiterals;

namespace {

const QString issueKey = u"SUP-41"_s;

/// A media node; `name` and `value` are the attribute that refers to the attachment.
ADFNode media(const QString &name, const QString &value, const DemoSeed::NewID &newID)
{
    ADFNode node = ADF::plain(u"media");
    node.attrs = ADFAttributes{
        {u"id"_s, newID()}, {u"type"_s, u"file"_s}, {u"collection"_s, u""_s}, {name, value}};
    return node;
}

/// The body is absent only in a comment that nobody has written.
void showInside(Comment &comment, const Attachment &attachment, const DemoSeed::NewID &newID)
{
    if (!comment.body)
        return;
    QList<ADFNode> content = ADF::children(*comment.body);
    content.append(
        ADF::container(u"mediaGroup", {media(u"velmoraAttachmentID"_s, attachment.id, newID)}));
    comment.body->content = content;
}

void showAtStart(ADFNode &description, const Attachment &attachment, const DemoSeed::NewID &newID)
{
    ADFNode picture = ADF::container(u"mediaSingle", {media(u"alt"_s, attachment.filename, newID)});
    picture.attrs = ADFAttributes{{u"layout"_s, u"center"_s}};
    const QList<ADFNode> start{
        ADF::container(u"paragraph", {ADF::text(u"Capture envoyée par la cliente :"_s)}), picture};
    description.content = start + ADF::children(description);
}

void showInDescription(DemoSite &site, const Attachment &attachment, const DemoSeed::NewID &newID)
{
    const auto found = site.store.find(issueKey);
    if (found == site.store.end() || !(*found)->description)
        return;
    Issue issue = **found;
    showAtStart(*issue.description, attachment, newID);
    *found = issue;
}

} // namespace

void DemoWiring::attach(DemoSite &site, const QHash<QString, QList<Attachment>> &files,
                        const DemoSeed::NewID &newID)
{
    site.files = files;
    const QList<Attachment> attachments = files.value(issueKey);
    if (attachments.isEmpty())
        return;
    if (const auto thread = site.threads.find(issueKey); thread != site.threads.end()) {
        if (!thread->isEmpty())
            showInside(thread->first(), attachments.first(), newID);
        if (thread->size() > 1)
            (*thread)[1].attachmentIDs = {attachments.last().id};
    }
    showInDescription(site, attachments.first(), newID);
}
