// SPDX-License-Identifier: BSD-3-Clause
#include "ValueHelper.h"

#include "NoRuleToConvert.h"
#include "UnitDimensionNotSame.h"
#include "Units_library.h"
#include "Units_list.h"

#include <QDebug>
#include <QStringView>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

using namespace Norvane::Value;

namespace {

// Splits like QString::split with empty parts kept, without allocating: stores the first N parts
// and answers how many there are.
template <std::size_t N>
int splitView(QStringView text, QChar separator, std::array<QStringView, N> &parts)
{
    int count = 0;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        if (i == text.size() || text[i] == separator) {
            if (count < static_cast<int>(N))
                parts[count] = text.mid(start, i - start);
            ++count;
            start = i + 1;
        }
    }
    return count;
}

// A decimal integer as QString::toInt reads it, 0 when it is not one (or does not fit an int).
int toIntOrZero(QStringView text)
{
    // Plain digits with an optional minus, too short to overflow, are read here: the locale-aware
    // reader costs some 30 ns a field. Anything else (blanks, a plus, long numbers) goes to it.
    const qsizetype start = !text.isEmpty() && text[0] == QLatin1Char('-') ? 1 : 0;
    if (text.size() > start && text.size() - start <= 9) {
        int n = 0;
        qsizetype i = start;
        for (; i < text.size(); ++i) {
            const char16_t c = text[i].unicode();
            if (c < u'0' || c > u'9')
                break;
            n = n * 10 + (c - u'0');
        }
        if (i == text.size())
            return start ? -n : n;
    }
    bool ok = false;
    const int value = text.toInt(&ok, 10);
    return ok ? value : 0;
}

// An integer exactly as QString::number writes it (at most three digits, which covers every
// field of a valid string), within [low, high].
bool readCanonicalInt(QStringView text, int low, int high, int &value)
{
    const bool negative = !text.isEmpty() && text[0] == QLatin1Char('-');
    const QStringView digits = negative ? text.mid(1) : text;
    if (digits.isEmpty() || digits.size() > 3)
        return false;
    if (digits[0] == QLatin1Char('0') && (digits.size() > 1 || negative))
        return false;
    int n = 0;
    for (QChar c : digits) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return false;
        n = n * 10 + (c.unicode() - '0');
    }
    value = negative ? -n : n;
    return value >= low && value <= high;
}

char *writeInt(char *out, int value)
{
    return std::to_chars(out, out + 12, value).ptr;
}

// The prefix for a value in base units: the decade e of |x| (the integer part of its decimal
// logarithm) rounded down to a multiple of three, one step lower when e is negative, within
// pico to peta. The decade comes from comparisons with the powers of ten rather than from log10,
// which rounds values just below a power (999.9999999999999 has log10 3.0).
int prefixForMagnitude(double x)
{
    static constexpr double Powers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6, 1e7,
                                        1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    static constexpr double Inverse_powers[] = {1e0, 1e-1, 1e-2, 1e-3, 1e-4,  1e-5,  1e-6,
                                                1e-7, 1e-8, 1e-9, 1e-10, 1e-11, 1e-12};
    const double a = std::fabs(x);
    if (std::isnan(a))
        return 0;
    if (a >= 1.0) {
        if (a >= Powers[15])
            return peta;
        int e = 0;
        while (a >= Powers[e + 1])
            ++e;
        return e / 3 * 3;
    }
    // Below one the decade is -k for 10^-(k+1) < a <= 10^-k.
    if (a <= Inverse_powers[12])
        return pico;
    int k = 0;
    while (a <= Inverse_powers[k + 1])
        ++k;
    return k == 0 ? 0 : (-k / 3 - 1) * 3;
}

// Characters of the decimal text of x truncated to an integer, the minus sign included. A value
// that is not finite counts as longer than any other, so its companion chooses.
int integerDigits(double x)
{
    if (!std::isfinite(x))
        return std::numeric_limits<int>::max();
    const double t = std::trunc(x);
    const double magnitude = std::fabs(t);
    int digits = 1;
    if (magnitude < 1e18) {
        for (long long n = static_cast<long long>(magnitude); n >= 10; n /= 10)
            ++digits;
    } else {
        digits = static_cast<int>(std::floor(std::log10(magnitude))) + 1;
    }
    return t < 0.0 ? digits + 1 : digits;
}

