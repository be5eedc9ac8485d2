#include "state/PendingWrites.h"

#include <QPointer>

PendingWrites::Token PendingWrites::begin()
{
    ++m_count;
    Q_EMIT countChanged();
    return {this, [counter = QPointer(this)](const void *) {
                if (counter)
                    counter->end();
            }};
}

void PendingWrites::end()
{
    --m_count;
    Q_EMIT countChanged();
}
