// SPDX-License-Identifier: BSD-3-Clause
#include "KXDateTimeSupport_p.h"

#include "QKXWidgetBase_p.h"

#include "CSS.h"

#include <QDebug>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QVBoxLayout>

namespace kxdatetime {

QDateTime localDateTime(qlonglong seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::LocalTime);
}

QDateTime localDateTime(const QDate &date, const QTime &time)
{
    QDateTime local(date, time, Qt::LocalTime);
    if (local.isValid() || !date.isValid() || !time.isValid()) {
        return local;
    }
    // In the gap: the same wall-clock time a day earlier carries the offset from before the change.
    const int offsetBefore = QDateTime(date.addDays(-1), time, Qt::LocalTime).offsetFromUtc();
    return QDateTime(date, time, Qt::OffsetFromUTC, offsetBefore).toLocalTime();
}

bool toSeconds(const QDateTime &dateTime, qlonglong *seconds)
{
    // An invalid date and time still converts to some count: it must not go out as a date.
    if (!dateTime.isValid()) {
        return false;
    }
    const qlonglong count = dateTime.toSecsSinceEpoch();
    if (!isInRange(count)) {
        return false;
    }
    *seconds = count;
    return true;
}

QString text(const QDateTime &dateTime, const QString &pattern)
{
    return QLocale::c().toString(dateTime, pattern);
}

void reportOutOfRange(const char *className, const QObject *widget, const char *what, const QVariant &value,
                      const char *outcome)
{
    qDebug().noquote() << QStringLiteral("UserInterface - %1 \"%2\": %3 %4 is not a count of seconds from 0 to %5 - %6")
                              .arg(QLatin1String(className), widget ? widget->objectName() : QString(),
                                   QLatin1String(what))
                              .arg(value.toString())
                              .arg(LastSecond)
                              .arg(QLatin1String(outcome));
}

QLineEdit *buildField(QKXWidgetBasePrivate *d)
{
    // Runs inside the widget base's constructor: only the QWidget side of the widget may be used.
    QWidget *widget = d->q;
    auto *caption = new QLabel(widget);
    caption->setObjectName(QStringLiteral("Label"));
    caption->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    d->setLabel(caption);

    auto *display = new QLineEdit(widget);
    // Takes input only while the edit filter has an edit open.
    display->setEnabled(false);
    display->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);

    auto *layout = new QVBoxLayout(widget);
    layout->setSpacing(1);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(caption);
    layout->addWidget(display);
    widget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    return display;
}

// One sheet for both sizes; the sizes are the only difference. Themes match the sheets as text.
static QString kxdatetime_fieldStyle(int fontSize, int fieldHeight, int captionSize)
{
    static const QString sheet = QStringLiteral(
        "QLineEdit {    padding: 1px 5px 0px 5px;    margin: 0px;    border: 2px solid #0bf;    border-radius: 10px;"
        "    border-color: white;    font-size: %1px;    color: #000;    background-color: #fff;"
        "    min-height: %2px;    max-height: %2px;    min-width: 20px;}"
        "QLineEdit:disabled {    background: transparent;    border: 2px solid #fff;    color: #fff;}"
        "QLabel#Label {    font-size: %3px;    padding: 4px 5px 0px 8px;    margin: 0px;    border: none;"
        "    color: #fff;    min-height: %3px;}");
    return sheet.arg(fontSize).arg(fieldHeight).arg(captionSize);
}

QString compactStyle()
{
    static const QString sheet = kxdatetime_fieldStyle(14, 25, 12);
    return sheet;
}

QString largeStyle()
{
    static const QString sheet = kxdatetime_fieldStyle(20, 32, 16);
    return sheet;
}

QString lockedOverlay()
{
    return QStringLiteral("QLineEdit:disabled {    background-image: url(:/images/lock_generic.png);"
                          "    background-position: top right;    background-repeat: no-repeat;}");
}

QString readOnlyOverlay()
{
    return QStringLiteral("   QLineEdit:disabled {       border-color: ") + CSS::border() + QStringLiteral(";   }");
}

} // namespace kxdatetime
