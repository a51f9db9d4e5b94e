// SPDX-License-Identifier: BSD-3-Clause
#ifndef NORVANE_VALUE_UNITS_LIST_H
#define NORVANE_VALUE_UNITS_LIST_H

namespace Norvane {
namespace Value {

// The units a record's pairs can name. The numbers are stored in units property strings on forms
// and in the engine, so an enumerator never changes its number; new units are added at the end.
enum Units_list : int {
    none = 0,               // a plain number
    hertz = 1,              // Hz
    second = 2,             // s
    metre = 3,              // m
    volt = 4,               // V
    ampere = 5,             // A
    watt = 6,               // W
    ohm = 7,                // Ω (U+2126)
    percent = 8,            // %
    degree = 9,             // ° (plane angle)
    radian = 10,            // rad
    bit = 11,               // bit
    byte = 12,              // B, 8 bit
    decibel = 13,           // dB, a power ratio
    decibel_milliwatt = 14, // dBm, power relative to 1 mW
    decibel_watt = 15,      // dBW, power relative to 1 W
    decibel_microvolt = 16, // dBµV, voltage relative to 1 µV
    decibel_carrier = 17,   // dBc, relative to a carrier the record does not name: converts to nothing else
    parts_per_million = 18, // ppm
    kibibyte = 19,          // KiB, 1024 B
    mebibyte = 20,          // MiB
    gibibyte = 21,          // GiB
    tebibyte = 22,          // TiB
    pebibyte = 23,          // PiB
    exbibyte = 24,          // EiB
    zebibyte = 25,          // ZiB
    yobibyte = 26,          // YiB, 1024^8 B
    units_list_end          // one past the last unit; not a unit
};

} // namespace Value
} // namespace Norvane

#endif // NORVANE_VALUE_UNITS_LIST_H
