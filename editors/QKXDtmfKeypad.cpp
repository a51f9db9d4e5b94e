// SPDX-License-Identifier: BSD-3-Clause
#include "QKXDtmfKeypad.h"
#include "QKXKeyPadBase_p.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedLayout>

// The keys that sound a tone, which live mode watches while they are held.
static const char *const kxdtmf_toneKeys[] = {"0", "1", "2", "3", "4", "5", "6", "7",
                                              "8", "9", "*", "#", "A", "B", "C", "D"};

// A live string starts over when a key is pressed on this many characters.
static const int kxdtmf_liveLength = 20;

QKXDtmfKeypad::QKXDtmfKeypad(QWidget *parent)
    : QKXKeyPadBase(parent)
{
    Q_D(QKXKeyPadBase);
    d->normalWidth = 318;
    controlWidget()->hide();
    setNormalSize(d->normalWidth, d->normalHeight);
    setObjectName(QStringLiteral("QKXDtmfKeypad"));
    QKXDtmfKeypad::createNumpadButtons();
    d->keyRow->setStretchFactor(d->digitGrid, 4);
    d->keyRow->setStretchFactor(d->enterStack, 1);
    d->enterStack->setCurrentIndex(0);
    resize(d->normalWidth, d->normalHeight);
}

QKXDtmfKeypad::~QKXDtmfKeypad() = default;

void QKXDtmfKeypad::createNumpadButtons()
{
    Q_D(QKXKeyPadBase);
    // Beside and below the digits: * 0 # under 7 8 9, and A to D in a column of their own.
    const int r = d->gridRow;
    const int c = d->gridColumn;
    const struct {
        const char *key;
        const char *outline;
        int row;
        int column;
    } keys[] = {
        {"*", "kbBtnBottomLeft", r + 1, 0}, {"#", "kbBtnBottom", r + 1, 2}, {"A", "kbBtn", 0, c + 1},
        {"B", "kbBtn", 1, c + 1},           {"C", "kbBtn", 2, c + 1},       {"D", "kbBtnBottom", 3, c + 1},
    };
    for (const auto &key : keys) {
        const QString name = QLatin1String(key.key);
        QPushButton *button = createButton(tr(key.key), SLOT(buttonPress()), QLatin1String(key.outline));
        d->buttons.insert(name, button);
        d->digitGrid->addWidget(button, key.row, key.column);
    }
}

void QKXDtmfKeypad::registerWidget(QObject *filter, QWidget *widget)
{
    Q_D(QKXKeyPadBase);
    d->registerTextField(filter, widget, "UserInterface - QKXDtmfKeypad attempting to register unknown data type:");
}

void QKXDtmfKeypad::setLive(bool live)
{
    Q_D(QKXKeyPadBase);
    for (const char *name : kxdtmf_toneKeys) {
        QPushButton *key = d->buttons.value(QLatin1String(name));
        disconnect(key, nullptr, this, nullptr);
    }
    QKXKeyPadBase::setLive(live);
    for (const char *name : kxdtmf_toneKeys) {
        QPushButton *key = d->buttons.value(QLatin1String(name));
        if (live) {
            connect(key, &QPushButton::pressed, this, &QKXDtmfKeypad::buttonPush);
            connect(key, &QPushButton::released, this, &QKXDtmfKeypad::buttonRelease);
        } else {
            connect(key, &QPushButton::clicked, this, &QKXDtmfKeypad::buttonPress);
        }
    }
}

void QKXDtmfKeypad::handleButton(QPushButton *button)
{
    Q_D(QKXKeyPadBase);
    if (!d->entry || !button) {
        return;
    }
    if (d->typeKey(button) && isLive()) {
        emit submit(d->entry->text());
    }
}

void QKXDtmfKeypad::buttonPress()
{
    handleButton(qobject_cast<QPushButton *>(sender()));
}

void QKXDtmfKeypad::buttonPush()
{
    Q_D(QKXKeyPadBase);
    if (d->entry && d->entry->text().size() >= kxdtmf_liveLength) {
        handleButton(d->buttons.value(QStringLiteral("clear")));
    }
    handleButton(qobject_cast<QPushButton *>(sender()));
    emit holding(true);
}

void QKXDtmfKeypad::buttonRelease()
{
    emit holding(false);
}

void QKXDtmfKeypad::buttonSubmit()
{
    Q_D(QKXKeyPadBase);
    if (!d->entry) {
        return;
    }
    emit submit(d->entry->text());
    emit done();
}