// Half up, exactly: floor(r + 0.5) would round 0.49999999999999994 up to 1 and 2^52 + 1 to an
// even neighbour, because the addition itself rounds.
double roundHalfUp(double r)
{
    if (!std::isfinite(r))
        return r;
    const double whole = std::floor(r);
    return r - whole >= 0.5 ? whole + 1.0 : whole;
}

void describe(const Units &u, const QString &text)
{
    qDebug() << "------------------\n";
    qDebug() << text << "\n------------------";
    qDebug() << u.flag << "\n" << static_cast<int>(u.prefix);
    for (const Unit_pair &pair : u.baseUnits)
        qDebug() << pair.unit << " ^ " << pair.power;
    qDebug() << "------------------\n";
}

} // namespace

Units ValueHelper::newUnits(bool flag, const SI_units &prefix, Unit_tuple *tuple)
{
    Units units;
    units.flag = flag;
    units.prefix = prefix;
    if (tuple)
        units.baseUnits = *tuple;
    return units;
}

bool ValueHelper::unitBaseMatches(const Units &a, const Units &b)
{
    return a.baseUnits == b.baseUnits;
}

bool ValueHelper::unitsCanConvert(const Units &from, const Units &to)
{
    try {
        Value_object<double> v(1.0, from, 0.0, 0.0);
        v.Convert_to(to);
        return true;
    } catch (const NoRuleToConvert &) {
        return false;
    } catch (const UnitDimensionNotSame &) {
        return false;
    }
}

double ValueHelper::convertValue(double value, const Units &from, const Units &to)
{
    try {
        return Value_object<double>(value, from, 0.0, 0.0).Convert_to(to).Get_value();
    } catch (...) {
        return value;
    }
}

double ValueHelper::convertValue(long value, const Units &from, const Units &to)
{
    // The nearest double to the long, which is also what its decimal text reads as.
    return roundHalfUp(convertValue(static_cast<double>(value), from, to));
}

Units ValueHelper::bestFitUnit(const Value_object<double> &v)
{
    Units base = v.Get_base_unit(v.Get_unit());
    Value_object<double> inBase = v;
    inBase.Convert_to(base);
    // A level is a logarithm: a decimal prefix on it ("kdBm") means nothing.
    base.prefix = Units_library::Is_logarithmic(base) ? no_prefix
                                                      : static_cast<SI_units>(prefixForMagnitude(inBase.Get_value()));
    return base;
}

Units ValueHelper::bestFitUnit(const Value_object<double> &a, const Value_object<double> &b)
{
    if (a.Get_value() == 0.0)
        return bestFitUnit(b);
    if (b.Get_value() == 0.0)
        return bestFitUnit(a);
    const Units base = a.Get_base_unit(a.Get_unit());
    Value_object<double> aInBase = a;
    Value_object<double> bInBase = b;
    aInBase.Convert_to(base);
    bInBase.Convert_to(base);
    return integerDigits(aInBase.Get_value()) >= integerDigits(bInBase.Get_value()) ? bestFitUnit(b)
                                                                                    : bestFitUnit(a);
}

QString ValueHelper::displayText(const Units &u)
{
    // Meters ask for the text of the same few records with every reading; the texts of the last
    // records seen are kept, per thread, in a small table indexed by a hash of the record.
    struct Remembered
    {
        Units units;
        QString text;
        bool used = false;
    };
    thread_local std::array<Remembered, 64> remembered;
    std::size_t hash = static_cast<std::size_t>(u.prefix) * 31u + (u.flag ? 1u : 0u);
    for (const Unit_pair &pair : u.baseUnits)
        hash = hash * 131u + static_cast<std::size_t>(pair.unit) * 7u + static_cast<std::size_t>(pair.power);
    Remembered &slot = remembered[hash % remembered.size()];
    if (slot.used && slot.units == u)
        return slot.text;

    const QString text = QString::fromStdString(Units_library::Get_unit_string(u, Units_library::Symbol_text));
    QString shown = text;
    if (!text.contains(QChar(0x2126))) { // the ohm sign: shown as the library writes it
        static const char *const Binary_prefixes[][2] = {{"Ki", "K"}, {"Mi", "M"}, {"Gi", "G"}, {"Ti", "T"},
                                                         {"Pi", "P"}, {"Ei", "E"}, {"Zi", "Z"}, {"Yi", "Y"}};
        for (const auto &binary : Binary_prefixes) {
            if (shown.startsWith(QLatin1String(binary[0])))
                shown.replace(0, 2, QLatin1String(binary[1]));
        }
    }
    slot.units = u;
    slot.text = shown;
    slot.used = true;
    return shown;
}

