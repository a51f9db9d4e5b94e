// SPDX-License-Identifier: BSD-3-Clause
#include "NoRuleToConvert.h"
#include "UnitDimensionNotSame.h"
#include "Value_exception.h"

// The out-of-line destructors anchor the exceptions' type information in this library, so that
// a catch in the widget library or the application matches what is thrown here.

namespace Norvane {
namespace Value {

Value_exception::Value_exception(const std::string &what) : std::runtime_error(what) {}
Value_exception::~Value_exception() = default;

NoRuleToConvert::NoRuleToConvert(const std::string &what) : Value_exception(what) {}
NoRuleToConvert::~NoRuleToConvert() = default;

UnitDimensionNotSame::UnitDimensionNotSame(const std::string &what) : Value_exception(what) {}
UnitDimensionNotSame::~UnitDimensionNotSame() = default;

} // namespace Value
} // namespace Norvane
