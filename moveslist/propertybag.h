#pragma once

#include "moveslist/anyvalue.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <vector>

// How a stored value is held; no other type reaches a block. Booleans travel as
// Integer, -1 for True.
enum class PropertyType : int16_t {
    Integer = 2,
    Long = 3,
    Single = 4,
    Text = 8,
    Object = 13,
};

struct PropertyEntry {
    QString key; // lower case, as stored
    PropertyType type = PropertyType::Integer;
    AnyValue value;        // numbers and texts
    QByteArray objectData; // Object entries only
    uint32_t hash = 0;
};

// The keyed block a host keeps with a control instance. Keys match without regard
// to case; a key that is missing reads as the default the reader gives.
class PropertyBag {
public:
    const std::vector<PropertyEntry>& entries() const { return m_stored; }
    // Adds an entry as it stands, keeping its hash: what the block reader does.
    void add(PropertyEntry entry);

    const PropertyEntry* find(const QString& key) const;
    AnyValue readProperty(const QString& key, const AnyValue& defaultValue) const;
    QByteArray readObject(const QString& key) const;

    // A value equal to its default is left out, and takes out what was there.
    void writeProperty(const QString& key, PropertyType type, const AnyValue& value,
                       const AnyValue& defaultValue);
    void writeObject(const QString& key, const QByteArray& data);

    // The hash this program gives a key it writes; blocks from elsewhere keep theirs.
    static uint32_t keyHash(const QString& key);

private:
    void put(PropertyEntry entry);
    void remove(const QString& key);

    std::vector<PropertyEntry> m_stored;
};
