#pragma once

#include "simulator/server/RawServer.h"

#include <QList>

/// A server whose search responses are generated in advance, so that generating them is not part of the measured time.
/// Runs in a separate process.
class RecordedSite
{
public:
    RecordedSite();

    /// The port of a site with three pages of a hundred issues with their history.
    quint16 portOfPages() const { return m_pages.port(); }
    /// The port of a site with one page of 1,000 issues with their history, the longest that the program accepts.
    quint16 portOfLargePage() const { return m_large.port(); }

private:
    RawServer m_pages;
    RawServer m_large;
};
