#pragma once

#include <QStringList>
#include <QUrl>

/// The address of a site that does not exist. Its name is longer than the 255 bytes that a name may have, so the system's
/// resolver refuses it without asking a server: the result does not depend on the network, and no thread of the resolver
/// is still at work when the test program ends (the leak check would take the memory of such a thread for lost).
inline QUrl unknownHostUrl()
{
    using namespace Qt::StringLiterals;
    return QUrl(u"http://%1.invalid"_s.arg(QStringList(5, QString(60, u'a')).join(u'.')));
}
