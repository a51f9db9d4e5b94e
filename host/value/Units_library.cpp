// SPDX-License-Identifier: BSD-3-Clause
#include "Units_library.h"

#include "NoRuleToConvert.h"
#include "UnitDimensionNotSame.h"
#include "Units_list.h"
#include "Value_exception.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Norvane {
namespace Value {

namespace {

// The base quantities a unit's dimension is counted over. Information and plane angle are kept
// apart from plain numbers so that a bit never converts into a percent or a radian into a ratio.
enum Dimension { Time, Length, Mass, Current, Information, Angle, DimensionCount };

using Exponents = std::array<signed char, DimensionCount>;

struct Unit_definition
{
    const char *symbol; // UTF-8 display text
    const char *plain;  // ASCII text
    Exponents dimension;
    // A linear unit is mantissa * 10^decade coherent base units. A level counts, in steps of
    // 1/logFactor decades, from a reference that is mantissa * 10^decade base units and has the
    // level's dimension.
    double mantissa;
    int decade;
    int logFactor;      // 0 for a linear unit, 10 for a power level, 20 for a field level
    bool hasReference;  // false for a level against something the record does not name (dBc)
};

//                           s  m kg  A bit rad
constexpr Exponents Plain = {0, 0, 0, 0, 0, 0};
constexpr Exponents Per_second = {-1, 0, 0, 0, 0, 0};
constexpr Exponents Seconds = {1, 0, 0, 0, 0, 0};
constexpr Exponents Metres = {0, 1, 0, 0, 0, 0};
constexpr Exponents Volts = {-3, 2, 1, -1, 0, 0};
constexpr Exponents Amperes = {0, 0, 0, 1, 0, 0};
constexpr Exponents Watts = {-3, 2, 1, 0, 0, 0};
constexpr Exponents Ohms = {-3, 2, 1, -2, 0, 0};
constexpr Exponents Bits = {0, 0, 0, 0, 1, 0};
constexpr Exponents Radians = {0, 0, 0, 0, 0, 1};

constexpr double Byte = 8.0; // in bits
constexpr double Degree = 3.14159265358979323846 / 180.0; // in radians
constexpr double Kibi = 1024.0;

// Indexed by Units_list enumerator.
constexpr Unit_definition Definitions[] = {
    {"", "", Plain, 1.0, 0, 0, true},                                       // none
    {"Hz", "Hz", Per_second, 1.0, 0, 0, true},                              // hertz
    {"s", "s", Seconds, 1.0, 0, 0, true},                                   // second
    {"m", "m", Metres, 1.0, 0, 0, true},                                    // metre
    {"V", "V", Volts, 1.0, 0, 0, true},                                     // volt
    {"A", "A", Amperes, 1.0, 0, 0, true},                                   // ampere
    {"W", "W", Watts, 1.0, 0, 0, true},                                     // watt
    {"\u2126", "Ohm", Ohms, 1.0, 0, 0, true},                               // ohm
    {"%", "%", Plain, 1.0, -2, 0, true},                                    // percent
    {"\u00b0", "deg", Radians, Degree, 0, 0, true},                          // degree
    {"rad", "rad", Radians, 1.0, 0, 0, true},                               // radian
    {"bit", "bit", Bits, 1.0, 0, 0, true},                                  // bit
    {"B", "B", Bits, Byte, 0, 0, true},                                     // byte
    {"dB", "dB", Plain, 1.0, 0, 10, true},                                  // decibel
    {"dBm", "dBm", Watts, 1.0, -3, 10, true},                               // decibel_milliwatt
    {"dBW", "dBW", Watts, 1.0, 0, 10, true},                                // decibel_watt
    {"dB\u00b5V", "dBuV", Volts, 1.0, -6, 20, true},                        // decibel_microvolt
    {"dBc", "dBc", Plain, 1.0, 0, 10, false},                               // decibel_carrier
    {"ppm", "ppm", Plain, 1.0, -6, 0, true},                                // parts_per_million
    {"KiB", "KiB", Bits, Byte * Kibi, 0, 0, true},                          // kibibyte
    {"MiB", "MiB", Bits, Byte * Kibi * Kibi, 0, 0, true},                   // mebibyte
    {"GiB", "GiB", Bits, Byte * Kibi * Kibi * Kibi, 0, 0, true},            // gibibyte
    {"TiB", "TiB", Bits, Byte * Kibi * Kibi * Kibi * Kibi, 0, 0, true},     // tebibyte
    {"PiB", "PiB", Bits, Byte * 1125899906842624.0, 0, 0, true},            // pebibyte, 1024^5
    {"EiB", "EiB", Bits, Byte * 1152921504606846976.0, 0, 0, true},         // exbibyte, 1024^6
    {"ZiB", "ZiB", Bits, Byte * 1180591620717411303424.0, 0, 0, true},      // zebibyte, 1024^7
    {"YiB", "YiB", Bits, Byte * 1208925819614629174706176.0, 0, 0, true},   // yobibyte, 1024^8
};
static_assert(sizeof(Definitions) / sizeof(Definitions[0]) == units_list_end,
              "one definition per unit, in enumerator order");

const Unit_definition *definition(int unit)
{
    return unit >= 0 && unit < units_list_end ? &Definitions[unit] : nullptr;
}

// Prefix texts from pico to peta, indexed by (prefix + 12) / 3.
constexpr const char *Prefix_symbols[] = {"p", "n", "\u00b5", "m", "", "k", "M", "G", "T", "P"};
constexpr const char *Prefix_plain[] = {"p", "n", "u", "m", "", "k", "M", "G", "T", "P"};

// Powers of ten that doubles hold exactly.
constexpr double Exact_powers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                   1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr long long Last_exact_power = 22;

// 10^23 to 10^44 as the sum of the nearest double and the (exactly representable) rest, so that
// steps such as pico to peta still round only once.
struct Split_power
{
    double high;
    double low;
};
constexpr Split_power Split_powers[] = {
    {0x1.52d02c7e14af6p+76, 0x1.0000000000000p+23},   // 1e23
    {0x1.a784379d99db4p+79, 0x1.0000000000000p+24},   // 1e24
    {0x1.08b2a2c280291p+83, -0x1.b000000000000p+29},  // 1e25
    {0x1.4adf4b7320335p+86, -0x1.1c00000000000p+32},  // 1e26
    {0x1.9d971e4fe8402p+89, -0x1.8c00000000000p+33},  // 1e27
    {0x1.027e72f1f1281p+93, 0x1.8440000000000p+38},   // 1e28
    {0x1.431e0fae6d721p+96, 0x1.f2a8000000000p+42},   // 1e29
    {0x1.93e5939a08ceap+99, -0x1.215c000000000p+44},  // 1e30
    {0x1.f8def8808b024p+102, 0x1.4b26800000000p+48},  // 1e31
    {0x1.3b8b5b5056e17p+106, -0x1.3107f00000000p+52}, // 1e32
    {0x1.8a6e32246c99cp+109, 0x1.82b6140000000p+55},  // 1e33
    {0x1.ed09bead87c03p+112, 0x1.e363990000000p+58},  // 1e34
    {0x1.3426172c74d82p+116, 0x1.5c3c7f4000000p+61},  // 1e35
    {0x1.812f9cf7920e3p+119, -0x1.265a307800000p+65}, // 1e36
    {0x1.e17b84357691bp+122, 0x1.900f436a00000p+68},  // 1e37
    {0x1.2ced32a16a1b1p+126, 0x1.e826288900000p+70},  // 1e38
    {0x1.78287f49c4a1dp+129, 0x1.988becaad0000p+75},  // 1e39
    {0x1.d6329f1c35ca5p+132, -0x1.0151182a7c000p+78}, // 1e40
    {0x1.25dfa371a19e7p+136, -0x1.069578d46c000p+79}, // 1e41
    {0x1.6f578c4e0a061p+139, -0x1.29075ae130e00p+85}, // 1e42
    {0x1.cb2d6f618c879p+142, -0x1.cd24c665f4600p+86}, // 1e43
    {0x1.1efc659cf7d4cp+146, -0x1.c80dbeffee2f0p+92}, // 1e44
};
constexpr long long Last_split_power = Last_exact_power + 22;

// A units record reduced to one unit: its dimension and size, and whether it is a level.
struct Resolved
{
    enum Kind { Linear, Level, NoRule };
    Kind kind = Linear;
    std::array<long long, DimensionCount> dimension{};
    double mantissa = 1.0;
    long long decade = 0;
    int logFactor = 0;
};

Resolved resolve(const Units &units)
{
    Resolved r;
    for (const Unit_pair &pair : units.baseUnits) {
        const Unit_definition *def = definition(pair.unit);
        if (!def)
            throw NoRuleToConvert("no rule for unknown unit " + std::to_string(pair.unit));
        const long long power = pair.power;
        if (power == 0 || pair.unit == none)
            continue;
        if (def->logFactor != 0) {
            // A level converts only as a single factor to the first power (dBm, dBm/Hz); dBm² or
            // dBm·dB have the dimension of their linear counterpart but no rule.
            if (power == 1 && r.kind == Resolved::Linear && def->hasReference) {
                r.kind = Resolved::Level;
                r.logFactor = def->logFactor;
            } else {
                r.kind = Resolved::NoRule;
            }
        }
        for (int d = 0; d < DimensionCount; ++d)
            r.dimension[d] += power * def->dimension[d];
        if (def->mantissa != 1.0) {
            if (power == 1)
                r.mantissa *= def->mantissa;
            else if (power == -1)
                r.mantissa /= def->mantissa;
            else
                r.mantissa *= std::pow(def->mantissa, static_cast<double>(power));
        }
        r.decade += power * def->decade;
    }
    return r;
}

void appendPower(std::string &text, long long power, int type)
{
    if (type == Units_library::Plain_text) {
        text += '^';
        text += std::to_string(power);
        return;
    }
    static const char *const Superscripts[] = {"\u2070", "\u00b9", "\u00b2", "\u00b3", "\u2074",
                                               "\u2075", "\u2076", "\u2077", "\u2078", "\u2079"};
    if (power < 0)
        text += "\u207b";
    const std::string digits = std::to_string(power < 0 ? -power : power);
    for (char c : digits)
        text += Superscripts[c - '0'];
}

std::string factorText(const Unit_definition &def, long long power, int type)
{
    std::string text = type == Units_library::Plain_text ? def.plain : def.symbol;
    if (power != 1)
        appendPower(text, power, type);
    return text;
}

} // namespace

std::string Units_library::Get_unit_string(const Units &units, int type)
{
    if (type != Symbol_text && type != Plain_text)
        throw Value_exception("no unit text of type " + std::to_string(type));
    const int prefix = units.prefix;
    if (prefix < pico || prefix > peta || prefix % 3 != 0)
        throw Value_exception("no text for the prefix 10^" + std::to_string(prefix));

    // Factors with a positive power go above the line, the others below it:
    // "V/m", "m/s²", "W/(Hz·m²)"; with nothing above the line the powers stay negative: "s⁻¹".
    const char *const joiner = type == Plain_text ? "*" : "\u00b7";
    std::string above, below, inverse;
    int belowCount = 0;
    for (const Unit_pair &pair : units.baseUnits) {
        const Unit_definition *def = definition(pair.unit);
        if (!def)
            throw Value_exception("no text for unknown unit " + std::to_string(pair.unit));
        if (pair.power == 0 || pair.unit == none)
            continue;
        if (def->logFactor != 0 && prefix != 0)
            throw Value_exception("a level takes no prefix");
        const long long power = pair.power;
        if (power > 0) {
            if (!above.empty())
                above += joiner;
            above += factorText(*def, power, type);
        } else {
            if (!below.empty())
                below += joiner;
            below += factorText(*def, -power, type);
            if (!inverse.empty())
                inverse += joiner;
            inverse += factorText(*def, power, type);
            ++belowCount;
        }
    }

    std::string text = type == Plain_text ? Prefix_plain[(prefix + 12) / 3] : Prefix_symbols[(prefix + 12) / 3];
    if (above.empty())
        text += inverse;
    else if (belowCount == 0)
        text += above;
    else if (belowCount == 1)
        text += above + "/" + below;
    else
        text += above + "/(" + below + ")";
    return text;
}

double Units_library::Scale_by_power_of_ten(double value, long long exponent)
{
    if (exponent == 0)
        return value;
    const long long magnitude = exponent < 0 ? -exponent : exponent;
    if (magnitude <= Last_exact_power)
        return exponent > 0 ? value * Exact_powers[magnitude] : value / Exact_powers[magnitude];
    if (magnitude <= Last_split_power) {
        const Split_power &p = Split_powers[magnitude - Last_exact_power - 1];
        if (!std::isfinite(value) || value == 0.0)
            return exponent > 0 ? value * p.high : value / p.high;
        if (exponent > 0) {
            const double product = value * p.high;
            const double error = std::fma(value, p.high, -product);
            return product + (error + value * p.low);
        }
        const double quotient = value / p.high;
        const double remainder = std::fma(-quotient, p.high, value) - quotient * p.low;
        return quotient + remainder / p.high;
    }
    // Beyond 10^44 no unit an instrument shows is involved; finish in steps, and stop once any
    // finite value has overflowed or vanished.
    long long rest = std::min<long long>(magnitude, 800);
    double result = value;
    while (rest > 0) {
        const long long step = std::min(rest, Last_exact_power);
        result = exponent > 0 ? result * Exact_powers[step] : result / Exact_powers[step];
        rest -= step;
    }
    return result;
}

double Units_library::Convert(double value, const Units &from, const Units &to)
{
    const long long prefixStep = static_cast<long long>(from.prefix) - to.prefix;
    if (from.baseUnits == to.baseUnits)
        return Scale_by_power_of_ten(value, prefixStep);

    const Resolved a = resolve(from);
    const Resolved b = resolve(to);
    if (a.dimension != b.dimension)
        throw UnitDimensionNotSame("the units measure different quantities");
    if (a.kind == Resolved::NoRule || b.kind == Resolved::NoRule)
        throw NoRuleToConvert("no rule converts between these units");

    // Sizes (or references) of the two units relative to each other: ratio * 10^decades.
    const double ratio = a.mantissa / b.mantissa;
    const long long decades = a.decade - b.decade;

    if (a.kind == Resolved::Linear && b.kind == Resolved::Linear) {
        const double scaled = ratio == 1.0 ? value : value * ratio;
        return Scale_by_power_of_ten(scaled, decades + prefixStep);
    }

    if (a.kind == Resolved::Level && b.kind == Resolved::Linear) {
        // The decades go into the exponent rather than onto the result, so 10 dBm is 10 mW exactly.
        const double level = Scale_by_power_of_ten(value, from.prefix);
        const double exponent = level / a.logFactor + static_cast<double>(decades - to.prefix);
        const double linear = std::pow(10.0, exponent);
        return ratio == 1.0 ? linear : linear * ratio;
    }

    if (a.kind == Resolved::Linear) {
        const double linear = ratio == 1.0 ? value : value * ratio;
        if (linear < 0.0)
            throw Value_exception("a negative quantity has no level");
        const double level = b.logFactor * (std::log10(linear) + static_cast<double>(decades + from.prefix));
        return Scale_by_power_of_ten(level, -static_cast<long long>(to.prefix));
    }

    // Level to level of the same dimension: a shift by the references' ratio.
    const double level = Scale_by_power_of_ten(value, from.prefix);
    const double offset = static_cast<double>(decades) + (ratio == 1.0 ? 0.0 : std::log10(ratio));
    const double shifted = a.logFactor == b.logFactor ? level + b.logFactor * offset
                                                      : b.logFactor * (level / a.logFactor + offset);
    return Scale_by_power_of_ten(shifted, -static_cast<long long>(to.prefix));
}

void Units_library::Convert(double &value, double &plusError, double &minusError, const Units &from,
                            const Units &to)
{
    if (from.baseUnits == to.baseUnits) {
        const long long step = static_cast<long long>(from.prefix) - to.prefix;
        value = Scale_by_power_of_ten(value, step);
        plusError = Scale_by_power_of_ten(plusError, step);
        minusError = Scale_by_power_of_ten(minusError, step);
        return;
    }
    const double converted = Convert(value, from, to);
    const auto bound = [&](double end) {
        try {
            return std::fabs(Convert(end, from, to) - converted);
        } catch (const Value_exception &) {
            return std::numeric_limits<double>::infinity();
        }
    };
    plusError = plusError == 0.0 ? 0.0 : bound(value + plusError);
    minusError = minusError == 0.0 ? 0.0 : bound(value - minusError);
    value = converted;
}

bool Units_library::Is_logarithmic(const Units &units)
{
    return std::any_of(units.baseUnits.begin(), units.baseUnits.end(), [](const Unit_pair &pair) {
        const Unit_definition *def = definition(pair.unit);
        return def && def->logFactor != 0 && pair.power != 0;
    });
}

bool Units_library::Is_known_unit(int unit)
{
    return definition(unit) != nullptr;
}

} // namespace Value
} // namespace Norvane
