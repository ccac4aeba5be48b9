#pragma once

#include "platform/basic/error.h"
#include "platform/basic/error_numbers.h"
#include "platform/basic/value.h"

namespace jet {

using basic::Date;
using basic::Error;
using basic::ErrorNumber;
using basic::raise;
using basic::Value;

} // namespace jet
