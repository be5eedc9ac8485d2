#include "support/ComputationLog.h"

#include <QLoggingCategory>

using namespace Qt::StringLiterals;

namespace {

ComputationLog *current = nullptr;

} // namespace

ComputationLog::ComputationLog()
{
    Q_ASSERT(!current);
    current = this;
    QLoggingCategory::setFilterRules(u"velmora.computation.debug=true"_s);
    m_former = qInstallMessageHandler(take);
}

ComputationLog::~ComputationLog()
{
    qInstallMessageHandler(m_former);
    QLoggingCategory::setFilterRules({});
    current = nullptr;
}

void ComputationLog::take(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (qstrcmp(context.category, "velmora.computation") == 0)
        ++current->m_counts[message];
    else if (current->m_former)
        current->m_former(type, context, message);
}
