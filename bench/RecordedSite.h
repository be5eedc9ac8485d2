#pragma once

#include "simulator/RawServer.h"

#include <QList>

/// A server whose answers to searches were made before anyone asks, so that making them costs a benchmark nothing. Runs
/// in a process of its own.
class RecordedSite
{
public:
    RecordedSite();

    /// Three pages of a hundred issues with their history.
    quint16 portOfPages() const { return m_pages.port(); }
    /// One page of 5,000 issues with their history, more than anyone asks for.
    quint16 portOfLargePage() const { return m_large.port(); }

private:
    RawServer m_pages;
    RawServer m_large;
};
