#include "platform/bundles/linux/SwapScript.h"

#include "platform/bundles/BundleManifest.h"
#include "platform/bundles/ShellQuoting.h"

#include <QByteArrayList>
#include <QFile>

QByteArray SwapScript::text(qint64 pid, const QString &target, const QString &app)
{
    const QByteArray place = QFile::encodeName(target);
    const QByteArray quotedTarget = shellQuoted(place);
    const QByteArray backup = shellQuoted(place + BackupSuffix);
    // The exchanging program keeps the old bundle here if it has to use two renames and is ended between them.
    const QByteArray aside = shellQuoted(place + BackupSuffix + ".old");
    const QByteArray exchanger = shellQuoted(place + '/' + Exchanger);
    const QByteArray program = shellQuoted(place + '/' + BundleManifest::Program);
    const QByteArray source = shellQuoted(QFile::encodeName(app));
    // The copy is complete on the disk before it takes the place of the old bundle.
    const QByteArrayList lines = {
        "#!/bin/sh",
        "while kill -0 " + QByteArray::number(pid) + " 2>/dev/null; do /bin/sleep 0.2; done",
        "/bin/rm -rf " + backup,
        "if /bin/cp -a " + source + ' ' + backup + " && /bin/sync -f " + backup + " && " +
            exchanger + ' ' + backup + ' ' + quotedTarget + "; then",
        "  /bin/rm -rf " + backup,
        "else",
        "  test -e " + quotedTarget + " || /bin/mv -T " + aside + ' ' + quotedTarget +
            "; /bin/rm -rf " + backup,
        "fi",
        "/bin/sync -f " + quotedTarget + " 2>/dev/null",
        "exec " + program,
    };
    return lines.join('\n');
}
