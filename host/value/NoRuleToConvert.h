// SPDX-License-Identifier: BSD-3-Clause
#ifndef NORVANE_VALUE_NORULETOCONVERT_H
#define NORVANE_VALUE_NORULETOCONVERT_H

#include "Value_exception.h"

namespace Norvane {
namespace Value {

// Two units of the same dimension between which no conversion exists (dBc and dB), or a record
// naming a unit the library does not know.
class NORVANEHOST_EXPORT NoRuleToConvert : public Value_exception
{
public:
    explicit NoRuleToConvert(const std::string &what);
    ~NoRuleToConvert() override;
};

} // namespace Value
} // namespace Norvane

#endif // NORVANE_VALUE_NORULETOCONVERT_H
