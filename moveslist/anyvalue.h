#pragma once

#include <QString>

#include <type_traits>
#include <variant>

// An argument or result of a list member that holds a number, a text or nothing at
// all. The empty value is neither 0 nor "": a caller can tell "not found" from 0.
class AnyValue {
public:
    AnyValue() = default;
    template <typename T>
    requires(std::is_arithmetic_v<T> && !std::is_same_v<T, bool>) AnyValue(T number)
        : m_value(static_cast<double>(number))
    {}
    AnyValue(const QString& text) : m_value(text) {}
    AnyValue(const char* text) : m_value(QString::fromUtf8(text)) {}

    bool isEmpty() const { return std::holds_alternative<std::monostate>(m_value); }
    bool isNumber() const { return std::holds_alternative<double>(m_value); }
    bool isText() const { return std::holds_alternative<QString>(m_value); }

    // The lenient reading used for columns and indices: a text gives its leading
    // number, or 0; the empty value gives 0.
    double toNumber() const;
    // The strict reading used where a number is demanded: a text that is not a whole
    // number form is a type mismatch (ListError 13).
    double toNumberStrict() const;
    // Plain form: a number without the leading blank, the empty value as "".
    QString toText() const;

    bool operator==(const AnyValue& other) const = default;

private:
    std::variant<std::monostate, double, QString> m_value;
};
