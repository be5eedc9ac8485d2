#pragma once

#include <utility>

/// An object with fields from which other values are derived. The derived values are updated once, at the end of the
/// operation that writes the fields, however many fields changed. A write outside any batch is an operation by itself.
class Batched
{
public:
    Batched() = default;
    Batched(const Batched &) = delete;
    Batched &operator=(const Batched &) = delete;

    /// A batch of writes. It is a local variable of a synchronous operation, and must not exist across a `co_await`.
    class Batch
    {
    public:
        explicit Batch(Batched &object) : m_object(object) { ++m_object.m_openBatches; }
        ~Batch()
        {
            // The batch is closed only after the flush, so that writes by observers are flushed here too.
            while (m_object.m_openBatches == 1 && m_object.m_stale != 0)
                m_object.flush(std::exchange(m_object.m_stale, 0));
            --m_object.m_openBatches;
        }
        Batch(const Batch &) = delete;
        Batch &operator=(const Batch &) = delete;

    private:
        Batched &m_object;
    };

    /// Marks derived values as out of date. The object defines the flags. Must be called while a batch is open.
    void markStale(unsigned what) { m_stale |= what; }

protected:
    ~Batched() = default;

    /// The values that are out of date.
    unsigned stale() const { return m_stale; }
    /// Updates the values that the flags name.
    virtual void flush(unsigned what) = 0;

private:
    int m_openBatches = 0;
    unsigned m_stale = 0;
};
