#pragma once

#include "moveslist/propertybag.h"

#include <QByteArray>

// The "-LB" block in which a form keeps a control instance's properties. All
// numbers are little-endian.
//
//   0   3  "-LB"
//   3   2  block kind, 9
//   5   4  byte count from the marker to the block's end (marker, count, entries)
//   9   4  marker 0xB293
//   13  4  the byte count again
//   17     the entries
//
// An entry: value type (2), key length in characters (2), key hash (4), signed step
// to the next entry's start (4), the key in lower case as UTF-16 without
// terminator, the value, then zero bytes up to a multiple of 4 from the entry's
// start. The last entry's step leads back to the first. Values: Integer 2 bytes,
// Long 4, Single 4, Double 8, Empty none; a Text is a 32-bit character count, the
// UTF-16 characters and a 16-bit zero; Object data is a 32-bit byte count and the
// bytes.
namespace lbblock {

constexpr int16_t BlockKind = 9;
constexpr uint32_t Marker = 0xB293;
constexpr int HeaderSize = 17;

// A block that is cut short or malformed is refused with ListError 321, saying
// what is wrong and where; nothing past the block's end is ever read.
PropertyBag read(const QByteArray& block);
QByteArray write(const PropertyBag& bag);

} // namespace lbblock
