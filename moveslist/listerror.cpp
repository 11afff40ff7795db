#include "moveslist/listerror.h"

ListError::ListError(int code, const QString& what)
    : std::runtime_error(what.toStdString()), m_code(code)
{}
