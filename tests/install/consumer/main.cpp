// SPDX-License-Identifier: BSD-3-Clause
// A screen of one numeric field, as an application outside the library's tree builds it.
#include <QKXNumeric.h>
#include <QKXNumericEventFilter.h>

#include <QApplication>
#include <QLineEdit>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QKXNumeric field;
    field.setObjectName(QStringLiteral("level"));
    field.setLabelText(QStringLiteral("Level"));
    field.installEventFilter(new QKXNumericEventFilter(&field, QStringLiteral("Double"), nullptr));
    field.setProperty("Precision", 3);
    field.setValue(2.5);
    QTextStream(stdout) << "consumer: " << field.findChild<QLineEdit *>()->text() << Qt::endl;
    return 0;
}
