#pragma once

#include <QString>

#include <stdexcept>

// The one failure the list passes to its caller. The codes are the platform's usual
// numbers, so that a host can tell them apart as it would on the original desktop:
//   6      Overflow: a row number or the scroll bar's maximum no longer fits 16 bits
//          (the 32,769th item), or a number read for a 16- or 32-bit setting is too big.
//   9      Subscript out of range: a record short of the column a paint needs.
//   11     Division by zero: rows measured or drawn with a row height or pixel size of 0.
//   13     Type mismatch: a text where a number is needed.
//   91     Object variable not set: DrawStyle 1 with no image list.
//   93     Invalid pattern string: a Find pattern with a [ never closed or a range
//          whose bounds stand in reverse, [f-a]. The list is left as it was.
//   321    Invalid file format: a damaged "-LB" property block.
//   380    Invalid property value: a RowHeight below 1.
//   382    'Set' not supported at run time: the ListCount setter.
//   387    'Set' not permitted: ListCount or ListIndex written at design time.
//   481    Invalid picture: a row picture that cannot be painted even as a plain copy.
//   35600  Index out of bounds: the image list has no picture under that index.
//
// what() is the code's standard description, and nothing of the list's own: a host
// reports it as it would any failure of the platform.
class ListError : public std::runtime_error {
public:
    explicit ListError(int code);

    int code() const { return m_code; }
    // "Invalid property value" for 380, and so on; empty for a code not listed here.
    static const char* description(int code);

private:
    int m_code;
};

namespace ListErrorCode {
constexpr int Overflow = 6;
constexpr int SubscriptOutOfRange = 9;
constexpr int DivisionByZero = 11;
constexpr int TypeMismatch = 13;
constexpr int ObjectNotSet = 91;
constexpr int InvalidPattern = 93;
constexpr int InvalidFileFormat = 321;
constexpr int InvalidPropertyValue = 380;
constexpr int NotAtRunTime = 382;
constexpr int NotAtDesignTime = 387;
constexpr int InvalidPicture = 481;
constexpr int ImageIndexOutOfBounds = 35600;
} // namespace ListErrorCode
