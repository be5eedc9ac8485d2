#include "platform/Preferences.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

/// As many values as are asked for, under names that begin alike.
void writeValues(const QString &file, const QString &name, int count)
{
    Preferences preferences(file);
    for (int number = 1; number <= count; ++number) {
        preferences.setText(name + QString::number(number), QString::number(number));
        QCoreApplication::processEvents();
    }
}

/// Two values that grow one after the other, until somebody ends the process.
[[noreturn]] void writeForEver(const QString &file)
{
    Preferences preferences(file);
    for (int number = 1;; ++number) {
        preferences.setText(u"first"_s, QString::number(number));
        preferences.setText(u"second"_s, QString::number(number));
        QCoreApplication::processEvents();
    }
}

} // namespace

/// Another process with preferences: `<file> <name> <count>` writes values and ends, `<file>` alone writes for ever.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 4)
        writeValues(arguments[1], arguments[2], arguments[3].toInt());
    else
        writeForEver(arguments.value(1));
    return 0;
}
