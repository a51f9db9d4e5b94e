// SPDX-License-Identifier: BSD-3-Clause
#ifndef NORVANE_VALUE_UNIT_TUPLE_H
#define NORVANE_VALUE_UNIT_TUPLE_H

#include "Unit_pair.h"

#include <array>

namespace Norvane {
namespace Value {

// The five factors of a units record. V/m is {volt, 1}, {metre, -1} and three {none, 0}.
using Unit_tuple = std::array<Unit_pair, 5>;

} // namespace Value
} // namespace Norvane

#endif // NORVANE_VALUE_UNIT_TUPLE_H
