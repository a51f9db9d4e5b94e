// SPDX-License-Identifier: BSD-3-Clause
// Cost of the units operations that every meter update and numeric display pays. Each figure is
// read against the two references measured in the same run (a multiplication and
// QString::number), so the ratios hold from one machine to another; `./kx bench` prints them.

#include "Units_list.h"
#include "ValueHelper.h"
#include "ValueObjectHelper.h"

#include <QtTest>

using namespace Norvane::Value;

namespace {

Units units(const char *text)
{
    return ValueObjectHelper::convertToUnits(QString::fromLatin1(text));
}

} // namespace

class bench_units : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void reference_multiply();
    void reference_number();

    void convertToUnits();
    void toString();
    void isValidUnits();
    void getUnitString();
    void convertValue_prefix();
    void convertValue_composite();
    void convertValue_level();
    void convertValue_long();
    void bestFitUnit_one();
    void bestFitUnit_two();
    void meterUpdate();

private:
    Units m_Hz, m_kHz, m_dBm, m_W, m_kbitPerSecond, m_bytePerSecond;
    volatile double m_value = 1234.5678;
    volatile double m_factor = 1e-3;
    volatile long m_count = 123456;
    double m_sink = 0.0;
};

void bench_units::initTestCase()
{
    m_Hz = units("0,0,1:1;0:0;0:0;0:0;0:0");
    m_kHz = units("0,3,1:1;0:0;0:0;0:0;0:0");
    m_dBm = units("0,0,14:1;0:0;0:0;0:0;0:0");
    m_W = units("0,0,6:1;0:0;0:0;0:0;0:0");
    m_kbitPerSecond = units("0,3,11:1;2:-1;0:0;0:0;0:0");
    m_bytePerSecond = units("0,0,12:1;2:-1;0:0;0:0;0:0");
}

void bench_units::reference_multiply()
{
    QBENCHMARK {
        m_sink = m_value * m_factor;
    }
}

void bench_units::reference_number()
{
    QBENCHMARK {
        const QString text = QString::number(m_value);
        m_sink = text.size();
    }
}

void bench_units::convertToUnits()
{
    const QString text = QStringLiteral("0,3,4:1;3:-1;0:0;0:0;0:0");
    QBENCHMARK {
        const Units u = ValueObjectHelper::convertToUnits(text);
        m_sink = u.prefix;
    }
}

void bench_units::toString()
{
    QBENCHMARK {
        const QString text = ValueObjectHelper::toString(m_kHz);
        m_sink = text.size();
    }
}

void bench_units::isValidUnits()
{
    const QString text = QStringLiteral("0,3,4:1;3:-1;0:0;0:0;0:0");
    QBENCHMARK {
        m_sink = ValueHelper::isValidUnits(text);
    }
}

void bench_units::getUnitString()
{
    QBENCHMARK {
        const QString text = ValueObjectHelper::getUnitString(m_kHz);
        m_sink = text.size();
    }
}

void bench_units::convertValue_prefix()
{
    QBENCHMARK {
        m_sink = ValueObjectHelper::convertValue(double(m_value), m_Hz, m_kHz);
    }
}

void bench_units::convertValue_composite()
{
    QBENCHMARK {
        m_sink = ValueObjectHelper::convertValue(double(m_value), m_kbitPerSecond, m_bytePerSecond);
    }
}

void bench_units::convertValue_level()
{
    QBENCHMARK {
        m_sink = ValueObjectHelper::convertValue(double(m_value), m_dBm, m_W);
    }
}

void bench_units::convertValue_long()
{
    QBENCHMARK {
        m_sink = ValueObjectHelper::convertValue(long(m_count), m_Hz, m_kHz);
    }
}

void bench_units::bestFitUnit_one()
{
    const Value_object<double> v(m_value, m_Hz, 0.0, 0.0);
    QBENCHMARK {
        m_sink = ValueObjectHelper::bestFitUnit(v).prefix;
    }
}

void bench_units::bestFitUnit_two()
{
    const Value_object<double> lower(-2500.0, m_Hz, 0.0, 0.0);
    const Value_object<double> upper(m_value, m_kHz, 0.0, 0.0);
    QBENCHMARK {
        m_sink = ValueObjectHelper::bestFitUnit(lower, upper).prefix;
    }
}

// What a meter does with one reading: read the reading's units, choose the display unit from the
// limits, convert the limits and the value, and fetch the unit text.
void bench_units::meterUpdate()
{
    const QString reading = QStringLiteral("0,0,1:1;0:0;0:0;0:0;0:0");
    QBENCHMARK {
        const Units u = ValueObjectHelper::convertToUnits(reading);
        Value_object<double> value(m_value, u, 0.0, 0.0);
        Value_object<double> lower(0.0, u, 0.0, 0.0);
        Value_object<double> upper(5000.0, u, 0.0, 0.0);
        const Units display = ValueObjectHelper::bestFitUnit(lower, upper);
        lower.Convert_to(display);
        upper.Convert_to(display);
        value.Convert_to(display);
        const QString text = ValueObjectHelper::getUnitString(display);
        m_sink = value.Get_value() + text.size();
    }
}

QTEST_APPLESS_MAIN(bench_units)
#include "bench_units.moc"
