#pragma once

#include <utility>

/// An object with fields from which other things are made. What is made is brought up to date when the operation that
/// writes the fields is through, once however many fields changed; a write outside any batch is an operation of its own.
class Batched
{
public:
    Batched() = default;
    Batched(const Batched &) = delete;
    Batched &operator=(const Batched &) = delete;

    /// Lives on the stack of a synchronous operation, never across a wait.
    class Batch
    {
    public:
        explicit Batch(Batched &object) : m_object(object) { ++m_object.m_openBatches; }
        ~Batch()
        {
            // Closed only after the flush: what its listeners write is flushed here too.
            while (m_object.m_openBatches == 1 && m_object.m_stale != 0)
                m_object.flush(std::exchange(m_object.m_stale, 0));
            --m_object.m_openBatches;
        }
        Batch(const Batch &) = delete;
        Batch &operator=(const Batch &) = delete;

    private:
        Batched &m_object;
    };

    /// Says what is out of date; flags of the object's own. Only while a batch is open.
    void markStale(unsigned what) { m_stale |= what; }

protected:
    ~Batched() = default;

    /// What is out of date at this moment.
    unsigned stale() const { return m_stale; }
    /// Brings up to date what the flags name.
    virtual void flush(unsigned what) = 0;

private:
    int m_openBatches = 0;
    unsigned m_stale = 0;
};
