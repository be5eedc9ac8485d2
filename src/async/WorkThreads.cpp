#include "async/WorkThreads.h"

#include <QThreadPool>

QThreadPool &workThreads()
{
    static QThreadPool pool;
    return pool;
}
