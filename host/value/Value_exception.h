// SPDX-License-Identifier: BSD-3-Clause
#ifndef NORVANE_VALUE_VALUE_EXCEPTION_H
#define NORVANE_VALUE_VALUE_EXCEPTION_H

#include "norvanehost_export.h"

#include <stdexcept>
#include <string>

namespace Norvane {
namespace Value {

// Base of the value library's exceptions; thrown itself when a unit has no text or a value lies
// outside what a conversion can produce (a level of a negative power, a long out of range).
class NORVANEHOST_EXPORT Value_exception : public std::runtime_error
{
public:
    explicit Value_exception(const std::string &what);
    ~Value_exception() override;
};

} // namespace Value
} // namespace Norvane

#endif // NORVANE_VALUE_VALUE_EXCEPTION_H
