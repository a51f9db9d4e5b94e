// SPDX-License-Identifier: BSD-3-Clause
// libFuzzer harness for the plots' trace intake: setTrace(type, topicName, data).
//
// Input: a QDataStream (version Qt 5.15) holding a byte that picks the trace type, a byte that picks
// the topic, a byte that picks how the plots draw (lines or dots, fixed or following axes), and a
// serialized QVariant, the trace data. Of the QVariant format, the kinds of value the engine
// publishes are read (numbers, texts, booleans, byte arrays, lists, string lists, invalid); counts
// are checked against the bytes left and lists nest at most eight deep. Anything else ends the input.
//
// The data goes to a plot manager and to the three widgets of a constellation display, whose
// canvases are then drawn. Checked: a basic or complex trace whose lists hold the points it
// announces is drawn with exactly those points and reports nothing; any other is reported with a
// "UserInterface - " line and leaves the curve as it was. Any crash, sanitizer report or failed
// CHECK is a fault; libFuzzer keeps the input that caused it.
//
// Byte-level mutations rarely keep such an input well-formed, so the harness brings its own mutator:
// it reads the input, changes the trace as an engine could get it wrong (a count one off, a list cut
// short or grown, an entry that is not a number, NaN, infinity, a missing element, another type),
// and writes it back; an input it cannot read goes to libFuzzer's own mutations.
//
// KX_FUZZ_WRITE_SEEDS=<folder> writes the seed inputs into the folder and exits.

#include "QKXComplexTraceManager.h"
#include "QKXComplexTracePattern.h"
#include "QKXComplexTracePlot.h"
#include "QKXComplexTraceRange.h"
#include "QKXPlotInterfaceImpl.h"
#include "QKXPlotManager.h"

#include <QApplication>
#include <QBuffer>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRandomGenerator>
#include <QStringList>
#include <qwt_plot_curve.h>

