// SPDX-License-Identifier: BSD-3-Clause
#ifndef TEXTEDITORTESTSUPPORT_H
#define TEXTEDITORTESTSUPPORT_H

// A screen the way the host builds one for a text edit: a main window with a text field and its
// filter, one popup editor floating over the window, and the host's side of the protocol (the popup
// opens on editStart; the edit lock is granted from the event loop, as the host's lock owner does).

#include <QtTest>

#include <QLineEdit>
#include <QPushButton>

#include "EditorTestSupport.h"

#include "../common/TextTestSupport.h"

#include "QKXTextEntry.h"
#include "QKXTextEventFilter.h"

namespace kxtest {

template <typename Popup>
struct TextScreen
{
    explicit TextScreen(QKXTextEntry::EntryModeEnum mode = QKXTextEntry::KeyboardEntry,
                        const QString &start = QStringLiteral("Bench"), QSize size = QSize(800, 480))
    {
        window.resize(size);
        window.setObjectName(QStringLiteral("MainWindow"));
        field->setObjectName(QStringLiteral("SetupName"));
        field->setGeometry(40, 40, 300, 60);
        field->setEntryMode(mode);
        field->setText(start);
        adapter.current = start;
        filter = new QKXTextEventFilter(field, &adapter);
        field->installEventFilter(filter);
        logTextFilter(filter, road);
        lockOwner.attach(filter);
        // Through the host's own receiver: the pads cut every connection with a filter after an edit.
        QObject::connect(filter, &QKXEventFilterBase::editStart, &lockOwner,
                         [this](QObject *f, QWidget *w) { popup->registerWidget(f, w); });
    }
    bool show()
    {
        window.show();
        return QTest::qWaitForWindowExposed(&window) && QTest::qWaitFor([this] { return !entry->isEnabled(); });
    }
    // A finger on the field, through the window system.
    bool tapAndWaitForPopup()
    {
        const QPoint at = entry->geometry().center();
        QTest::mousePress(field, Qt::LeftButton, Qt::NoModifier, at);
        QTest::mouseRelease(field, Qt::LeftButton, Qt::NoModifier, at);
        return QTest::qWaitFor([this] { return popup->isVisible() && filter->isEditing(); });
    }
    static void click(QPushButton *key)
    {
        QVERIFY2(key && key->isVisible() && key->isEnabled(), key ? qPrintable(key->objectName()) : "no key");
        QTest::mouseClick(key, Qt::LeftButton, Qt::NoModifier, key->rect().center());
    }

    // The engine's side outlives the window, whose filter reports to it while going.
    LockOwner lockOwner;
    TextAdapter adapter{QString()};
    QStringList road;
    QWidget window;
    QKXTextEntry *field = new QKXTextEntry(&window);
    QLineEdit *entry = field->findChild<QLineEdit *>();
    QKXTextEventFilter *filter = nullptr;
    Popup *popup = new Popup(&window);
};

} // namespace kxtest

#endif // TEXTEDITORTESTSUPPORT_H
