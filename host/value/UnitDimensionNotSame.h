// SPDX-License-Identifier: BSD-3-Clause
#ifndef NORVANE_VALUE_UNITDIMENSIONNOTSAME_H
#define NORVANE_VALUE_UNITDIMENSIONNOTSAME_H

#include "Value_exception.h"

namespace Norvane {
namespace Value {

// A conversion between quantities of different dimension (hertz to volt, dBm to dBµV).
class NORVANEHOST_EXPORT UnitDimensionNotSame : public Value_exception
{
public:
    explicit UnitDimensionNotSame(const std::string &what);
    ~UnitDimensionNotSame() override;
};

} // namespace Value
} // namespace Norvane

#endif // NORVANE_VALUE_UNITDIMENSIONNOTSAME_H
