// SPDX-License-Identifier: BSD-3-Clause
// libFuzzer harness for units property strings and conversions.
//
// Input: UTF-8 text "first|second" (the second defaults to the first), optionally followed by a
// NUL byte and up to 16 raw bytes: a double and a long to convert. Any crash, sanitizer report or
// failed CHECK is a fault; libFuzzer keeps the input that caused it.

#include "NoRuleToConvert.h"
#include "UnitDimensionNotSame.h"
#include "Units_library.h"
#include "Units_list.h"
#include "ValueHelper.h"
#include "ValueObjectHelper.h"
#include "Value_exception.h"

#include <QString>
#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

using namespace Norvane::Value;

#define CHECK(condition)                                                                       \
    do {                                                                                       \
        if (!(condition)) {                                                                    \
            std::fprintf(stderr, "CHECK failed at line %d: %s\n", __LINE__, #condition);       \
            std::abort();                                                                      \
        }                                                                                      \
    } while (0)

namespace {

void discard(QtMsgType, const QMessageLogContext &, const QString &) {}

bool near(double actual, double expected, double relative, double absolute)
{
    if (actual == expected)
        return true;
    return std::fabs(actual - expected) <= std::max(absolute, relative * std::fabs(expected));
}

// What isValidUnits should answer for a record's text, worked out from the record's fields.
bool expectedValid(const Units &u)
{
    if (u.prefix < pico || u.prefix > peta || u.prefix % 3 != 0)
        return false;
    for (const Unit_pair &pair : u.baseUnits) {
        if (!Units_library::Is_known_unit(pair.unit) || pair.power < -9 || pair.power > 9)
            return false;
    }
    return !(Units_library::Is_logarithmic(u) && u.prefix != 0);
}

bool plausiblePrefix(const Units &u)
{
    return u.prefix >= -24 && u.prefix <= 24;
}

Units checkText(const QString &text)
{
    const Units parsed = ValueHelper::convertToUnits(text);
    CHECK(ValueObjectHelper::convertToUnits(text) == parsed);

    const QString written = ValueHelper::toString(parsed);
    CHECK(ValueHelper::convertToUnits(written) == parsed);
    CHECK(ValueHelper::isValidUnits(written) == expectedValid(parsed));

    if (ValueHelper::isValidUnits(text)) {
        CHECK(written == text);
        try {
            ValueHelper::displayText(parsed);
            Units_library::Get_unit_string(parsed, Units_library::Plain_text);
        } catch (const Value_exception &) {
            CHECK(!"a valid string has a unit text");
        }
    }
    ValueObjectHelper::getUnitString(parsed);
    ValueObjectHelper::printUnit(parsed);
    return parsed;
}

void checkBestFit(const Units &u, double value)
{
    const Units fit = ValueObjectHelper::bestFitUnit(Value_object<double>(value, u, 0.0, 0.0));
    CHECK(fit.baseUnits == u.baseUnits && fit.flag == u.flag);
    CHECK(fit.prefix >= pico && fit.prefix <= peta && fit.prefix % 3 == 0);
    if (Units_library::Is_logarithmic(u))
        CHECK(fit.prefix == no_prefix);
}

void checkConversions(const Units &from, const Units &to, double value, long count)
{
    const bool can = ValueObjectHelper::unitsCanConvert(from, to);
    CHECK(can == ValueObjectHelper::unitsCanConvert(to, from));
    if (ValueObjectHelper::unitBaseMatches(from, to))
        CHECK(can);

    const double converted = ValueObjectHelper::convertValue(value, from, to);
    if (!can)
        CHECK(converted == value || (std::isnan(converted) && std::isnan(value)));
    const double rounded = ValueObjectHelper::convertValue(count, from, to);
    CHECK(!std::isfinite(rounded) || rounded == std::floor(rounded));

    // There and back again, where the numbers stay comfortably inside the double range.
    const double magnitude = std::fabs(value);
    if (can && plausiblePrefix(from) && plausiblePrefix(to) && (value == 0.0 || (magnitude > 1e-30 && magnitude < 1e30))) {
        try {
            const double there = Units_library::Convert(value, from, to);
            const double size = std::fabs(there);
            if (std::isfinite(there) && ((value == 0.0 && there == 0.0) || (size > 1e-250 && size < 1e250))) {
                const double back = Units_library::Convert(there, to, from);
                const bool level = Units_library::Is_logarithmic(from) || Units_library::Is_logarithmic(to);
                CHECK(near(back, value, 1e-9, level ? 1e-9 : 0.0));
            }
        } catch (const Value_exception &) {
            // a level of a negative quantity
        }
    }

    Value_object<long> integer(count, from, 0, 0);
    try {
        integer.Convert_to(to);
        if (ValueObjectHelper::unitBaseMatches(from, to) && from.prefix == to.prefix)
            CHECK(integer.Get_value() == count);
    } catch (const Value_exception &) {
    }

    try {
        ValueObjectHelper::bestFitUnit(Value_object<double>(value, from, 0.0, 0.0),
                                       Value_object<double>(double(count), to, 0.0, 0.0));
    } catch (const NoRuleToConvert &) {
        CHECK(!can);
    } catch (const UnitDimensionNotSame &) {
        CHECK(!can);
    } catch (const Value_exception &) {
        // a level of a negative quantity
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    qInstallMessageHandler(discard);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const uint8_t *end = data + size;
    const uint8_t *nul = static_cast<const uint8_t *>(std::memchr(data, 0, size));
    const uint8_t *textEnd = nul ? nul : end;

    double value = 1234.5;
    long count = -65;
    if (nul) {
        const uint8_t *numbers = nul + 1;
        if (end - numbers >= 8) {
            std::memcpy(&value, numbers, 8);
            numbers += 8;
        }
        if (end - numbers >= 8)
            std::memcpy(&count, numbers, 8);
    }

    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), int(textEnd - data));
    const int bar = text.indexOf(QLatin1Char('|'));
    const QString first = bar < 0 ? text : text.left(bar);
    const QString second = bar < 0 ? text : text.mid(bar + 1);

    const Units a = checkText(first);
    const Units b = checkText(second);
    checkBestFit(a, value);
    checkConversions(a, b, value, count);
    checkConversions(b, a, value, count);
    return 0;
}
