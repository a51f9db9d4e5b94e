// SPDX-License-Identifier: BSD-3-Clause
// The one rule by which typed text becomes a number, in each of its forms.
#include "KXNumberConversion_p.h"

#include <QtTest>

class tst_KXNumberConversion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readNumber_data();
    void readNumber();
    void truncatedSaturates_data();
    void truncatedSaturates();
};

Q_DECLARE_METATYPE(kxnumber::NumberForm)

void tst_KXNumberConversion::readNumber_data()
{
    using kxnumber::NumberForm;
    QTest::addColumn<QString>("text");
    QTest::addColumn<NumberForm>("form");
    QTest::addColumn<int>("radix");
    QTest::addColumn<bool>("read");
    QTest::addColumn<double>("value");

    // A field's integer attribute: its base, and nothing beyond int.
    QTest::newRow("int hex") << "ff" << NumberForm::Integer << 16 << true << 255.0;
    QTest::newRow("int binary") << "-101" << NumberForm::Integer << 2 << true << -5.0;
    QTest::newRow("int with a point") << "1.5" << NumberForm::Integer << 10 << false << 0.0;
    QTest::newRow("int beyond the range") << "2147483648" << NumberForm::Integer << 10 << false << 0.0;
    QTest::newRow("int digit outside the base") << "19" << NumberForm::Integer << 8 << false << 0.0;
    // The pad's whole numbers in other bases take 64 bits.
    QTest::newRow("whole 40 bits") << "ffffffffff" << NumberForm::WholeNumber << 16 << true << 1099511627775.0;
    QTest::newRow("whole empty") << "" << NumberForm::WholeNumber << 16 << false << 0.0;
    // Real numbers: finite only.
    QTest::newRow("real") << "2.5e3" << NumberForm::Real << 16 << true << 2500.0;
    QTest::newRow("real blanks") << " -0.25 " << NumberForm::Real << 10 << true << -0.25;
    QTest::newRow("real nan") << "nan" << NumberForm::Real << 10 << false << 0.0;
    QTest::newRow("real inf") << "-inf" << NumberForm::Real << 10 << false << 0.0;
    QTest::newRow("real overflow") << "1e400" << NumberForm::Real << 10 << false << 0.0;
    QTest::newRow("real dotted") << "10.0.0.1" << NumberForm::Real << 10 << false << 0.0;
}

void tst_KXNumberConversion::readNumber()
{
    QFETCH(QString, text);
    QFETCH(kxnumber::NumberForm, form);
    QFETCH(int, radix);
    QFETCH(bool, read);
    QFETCH(double, value);
    double result = -1.0;
    QCOMPARE(kxnumber::readNumber(text, form, radix, &result), read);
    QCOMPARE(result, value);
}

void tst_KXNumberConversion::truncatedSaturates_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("expected");
    QTest::newRow("toward zero") << -2.9 << -2;
    QTest::newRow("nan") << double(NAN) << 0;
    QTest::newRow("above int") << 3e9 << std::numeric_limits<int>::max();
    QTest::newRow("below int") << -3e9 << std::numeric_limits<int>::min();
    QTest::newRow("infinity") << double(INFINITY) << std::numeric_limits<int>::max();
}

void tst_KXNumberConversion::truncatedSaturates()
{
    QFETCH(double, value);
    QFETCH(int, expected);
    QCOMPARE(kxnumber::truncated(value), expected);
    QCOMPARE(kxnumber::fitsInt(value), std::isfinite(value) && std::abs(value) < 2147483648.0);
}

QTEST_APPLESS_MAIN(tst_KXNumberConversion)
#include "tst_KXNumberConversion.moc"
