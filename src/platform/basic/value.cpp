#include "platform/basic/value.h"

#include "platform/basic/convert.h"

namespace basic {

bool Value::isNumber() const { return kind() == Kind::Boolean || kind() == Kind::Integer || kind() == Kind::Double; }

std::string Value::textOr(std::string_view ifNull) const { return isNull() ? std::string(ifNull) : CStr(*this); }

std::int64_t Value::longOr(std::int64_t ifNull) const { return isNull() ? ifNull : CLng(*this); }

double Value::doubleOr(double ifNull) const { return isNull() ? ifNull : CDbl(*this); }

bool Value::boolOr(bool ifNull) const { return isNull() ? ifNull : CBool(*this); }

Date Value::dateOr(Date ifNull) const { return isNull() ? ifNull : CDate(*this); }

std::optional<Date> Value::date() const {
    if (isNull()) return std::nullopt;
    return CDate(*this);
}

} // namespace basic
