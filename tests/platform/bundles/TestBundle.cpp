#include "platform/bundles/TestBundle.h"

#include "platform/bundles/BundleSignature.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto ReadByAll =
    QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;
constexpr auto RunByAll = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;

bool isProgram(const QByteArray &path)
{
    return path.startsWith("bin/");
}

} // namespace

void writeFile(const QString &path, const QByteArray &content, bool isExecutable)
{
    const QDir root = QDir::root();
    QString folder = QFileInfo(path).path();
    QStringList missing;
    for (; !QFileInfo::exists(folder); folder = QFileInfo(folder).path())
        missing.prepend(folder);
    for (const QString &each : missing) {
        ASSERT_TRUE(root.mkdir(each));
        QFile::setPermissions(each, ReadByAll | RunByAll);
    }
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(content), content.size());
    file.close();
    ASSERT_TRUE(file.setPermissions(isExecutable ? ReadByAll | RunByAll : ReadByAll));
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TestBundle::TestBundle()
{
    manifest.identifier = u"fr.orvantis.Velmora"_s;
    manifest.version = u"1.5"_s;
    manifest.build = u"122"_s;
    files = {
        {"bin/velmora", "#!/bin/sh\n"}, {"lib/libone.so", "one"}, {"qml/two words.qml", "two"}};
}

QMap<QByteArray, QByteArray> TestBundle::content() const
{
    QMap<QByteArray, QByteArray> all = files;
    BundleManifest full = manifest;
    full.files.clear();
    for (auto file = files.begin(); file != files.end(); ++file)
        full.files.append({file.key(), isProgram(file.key()), file->size(),
                           QCryptographicHash::hash(*file, QCryptographicHash::Sha256).toHex()});
    if (!seed.isEmpty() && !full.key)
        full.key = BundleSignature::publicKey(seed);
    all.insert(BundleManifest::Name, full.text());
    if (!seed.isEmpty())
        all.insert(BundleManifest::SignatureName, BundleSignature::sign(full.text(), seed));
    return all;
}

void TestBundle::write(const QString &folder) const
{
    const auto all = content();
    for (auto file = all.begin(); file != all.end(); ++file)
        writeFile(folder + u'/' + QString::fromUtf8(file.key()), *file, isProgram(file.key()));
}