QString ValueHelper::getUnitString(const Units &u)
{
    try {
        return displayText(u);
    } catch (const Value_exception &) {
        qDebug() << "UserInterface - ValueHelper: Failed to get unit string, Base Unit probably not initialized properly.";
        return QString();
    }
}

QString ValueHelper::toString(const Units &u)
{
    // 11 integers of at most 11 characters and 10 separators.
    char text[136];
    char *out = text;
    *out++ = u.flag ? '1' : '0';
    *out++ = ',';
    out = writeInt(out, u.prefix);
    *out++ = ',';
    for (std::size_t i = 0; i < u.baseUnits.size(); ++i) {
        if (i > 0)
            *out++ = ';';
        out = writeInt(out, u.baseUnits[i].unit);
        *out++ = ':';
        out = writeInt(out, u.baseUnits[i].power);
    }
    return QString::fromLatin1(text, static_cast<int>(out - text));
}

Units ValueHelper::convertToUnits(const QString &s)
{
    std::array<QStringView, 3> parts;
    const int partCount = splitView(QStringView(s), QLatin1Char(','), parts);
    if (partCount != 3)
        qDebug() << "UserInterface - Malformed Units property string. -" << s;

    const bool flag = parts[0].size() == 1 && parts[0][0] == QLatin1Char('1');
    const SI_units prefix = static_cast<SI_units>(partCount >= 2 ? toIntOrZero(parts[1]) : 0);

    // A string without a third part has no pairs at all, which is reported like too few.
    std::array<QStringView, 5> entries;
    const int entryCount = partCount >= 3 ? splitView(parts[2], QLatin1Char(';'), entries) : 0;
    if (entryCount != 5)
        qDebug() << "UserInterface - Malformed Units property string (Base Unit Portion). -" << s;

    Unit_tuple pairs{};
    for (int i = 0; i < std::min(entryCount, 5); ++i) {
        std::array<QStringView, 2> fields;
        if (splitView(entries[i], QLatin1Char(':'), fields) == 2)
            pairs[i] = {toIntOrZero(fields[0]), toIntOrZero(fields[1])};
    }
    return newUnits(flag, prefix, &pairs);
}

bool ValueHelper::isValidUnits(const QString &s)
{
    std::array<QStringView, 3> parts;
    if (splitView(QStringView(s), QLatin1Char(','), parts) != 3)
        return false;
    if (parts[0] != QLatin1String("0") && parts[0] != QLatin1String("1"))
        return false;
    int prefix = 0;
    if (!readCanonicalInt(parts[1], pico, peta, prefix))
        return false;
    std::array<QStringView, 5> entries;
    if (splitView(parts[2], QLatin1Char(';'), entries) != 5)
        return false;
    Unit_tuple pairs{};
    for (std::size_t i = 0; i < entries.size(); ++i) {
        std::array<QStringView, 2> fields;
        if (splitView(entries[i], QLatin1Char(':'), fields) != 2
            || !readCanonicalInt(fields[0], 0, units_list_end - 1, pairs[i].unit)
            || !readCanonicalInt(fields[1], -9, 9, pairs[i].power))
            return false;
    }
    // Whatever else the library cannot name (a prefix that is no multiple of three, "kdBm").
    try {
        displayText(newUnits(parts[0] == QLatin1String("1"), static_cast<SI_units>(prefix), &pairs));
    } catch (const Value_exception &) {
        return false;
    }
    return true;
}

void ValueHelper::printUnit(const Units &u)
{
    describe(u, getUnitString(u));
}

void ValueHelper::printUnit(const Value_object<long> &v)
{
    printUnit(v.Get_unit());
}

void ValueHelper::printUnit(const Value_object<double> &v)
{
    printUnit(v.Get_unit());
}
