#include "moveslist/propertybag.h"

#include <algorithm>

namespace {

bool sameKey(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

} // namespace

void PropertyBag::add(PropertyEntry entry)
{
    m_stored.push_back(std::move(entry));
}

const PropertyEntry* PropertyBag::find(const QString& key) const
{
    const auto found = std::find_if(m_stored.begin(), m_stored.end(),
                                    [&](const PropertyEntry& e) { return sameKey(e.key, key); });
    return found == m_stored.end() ? nullptr : &*found;
}

AnyValue PropertyBag::readProperty(const QString& key, const AnyValue& defaultValue) const
{
    const PropertyEntry* entry = find(key);
    if (!entry || entry->type == PropertyType::Object)
        return defaultValue;
    return entry->value;
}

QByteArray PropertyBag::readObject(const QString& key) const
{
    const PropertyEntry* entry = find(key);
    return entry && entry->type == PropertyType::Object ? entry->objectData : QByteArray();
}

void PropertyBag::writeProperty(const QString& key, PropertyType type, const AnyValue& value,
                                const AnyValue& defaultValue)
{
    if (value == defaultValue) {
        remove(key);
        return;
    }
    put({key.toLower(), type, value, {}, keyHash(key)});
}

void PropertyBag::writeObject(const QString& key, const QByteArray& data)
{
    if (data.isEmpty()) {
        remove(key);
        return;
    }
    put({key.toLower(), PropertyType::Object, {}, data, keyHash(key)});
}

// FNV-1a over the lower-case key's UTF-16 units.
uint32_t PropertyBag::keyHash(const QString& key)
{
    uint32_t hash = 0x811C9DC5u;
    for (const QChar c : key.toLower()) {
        const char16_t unit = c.unicode();
        for (const auto byte : {unit & 0xFF, unit >> 8}) {
            hash ^= static_cast<uint32_t>(byte);
            hash *= 0x01000193u;
        }
    }
    return hash;
}

void PropertyBag::put(PropertyEntry entry)
{
    const auto found = std::find_if(m_stored.begin(), m_stored.end(), [&](const PropertyEntry& e) {
        return sameKey(e.key, entry.key);
    });
    if (found == m_stored.end())
        m_stored.push_back(std::move(entry));
    else
        *found = std::move(entry);
}

void PropertyBag::remove(const QString& key)
{
    std::erase_if(m_stored, [&](const PropertyEntry& e) { return sameKey(e.key, key); });
}
