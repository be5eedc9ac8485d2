#include "jira/AttachmentCache.h"

#include <QDir>
#include <QSet>
#include <QStandardPaths>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Attachment named(const QString &name, const QString &id = u"10"_s)
{
    Attachment result;
    result.id = id;
    result.filename = name;
    return result;
}

QString nameOf(const QString &name)
{
    return AttachmentCache::fileName(named(name));
}

TEST(AttachmentCache, StandsAmongTheUsersCaches)
{
    EXPECT_EQ(AttachmentCache::systemFolder(),
              QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                  u"/Velmora/attachments"_s);
}

TEST(AttachmentCache, EachAttachmentHasAFolderOfItsOwn)
{
    EXPECT_EQ(AttachmentCache::file(u"/c"_s, named(u"a.txt"_s, u"10"_s)), u"/c/10/a.txt"_s);
    EXPECT_EQ(AttachmentCache::file(u"/c"_s, named(u"a.txt"_s, u"11"_s)), u"/c/11/a.txt"_s);
}

QString siteFolder(const QString &site)
{
    return AttachmentCache::siteFolder(u"/c"_s, QUrl(site));
}

TEST(AttachmentCache, EachSiteHasAFolderOfItsOwn)
{
    EXPECT_EQ(siteFolder(u"https://exemple.atlassian.net"_s), u"/c/exemple.atlassian.net"_s);
    EXPECT_EQ(siteFolder(u"https://EXEMPLE.atlassian.net:443/x"_s),
              siteFolder(u"https://exemple.atlassian.net"_s));
    const QStringList sites = {u"https://jira.fr"_s,      u"http://jira.fr"_s,
                               u"https://jira.fr:8443"_s, u"http://jira.fr:8443"_s,
                               u"https://sub.jira.fr"_s,  u"https://[::1]"_s,
                               u"http://localhost"_s,     u"https://jira_fr"_s};
    QSet<QString> folders;
    for (const QString &site : sites) {
        folders.insert(siteFolder(site));
        EXPECT_EQ(QDir::cleanPath(siteFolder(site)), siteFolder(site));
        EXPECT_EQ(siteFolder(site).count(u'/'), 2);
    }
    EXPECT_EQ(folders.size(), sites.size());
}

TEST(AttachmentCache, ANameWithASlashIsStoredWithADash)
{
    EXPECT_EQ(nameOf(u"a/b:c.txt"_s), u"a-b-c.txt"_s);
}

TEST(AttachmentCache, AnEmptyNameIsStoredAsFichier)
{
    EXPECT_EQ(nameOf({}), u"fichier"_s);
}

TEST(AttachmentCache, ANameOfAFolderIsNoName)
{
    EXPECT_EQ(nameOf(u"."_s), u"fichier"_s);
    EXPECT_EQ(nameOf(u".."_s), u"fichier"_s);
    EXPECT_EQ(nameOf(u"..."_s), u"..."_s);
    EXPECT_EQ(nameOf(u"../../x"_s), u"..-..-x"_s);
}

TEST(AttachmentCache, WhatCannotBeSeenIsADash)
{
    EXPECT_EQ(nameOf(QString(u"a"_s + QChar(0) + u"\n\x7F"_s + u"b"_s)), u"a---b"_s);
    // The right-to-left override, which makes "fdp.exe" appear as "exe.pdf".
    EXPECT_EQ(nameOf(u"\u202Efdp.exe"_s), u"-fdp.exe"_s);
}

TEST(AttachmentCache, OtherNamesStayAsTheyAre)
{
    EXPECT_EQ(nameOf(u" Capture d'écran 🎉 (2) \\ \"x\".PNG"_s),
              u" Capture d'écran 🎉 (2) \\ \"x\".PNG"_s);
}

TEST(AttachmentCache, AVeryLongNameIsCutBeforeItsEnding)
{
    for (const QString &letter : {u"a"_s, u"é"_s, u"🎉"_s}) {
        const QString name = nameOf(letter.repeated(300) + u".pdf"_s);
        EXPECT_LE(name.toUtf8().size(), 200);
        EXPECT_GE(name.toUtf8().size(), 190);
        EXPECT_TRUE(name.endsWith(letter + u".pdf"_s)) << name.toStdString();
    }
    EXPECT_LE(nameOf(u"."_s + u"x"_s.repeated(300)).toUtf8().size(), 200);
}

TEST(AttachmentCache, NoIdentifierLeadsOutOfItsFolder)
{
    QSet<QString> folders;
    const QStringList ids = {u".."_s,   u"."_s,
                             QString(), u"../../etc"_s,
                             u"a/b"_s,  u"/"_s,
                             u"10\n"_s, QString(u"10"_s + QChar(0)),
                             u"é"_s,    u"x"_s.repeated(300)};
    for (const QString &id : ids) {
        const QString folder = AttachmentCache::folder(u"/c"_s, named(u"a"_s, id));
        EXPECT_EQ(QDir::cleanPath(folder), folder);
        EXPECT_TRUE(folder.startsWith(u"/c/"_s));
        EXPECT_EQ(folder.count(u'/'), 2) << folder.toStdString();
        EXPECT_LT(folder.size(), 100);
        folders.insert(folder);
    }
    EXPECT_EQ(folders.size(), ids.size());
}

} // namespace