#include <climits>
#include <cmath>
#include <limits>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#define CHECK(condition)                                                                       \
    do {                                                                                       \
        if (!(condition)) {                                                                    \
            std::fprintf(stderr, "CHECK failed at line %d: %s\n", __LINE__, #condition);       \
            std::abort();                                                                      \
        }                                                                                      \
    } while (0)

namespace {

int reportedLines = 0;

void countLines(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (message.startsWith(QLatin1String("UserInterface - ")))
        ++reportedLines;
}

// The QVariant kinds the engine publishes, read with their sizes checked before anything is
// allocated; false for anything else.
bool readVariant(QDataStream &in, QVariant &out, int depth)
{
    quint32 type = 0;
    qint8 isNull = 0;
    in >> type >> isNull;
    if (in.status() != QDataStream::Ok || depth > 8)
        return false;
    const auto left = [&in] { return in.device()->bytesAvailable(); };
    switch (type) {
    case QMetaType::UnknownType:
        out = QVariant();
        return true;
    case QMetaType::Bool: {
        bool value = false;
        in >> value;
        out = value;
        break;
    }
    case QMetaType::Int: {
        qint32 value = 0;
        in >> value;
        out = value;
        break;
    }
    case QMetaType::UInt: {
        quint32 value = 0;
        in >> value;
        out = value;
        break;
    }
    case QMetaType::LongLong: {
        qint64 value = 0;
        in >> value;
        out = value;
        break;
    }
    case QMetaType::ULongLong: {
        quint64 value = 0;
        in >> value;
        out = value;
        break;
    }
    case QMetaType::Double:
    case QMetaType::Float: {
        double value = 0;
        in >> value;
        out = type == QMetaType::Float ? QVariant(float(value)) : QVariant(value);
        break;
    }
    case QMetaType::QString:
    case QMetaType::QByteArray: {
        quint32 bytes = 0;
        in >> bytes;
        if (bytes == 0xffffffffu) {
            out = type == QMetaType::QString ? QVariant(QString()) : QVariant(QByteArray());
            break;
        }
        if (bytes > left() || (type == QMetaType::QString && bytes % 2))
            return false;
        QByteArray raw(int(bytes), Qt::Uninitialized);
        in.readRawData(raw.data(), int(bytes));
        if (type == QMetaType::QByteArray) {
            out = raw;
        } else {
            QString text(int(bytes / 2), Qt::Uninitialized);
            for (int i = 0; i < text.size(); ++i)
                text[i] = QChar(ushort((uchar(raw[2 * i]) << 8) | uchar(raw[2 * i + 1])));
            out = text;
        }
        break;
    }
    case QMetaType::QVariantList: {
        quint32 count = 0;
        in >> count;
        if (count > left() / 5)   // a variant takes at least five bytes
            return false;
        QVariantList list;
        list.reserve(int(count));
        for (quint32 i = 0; i < count; ++i) {
            QVariant item;
            if (!readVariant(in, item, depth + 1))
                return false;
            list << item;
        }
        out = list;
        break;
    }
    case QMetaType::QStringList: {
        quint32 count = 0;
        in >> count;
        if (count > left() / 4)
            return false;
        QStringList list;
        for (quint32 i = 0; i < count; ++i) {
            // A string list holds bare strings, each as a string variant's body.
            quint32 bytes = 0;
            in >> bytes;
            if (bytes == 0xffffffffu) {
                list << QString();
                continue;
            }
            if (bytes > left() || bytes % 2 || in.status() != QDataStream::Ok)
                return false;
            QByteArray raw(int(bytes), Qt::Uninitialized);
            in.readRawData(raw.data(), int(bytes));
            QString text(int(bytes / 2), Qt::Uninitialized);
            for (int k = 0; k < text.size(); ++k)
                text[k] = QChar(ushort((uchar(raw[2 * k]) << 8) | uchar(raw[2 * k + 1])));
            list << text;
        }
        out = list;
        break;
    }
    default:
        return false;
    }
    return in.status() == QDataStream::Ok;
}

bool same(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

// What setTrace of the plot manager must do with the data: the points it draws, or none when the
// trace is to be dropped.
bool expectedPoints(const QString &type, const QVariant &data, QVector<QPointF> &points)
{
    const QVariantList trace = data.toList();
    int count = 0;
    int xIndex = 0;
    if (type == QLatin1String("EngineBasicTrace")) {
        if (trace.size() < 7)
            return false;
        count = trace.at(0).toString().toInt(nullptr, 10);
        xIndex = 5;
    } else {
        if (trace.size() < 3)
            return false;
        count = trace.at(0).toInt();
        xIndex = 1;
    }
    const QVariantList xs = trace.at(xIndex).toList();
    const QVariantList ys = trace.at(xIndex + 1).toList();
    if (count < 0 || xs.size() < count || ys.size() < count)
        return false;
    for (int i = 0; i < count; ++i)
        points << QPointF(xs.at(i).toDouble(), ys.at(i).toDouble());
    return true;
}

struct Screen
{
    QKXPlotManager plot;
    QKXComplexTraceManager constellation;
    QImage image{QSize(240, 160), QImage::Format_RGB32};

    Screen()
    {
        plot.addTraceType(QStringLiteral("EngineBasicTrace"), QStringLiteral("spectrum"));
        plot.addTraceType(QStringLiteral("EngineReadingComplexTrace"), QStringLiteral("iq"));
        plot.resize(240, 160);
        plot.show();
        constellation.getTracePlot()->addTraceType(QStringLiteral("EngineReadingComplexTrace"), QStringLiteral("iq"));
        constellation.enablePattern(true);
        constellation.resize(160, 160);
        constellation.show();
        QCoreApplication::processEvents();
    }

    void draw(QKXPlotInterfaceImpl *canvas)
    {
        canvas->requestReplot();
        canvas->update();   // the replot tick
        QPainter painter(&image);
        canvas->render(&painter);
    }
};

Screen *screen = nullptr;

struct Input
{
    quint8 type = 0;
    quint8 topic = 0;
    quint8 view = 0;
    QVariant trace;
};

bool readInput(const uint8_t *data, size_t size, Input &input)
{
    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QDataStream in(&buffer);
    in.setVersion(QDataStream::Qt_5_15);
    in >> input.type >> input.topic >> input.view;
    return in.status() == QDataStream::Ok && readVariant(in, input.trace, 0);
}

QByteArray writeInput(const Input &input)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_5_15);
    out << input.type << input.topic << input.view << input.trace;
    return bytes;
}

// A value an engine might send in place of another.
QVariant otherValue(const QVariant &value, QRandomGenerator &random)
{
    const double number = value.toDouble();
    const qint64 whole = value.toInt();   // widened: one more than the largest int is a count to try
    const auto count = [](qint64 n) { return QVariant(int(qBound<qint64>(INT_MIN, n, INT_MAX))); };
    switch (random.bounded(12)) {
    case 0: return count(whole + 1);
    case 1: return count(whole - 1);
    case 2: return count(-whole);
    case 3: return std::nan("");
    case 4: return random.bounded(2) ? HUGE_VAL : -HUGE_VAL;
    case 5: return number * 1e300;
    case 6: return QString::number(whole + random.bounded(3) - 1);
    case 7: return QStringLiteral("x");
    case 8: return QVariant();
    case 9: return random.bounded(2) == 1;
    case 10: return std::numeric_limits<int>::max();
    default: return number + random.generateDouble() - 0.5;
    }
}

void mutate(QVariant &value, QRandomGenerator &random, int depth)
{
    if (value.type() != QVariant::List || depth > 6) {
        value = otherValue(value, random);
        return;
    }
    QVariantList list = value.toList();
    const int action = random.bounded(8);
    if (list.isEmpty() || action == 0) {
        list.insert(random.bounded(list.size() + 1), random.bounded(2) ? QVariant(random.generateDouble()) : QVariant(QVariantList()));
    } else if (action == 1) {
        list.removeAt(random.bounded(list.size()));
    } else if (action == 2) {
        list.erase(list.begin() + random.bounded(list.size()), list.end());
    } else if (action == 3) {
        const QVariant copy = list.at(random.bounded(list.size()));
        list.insert(random.bounded(list.size() + 1), copy);
    } else if (action == 4) {
        // The announced count, the usual thing to get wrong.
        mutate(list[0], random, depth + 1);
    } else {
        mutate(list[random.bounded(list.size())], random, depth + 1);
    }
    value = list;
}

void writeSeeds(const QString &folder)
{
    QDir().mkpath(folder);
    const auto list = [](std::initializer_list<QVariant> items) { return QVariantList(items); };
    QVariantList ramp;
    QVariantList level;
    for (int i = 0; i < 200; ++i) {
        ramp << double(i);
        level << -60.0 + (i % 7);
    }
    const QVariant nan = std::nan("");
    const QList<QPair<QByteArray, QVariant>> seeds{
        {"\x00\x00\x00", list({3, 0.0, 2.0, "Hz", "dBm", list({0.0, 1.0, 2.0}), list({-1.0, -2.0, -3.0})})},
        {"\x00\x00\x01", list({200, 0.0, 199.0, "Hz", "dBm", ramp, level})},
        {"\x00\x00\x02", list({"3", 0.0, 2.0, "Hz", "dBm", list({"a", 1.0, 2.0}), list({nan, -2.0, QVariant()})})},
        {"\x00\x00\x00", list({4, 0.0, 2.0, "Hz", "dBm", list({0.0, 1.0, 2.0}), list({-1.0, -2.0, -3.0})})},
        {"\x00\x00\x00", list({-1, 0.0, 2.0, "Hz", "dBm", list({}), list({})})},
        {"\x00\x00\x00", list({3, 0.0, 2.0, "Hz", "dBm", list({0.0})})},
        {"\x01\x01\x03", list({4, list({-1.0, 1.0, -1.0, 1.0}), list({1.0, 1.0, -1.0, -1.0})})},
        {"\x01\x01\x01", list({2, list({-2.0, 2.0}), list({-3.0, 3.0})})},
        {"\x01\x01\x00", list({2, list({1.0})})},
        {"\x02\x02\x00", list({1, QStringList{"x"}, QByteArray("y")})},
        // Lists of unequal length around the announced count: one byte away from a trace that
        // asks for more points than one of its lists holds.
        {"\x00\x00\x00", list({3, 0.0, 2.0, "Hz", "dBm", list({0.0, 1.0, 2.0}), list({-1.0, -2.0, -3.0, -4.0, -5.0})})},
        {"\x00\x00\x00", list({3, 0.0, 2.0, "Hz", "dBm", list({0.0, 1.0, 2.0, 3.0, 4.0}), list({-1.0, -2.0, -3.0})})},
        {"\x01\x01\x00", list({2, list({1.0, 2.0}), list({1.0, 2.0, 3.0, 4.0})})},
        {"\x01\x01\x00", list({2, list({1.0, 2.0, 3.0, 4.0}), list({1.0, 2.0})})},
    };
    int n = 0;
    for (const auto &seed : seeds) {
        Input input;
        input.type = quint8(seed.first[0]);
        input.topic = quint8(seed.first[1]);
        input.view = quint8(seed.first[2]);
        input.trace = seed.second;
        const QByteArray bytes = writeInput(input);
        QFile file(QStringLiteral("%1/seed-%2").arg(folder).arg(++n, 2, 10, QLatin1Char('0')));
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication app(*argc, *argv);
    app.setProperty("state", QStringLiteral("initialized"));
    if (qEnvironmentVariableIsSet("KX_FUZZ_WRITE_SEEDS")) {
        writeSeeds(qEnvironmentVariable("KX_FUZZ_WRITE_SEEDS"));
        std::exit(0);
    }
    qInstallMessageHandler(countLines);
    screen = new Screen;
    return 0;
}

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t maxSize);

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t maxSize, unsigned int seed)
{
    QRandomGenerator random(seed);
    Input input;
    if (random.bounded(5) == 0 || !readInput(data, size, input))
        return LLVMFuzzerMutate(data, size, maxSize);
    switch (random.bounded(10)) {
    case 0: input.type = quint8(random.bounded(3)); break;
    case 1: input.topic = quint8(random.bounded(3)); break;
    case 2: input.view = quint8(random.bounded(8)); break;
    default: mutate(input.trace, random, 0); break;
    }
    const QByteArray bytes = writeInput(input);
    if (size_t(bytes.size()) > maxSize)
        return LLVMFuzzerMutate(data, size, maxSize);
    std::memcpy(data, bytes.constData(), size_t(bytes.size()));
    return size_t(bytes.size());
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Input input;
    if (!readInput(data, size, input))
        return 0;
    const quint8 typeChoice = input.type;
    const quint8 topicChoice = input.topic;
    const quint8 view = input.view;
    const QVariant trace = input.trace;

    static const QString types[] = {QStringLiteral("EngineBasicTrace"), QStringLiteral("EngineReadingComplexTrace"),
                                    QStringLiteral("EngineScalar")};
    static const QString topics[] = {QStringLiteral("spectrum"), QStringLiteral("iq"), QStringLiteral("unknown")};
    const QString type = types[typeChoice % 3];
    const QString topic = topics[topicChoice % 3];

    QKXPlotManager &plot = screen->plot;
    QKXPlotInterfaceImpl *canvas = plot.getPlotInterface();
    plot.setCurveStyle(view & 1 ? QKXPlotManager::DOTS_STYLE : QKXPlotManager::LINES_STYLE);
    plot.enableAutoScale(view & 2);

    // The manager: exactly the announced points, or a report and the previous curve.
    QwtPlotCurve *curve = canvas->getTrace(topic);
    const size_t before = curve ? curve->dataSize() : 0;
    QVector<QPointF> points;
    const bool known = type != QLatin1String("EngineScalar");
    const bool takes = known && trace.isValid() && !trace.isNull() && expectedPoints(type, trace, points);
    reportedLines = 0;
    plot.setTrace(type, topic, trace);
    if (curve && takes) {
        CHECK(curve->dataSize() == size_t(points.size()));
        for (int i = 0; i < points.size(); ++i) {
            const QPointF sample = curve->sample(size_t(i));
            CHECK(same(sample.x(), points.at(i).x()) && same(sample.y(), points.at(i).y()));
        }
        CHECK(reportedLines == 0);
    } else if (curve) {
        CHECK(curve->dataSize() == before);
    }
    if (trace.isValid() && !trace.isNull() && !takes)
        CHECK(reportedLines > 0);
    if (view & 4)
        canvas->RestoreBoundries();
    screen->draw(canvas);

    // The constellation display's three intakes.
    QKXComplexTraceManager &constellation = screen->constellation;
    constellation.getTracePlot()->setTrace(type, topic, trace);
    constellation.getTracePlotPattern()->setTrace(type, topic, trace);
    constellation.getTraceRange()->setTrace(type, topic, trace);
    screen->draw(constellation.getTracePlot()->getPlotInterface());
    return 0;
}
