#include "platform/PrivateBus.h"

#include <QFile>

#include <csignal>
#include <sys/prctl.h>

using namespace Qt::StringLiterals;

namespace {

/// The configuration of a session bus without folders for services.
const auto Config =
    uR"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:dir=%1</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)"_s;

} // namespace

PrivateBus::PrivateBus()
{
    QFile config(m_folder.filePath(u"bus.conf"_s));
    if (!config.open(QFile::WriteOnly))
        return;
    config.write(Config.arg(m_folder.path()).toUtf8());
    config.close();
    // Otherwise the daemon of a test that was killed would keep the files that it inherited open.
    m_daemon.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    m_daemon.start(u"dbus-daemon"_s,
                   {u"--config-file"_s, config.fileName(), u"--nofork"_s, u"--print-address"_s});
    if (m_daemon.waitForStarted() && m_daemon.waitForReadyRead())
        m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
}

PrivateBus::~PrivateBus()
{
    for (const QString &name : m_names)
        QDBusConnection::disconnectFromBus(name);
    m_daemon.kill();
    m_daemon.waitForFinished();
}

QDBusConnection PrivateBus::connection(const QString &name)
{
    m_names += name;
    return QDBusConnection::connectToBus(m_address, name);
}
