#include "moveslist/listerror.h"

ListError::ListError(int code) : std::runtime_error(description(code)), m_code(code) {}

const char* ListError::description(int code)
{
    switch (code) {
    case ListErrorCode::Overflow:
        return "Overflow";
    case ListErrorCode::SubscriptOutOfRange:
        return "Subscript out of range";
    case ListErrorCode::DivisionByZero:
        return "Division by zero";
    case ListErrorCode::TypeMismatch:
        return "Type mismatch";
    case ListErrorCode::ObjectNotSet:
        return "Object variable or With block variable not set";
    case ListErrorCode::InvalidPattern:
        return "Invalid pattern string";
    case ListErrorCode::InvalidFileFormat:
        return "Invalid file format";
    case ListErrorCode::InvalidPropertyValue:
        return "Invalid property value";
    case ListErrorCode::NotAtRunTime:
        return "'Set' not supported at runtime";
    case ListErrorCode::NotAtDesignTime:
        return "'Set' not permitted";
    case ListErrorCode::InvalidPicture:
        return "Invalid picture";
    case ListErrorCode::ImageIndexOutOfBounds:
        return "Index out of bounds";
    default:
        return "";
    }
}
