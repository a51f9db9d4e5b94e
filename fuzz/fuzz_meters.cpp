// SPDX-License-Identifier: BSD-3-Clause
// libFuzzer harness for the meters' setValue(QVariant): whatever the engine sends, a meter bar and a
// numeric meter reading neither crash, nor read past an end, nor show a number that is not one.
//
// Input: a QVariant as QDataStream (Qt 5.15) writes it. Only the types an engine's reading list is
// made of are taken (numbers, booleans, texts, byte arrays, lists, maps, nested up to 24 deep), and
// only inputs whose counts fit the bytes that follow: Qt reserves room for a declared count before
// it reads the elements, which would turn a five-byte input into a request for gigabytes. The sum
// of the bytes chooses the reading type and the unit index (-1 to 2) both meters are set to.
// Any crash, sanitizer report or failed CHECK is a fault; libFuzzer keeps the input that caused it.

#include "MeterBar_Bar.h"
#include "MeterBar_Scale.h"
#include "QKXMeterBar.h"
#include "QKXNumericMeterReading.h"

#include <QApplication>
#include <QDataStream>
#include <QLineEdit>
#include <QVariant>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#define CHECK(condition)                                                                       \
    do {                                                                                       \
        if (!(condition)) {                                                                    \
            std::fprintf(stderr, "CHECK failed at line %d: %s\n", __LINE__, #condition);       \
            std::abort();                                                                      \
        }                                                                                      \
    } while (0)

namespace {

void discard(QtMsgType, const QMessageLogContext &, const QString &) {}

// Walks a serialized QVariant without building it: true when it holds only the types above and
// every count fits the bytes left.
class Scan
{
public:
    Scan(const uint8_t *data, size_t size) : at(data), end(data + size) {}

    bool variant(int depth)
    {
        quint32 type = 0;
        quint8 isNull = 0;
        if (depth > 24 || !number(type) || !take(1, &isNull)) {
            return false;
        }
        switch (type) {
        case QMetaType::UnknownType:
            return true;
        case QMetaType::Bool:
            return take(1);
        case QMetaType::Int:
        case QMetaType::UInt:
            return take(4);
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
        case QMetaType::Double:
        case QMetaType::Float:   // written in double precision
            return take(8);
        case QMetaType::QString:
        case QMetaType::QByteArray:
            return bytes(type == QMetaType::QString);
        case QMetaType::QStringList:
            return elements(4, [this](int) { return bytes(true); });
        case QMetaType::QVariantList:
            return elements(5, [this, depth](int) { return variant(depth + 1); });
        case QMetaType::QVariantMap:
            return elements(9, [this, depth](int) { return bytes(true) && variant(depth + 1); });
        default:
            return false;
        }
    }

private:
    bool take(size_t n, quint8 *first = nullptr)
    {
        if (size_t(end - at) < n) {
            return false;
        }
        if (first) {
            *first = *at;
        }
        at += n;
        return true;
    }
    bool number(quint32 &value)
    {
        if (end - at < 4) {
            return false;
        }
        value = quint32(at[0]) << 24 | quint32(at[1]) << 16 | quint32(at[2]) << 8 | quint32(at[3]);
        at += 4;
        return true;
    }
    // A QString (UTF-16, an even count) or QByteArray: a byte count, 0xffffffff for null, and the bytes.
    bool bytes(bool utf16)
    {
        quint32 count = 0;
        if (!number(count)) {
            return false;
        }
        if (count == 0xffffffffu) {
            return true;
        }
        return (!utf16 || count % 2 == 0) && take(count);
    }
    // A count, then that many elements of at least `smallest` bytes each.
    template <typename Element>
    bool elements(size_t smallest, Element element)
    {
        quint32 count = 0;
        if (!number(count) || count > size_t(end - at) / smallest) {
            return false;
        }
        for (quint32 i = 0; i < count; ++i) {
            if (!element(int(i))) {
                return false;
            }
        }
        return true;
    }

    const uint8_t *at;
    const uint8_t *end;
};

struct Meters
{
    Meters()
    {
        window.resize(400, 300);
        bar = new QKXMeterBar(&window);
        bar->setGeometry(0, 0, 200, 300);
        bar->setUnitListString(QStringLiteral("0,0,6:1;0:0;0:0;0:0;0:0|0,-3,6:1;0:0;0:0;0:0;0:0"));
        reading = new QKXNumericMeterReading(&window);
        reading->setGeometry(200, 0, 200, 60);
        reading->setBaseUnit(QStringLiteral("0,0,6:1;0:0;0:0;0:0;0:0"));
        reading->setUnitListString(QStringLiteral("0,0,6:1;0:0;0:0;0:0;0:0|0,-3,6:1;0:0;0:0;0:0;0:0"));
        window.show();
        drawn = bar->findChild<MeterBar_Bar *>();
        display = reading->findChild<QLineEdit *>();
    }
    QWidget window;
    QKXMeterBar *bar;
    QKXNumericMeterReading *reading;
    MeterBar_Bar *drawn;
    QLineEdit *display;
};

// Both live until the process ends: destroying the application at exit, with widgets left behind by
// libFuzzer's exit path, crashes in Qt's own clean-up.
QApplication *application = nullptr;
Meters *meters = nullptr;

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(discard);
    application = new QApplication(*argc, *argv);
    meters = new Meters;
    QApplication::processEvents();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (!Scan(data, size).variant(0)) {
        return 0;
    }
    QDataStream in(QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size)));
    in.setVersion(QDataStream::Qt_5_15);
    QVariant readingList;
    in >> readingList;

    unsigned sum = 0;
    for (size_t i = 0; i < size; ++i) {
        sum += data[i];
    }
    const int readingType = int(sum % 4) - 1;
    const int unitIndex = int((sum / 4) % 4) - 1;
    meters->bar->setReadingTypeIndex(readingType);
    meters->bar->setUnitIndex(unitIndex);
    meters->reading->setReadingTypeIndex(readingType);
    meters->reading->setUnitIndex(unitIndex);

    meters->bar->setValue(readingList);
    meters->reading->setValue(readingList);

    // Nothing that is not a finite number reaches the bar or the field.
    CHECK(std::isfinite(meters->drawn->value()) && std::isfinite(meters->drawn->lower())
          && std::isfinite(meters->drawn->upper()));
    const QString text = meters->display->text();
    CHECK(!text.contains(QLatin1String("nan")) && !text.contains(QLatin1String("inf")));
    for (MeterBar_Scale *scale : meters->bar->findChildren<MeterBar_Scale *>()) {
        CHECK(!scale->text().contains(QLatin1String("nan")) && !scale->text().contains(QLatin1String("inf")));
    }

    // Now and then the screen is drawn, with whatever the bar holds.
    static unsigned inputs = 0;
    if (++inputs % 64 == 0) {
        QApplication::processEvents();
    }
    return 0;
}
