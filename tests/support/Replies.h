#pragma once

#include <QString>
#include <initializer_list>

namespace quorvel::test
{

/// One entry of a gateway's reply.
struct Entry {
    const char* object;
    const char* key;
    QString value;

    Entry(const char* object, const char* key, const char* value)
        : object(object), key(key), value(QString::fromUtf8(value))
    {
    }
    Entry(const char* object, const char* key, const QString& value)
        : object(object), key(key), value(value)
    {
    }
};

/// A reply of a gateway with dialect 1.0.0: an element per entry.
QString reply100(std::initializer_list<Entry> entries);

/// A reply of a gateway with dialect 1.0.1: a key and a value per entry.
QString reply101(std::initializer_list<Entry> entries);

} // namespace quorvel::test
