#pragma once

#include <gio/gio.h>
#include <memory>

/// Releases an object that GLib returned. Accepts null, because shared pointers call their deleter with null too.
struct GLibRelease
{
    void operator()(void *object) const
    {
        if (object)
            g_object_unref(object);
    }
    void operator()(GError *error) const
    {
        if (error)
            g_error_free(error);
    }
    void operator()(GHashTable *table) const
    {
        if (table)
            g_hash_table_unref(table);
    }
};

template <typename T>
using GLibPointer = std::unique_ptr<T, GLibRelease>;
