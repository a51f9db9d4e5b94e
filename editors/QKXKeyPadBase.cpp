// SPDX-License-Identifier: BSD-3-Clause
#include "QKXKeyPadBase.h"
#include "QKXKeyPadBase_p.h"

#include "QKXPopupChain.h"
#include "QKXPopupPlacement.h"

#include "CSS.h"

#include <QApplication>
#include <QDebug>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QResizeEvent>
#include <QShowEvent>
#include <QSpacerItem>
#include <QStackedLayout>
#include <QVBoxLayout>
#include <QVariant>

QString QKXKeyPadBasePrivate::styleSheet()
{
    // Keys share their outlines: each draws its top and right edge, the left column and the bottom
    // row add the outer ones, and the outer corners are rounded.
    QString sheet = QStringLiteral(R"(
QFrame { background-color: transparent; border: none; }
QFrame#MainFrame { background-color: rgba(0,0,0,215); border: 2px solid %1; border-left: none; border-radius: 18px; }
QFrame#TopOverlay, QFrame#BottomOverlay { border: 2px solid %1; border-right: none; border-radius: 18px; border-top-right-radius: 0px; border-bottom-right-radius: 0px; }
QPushButton { color: white; background-color: transparent; border: 1px solid white; border-radius: 0px; font-size: 40px; text-align: center; padding: 0px; }
QPushButton:pressed { background-color: white; color: black; }
QPushButton#kbBtn { border-width: 1px 1px 0px 0px; }
QPushButton#kbBtnLeft { border-width: 1px 1px 0px 1px; }
QPushButton#kbBtnRight { border-width: 1px 1px 0px 0px; }
QPushButton#kbBtnBottom { border-width: 1px 1px 1px 0px; }
QPushButton#kbBtnBottomLeft { border-width: 1px 1px 1px 1px; border-bottom-left-radius: 10px; }
QPushButton#kbBtnRightBottom, QPushButton#kbBtnBottomRight { border-width: 1px 1px 1px 0px; border-bottom-right-radius: 10px; }
QPushButton#kbBtn:disabled, QPushButton#kbBtnLeft:disabled, QPushButton#kbBtnRight:disabled, QPushButton#kbBtnBottomLeft:disabled, QPushButton#kbBtnBottom:disabled, QPushButton#kbBtnRightBottom:disabled, QPushButton#kbBtnBottomRight:disabled { background-color: #555; }
QPushButton#cancel, QPushButton#clear { font-size: 16px; text-align: bottom; padding-bottom: 4px; }
QPushButton#cancel { border-top-left-radius: 10px; border-bottom-left-radius: 10px; }
QPushButton#clear { border-left: none; }
QPushButton#bksp { border-left: none; border-top-right-radius: 10px; border-bottom-right-radius: 10px; image: url(:/images/backspace.png); }
QPushButton#bksp:pressed { image: url(:/images/bksp_pressed.png); }
QPushButton#enter { border-left: none; border-top-right-radius: 10px; border-bottom-right-radius: 10px; background-color: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 rgba(0,255,0,170), stop:1 rgba(0,255,0,50)); font-size: 16px; text-align: bottom; padding-bottom: 4px; }
QPushButton#enter:pressed { background-color: #0b0; }
QPushButton#space, QPushButton#upArrow, QPushButton#downArrow, QPushButton#incr, QPushButton#decr { font-size: 16px; border-left: none; }
QPushButton#space:disabled, QPushButton#upArrow:disabled, QPushButton#downArrow:disabled, QPushButton#incr:disabled, QPushButton#decr:disabled { background-color: #555; }
QLabel { background-color: transparent; color: white; border: 2px solid %1; border-left: none; border-top-right-radius: 9px; border-bottom-right-radius: 9px; }
QLineEdit { background-color: transparent; border: 2px solid white; border-radius: 10px; font: 40px; min-height: 40px; max-height: 40px; color: white; padding-left: 4px; selection-color: white; selection-background-color: black; }
QPushButton#RotateEntry { border: none; background-color: transparent; border-image: url(:/images/rotateEntry.png); }
QPushButton#RotateEntry:pressed { background-color: transparent; border-image: url(:/images/rotateEntryPressed.png); }
QKXRichTextPushButton#unit, QKXRichTextPushButton#lastUnit { border-left: none; border-bottom: none; border-top-right-radius: 10px; border-bottom-right-radius: 10px; font-size: 16px; }
QKXRichTextPushButton#lastUnit { border-bottom: 1px solid white; }
QKXRichTextPushButton#unit QLabel, QKXRichTextPushButton#lastUnit QLabel { background-color: transparent; border: none; color: white; font-size: 16px; }
QKXRichTextPushButton#unit QLabel:disabled, QKXRichTextPushButton#lastUnit QLabel:disabled { color: black; }
)").arg(CSS::border());

    // Panels whose graphics cannot blend get an opaque background; themes match this text as it is.
    const QVariant opaque = qApp ? qApp->property("-notransparency") : QVariant();
    if (opaque.isValid() && opaque.toString() == QLatin1String("true")) {
        sheet += QStringLiteral("QFrame#MainFrame{    background-color: #000;}");
    }
    return sheet;
}

void QKXKeyPadBasePrivate::mirror()
{
    if (entry) {
        display->setText(entry->text());
    }
}

bool QKXKeyPadBasePrivate::backspace()
{
    const int position = entry->cursorPosition();
    if (position <= 0) {
        return false;
    }
    QString text = entry->text();
    text.remove(position - 1, 1);
    // A sign on its own is no number worth keeping.
    if (text == QLatin1String("-")) {
        text.clear();
    }
    entry->setText(text);
    mirror();
    entry->setCursorPosition(position - 1);
    return true;
}

bool QKXKeyPadBasePrivate::typeKey(QPushButton *key)
{
    if (!entry || !key) {
        return false;
    }
    if (key == buttons.value(QStringLiteral("bksp"))) {
        return backspace();
    }
    if (key == buttons.value(QStringLiteral("clear"))) {
        entry->clear();
    } else {
        entry->insert(key->text());
    }
    mirror();
    return true;
}

void QKXKeyPadBasePrivate::registerTextField(QObject *newFilter, QWidget *newWidget, const char *unknownTypeLine)
{
    Q_Q(QKXKeyPadBase);
    if (unknownTypeLine) {
        dataType = newFilter ? newFilter->property("DataType").toString() : QString();
    }
    if (filter && widget) {
        // One edit at a time: the edit the pad was serving gives its text back first.
        QMetaObject::invokeMethod(filter, "cancel");
        q->resetWidgets();
    }
    filter = newFilter;
    widget = newWidget;
    entry = newWidget ? newWidget->findChild<QLineEdit *>() : nullptr;
    if (!entry) {
        return;
    }
    const QList<QPushButton *> keys = q->getContainerFrame()->findChildren<QPushButton *>();
    for (QPushButton *key : keys) {
        key->setFocusProxy(entry);
    }
    display->setText(entry->text());

    QKXPopupChain::chain(q, newFilter, SIGNAL(cancelEntry()), SIGNAL(done()));
    QObject::connect(entry.data(), &QLineEdit::textEdited, display, &QLineEdit::setText);
    if (!unknownTypeLine || dataType == QLatin1String("TextString")) {
        QKXPopupChain::forward(q, newFilter, SIGNAL(submit(QString)));
    } else {
        qDebug() << unknownTypeLine << dataType << "Widget:" << newWidget;
    }
    q->show();
}

double QKXKeyPadBasePrivate::widgetLimit(const char *name) const
{
    return widget ? widget->property(name).toDouble() : 0.0;
}

bool QKXKeyPadBasePrivate::limitsNegative() const
{
    // Only a range that lies wholly below zero makes the pad supply the sign by itself.
    return widgetLimit("LowerLimit") < 0 && widgetLimit("UpperLimit") < 0;
}

QKXKeyPadBase::QKXKeyPadBase(QWidget *parent)
    : QKXKeyPadBase(*new QKXKeyPadBasePrivate(this), parent)
{
}

QKXKeyPadBase::QKXKeyPadBase(QKXKeyPadBasePrivate &dd, QWidget *parent)
    : ContainerImpl(parent)
    , d_ptr(&dd)
{
    Q_D(QKXKeyPadBase);
    // The pad draws its own panel: no title bar, no container frame around it.
    controlWidget()->hide();
    borderFrame()->setStyleSheet(QStringLiteral("QFrame#BorderFrame { background-color: transparent; border: none; }"));
    setNormalSize(d->normalWidth, d->normalHeight);

    setStyleSheet(QKXKeyPadBasePrivate::styleSheet());
    setObjectName(QStringLiteral("KeyPadBase"));

    d->mainFrame = new QFrame(getContainerFrame());
    d->mainFrame->setObjectName(QStringLiteral("MainFrame"));
    d->topOverlay = new QFrame(d->mainFrame);
    d->topOverlay->setObjectName(QStringLiteral("TopOverlay"));
    d->bottomOverlay = new QFrame(d->mainFrame);
    d->bottomOverlay->setObjectName(QStringLiteral("BottomOverlay"));
    d->display = new QLineEdit(d->mainFrame);
    d->display->setReadOnly(true);
    d->display->setEnabled(false);
    d->caption = new QLabel(d->mainFrame);
    d->numpadFrame = new QFrame(d->mainFrame);
    d->numpadFrame->setObjectName(QStringLiteral("NumpadFrame"));
    d->numpadLayout = new QVBoxLayout(d->numpadFrame);
    d->numpadLayout->setSpacing(0);
    d->numpadLayout->setContentsMargins(10, 10, 10, 10);
    d->rotateKey = new QPushButton(d->mainFrame);
    d->rotateKey->setObjectName(QStringLiteral("RotateEntry"));
    d->rotateKey->setFocusPolicy(Qt::NoFocus);

    auto *frameLayout = new QHBoxLayout;
    frameLayout->setContentsMargins(0, 0, 0, 0);
    frameLayout->setSpacing(0);
    frameLayout->addWidget(d->mainFrame);
    ContainerBase::setLayout(frameLayout, false);

    d->controlRow = new QHBoxLayout;
    d->controlRow->setSpacing(0);
    d->keyRow = new QHBoxLayout;
    d->keyRow->setSpacing(0);
    d->digitGrid = new QGridLayout;
    d->digitGrid->setSpacing(0);
    d->digitGrid->setContentsMargins(0, 0, 0, 0);
    d->numpadLayout->addLayout(d->controlRow, 1);
    d->numpadLayout->addItem(new QSpacerItem(20, 20));
    d->numpadLayout->addLayout(d->keyRow, 4);

    // This class's own keys; a derived pad adds its keys in its own constructor.
    QKXKeyPadBase::createControlButtons();
    QKXKeyPadBase::createNumpadButtons();
    QKXKeyPadBase::createEnterButtons();
    QKXKeyPadBase::retranslate();

    d->keyRow->addLayout(d->digitGrid, 6);
    d->keyRow->addLayout(d->enterStack, 0);
    connect(d->rotateKey, &QPushButton::clicked, this, &QKXKeyPadBase::rotateEntry);
    resize(d->normalWidth, d->normalHeight);
}

QKXKeyPadBase::~QKXKeyPadBase() = default;

bool QKXKeyPadBase::isLive() const
{
    Q_D(const QKXKeyPadBase);
    return d->isLive;
}

void QKXKeyPadBase::setLive(bool live)
{
    Q_D(QKXKeyPadBase);
    d->isLive = live;
}

void QKXKeyPadBase::showRotateButton(bool show)
{
    Q_D(QKXKeyPadBase);
    d->rotateKey->setVisible(show);
}

QPushButton *QKXKeyPadBase::button(const QString &name) const
{
    Q_D(const QKXKeyPadBase);
    return d->buttons.value(name);
}

QStringList QKXKeyPadBase::buttonNames() const
{
    Q_D(const QKXKeyPadBase);
    return d->buttons.keys();
}

QLineEdit *QKXKeyPadBase::display() const
{
    Q_D(const QKXKeyPadBase);
    return d->display;
}

QLabel *QKXKeyPadBase::caption() const
{
    Q_D(const QKXKeyPadBase);
    return d->caption;
}

QPushButton *QKXKeyPadBase::rotateButton() const
{
    Q_D(const QKXKeyPadBase);
    return d->rotateKey;
}

QObject *QKXKeyPadBase::registeredFilter() const
{
    Q_D(const QKXKeyPadBase);
    return d->filter;
}

QWidget *QKXKeyPadBase::registeredWidget() const
{
    Q_D(const QKXKeyPadBase);
    return d->widget;
}

QLineEdit *QKXKeyPadBase::entry() const
{
    Q_D(const QKXKeyPadBase);
    return d->entry;
}

QString QKXKeyPadBase::dataType() const
{
    Q_D(const QKXKeyPadBase);
    return d->dataType;
}

int QKXKeyPadBase::base() const
{
    Q_D(const QKXKeyPadBase);
    return d->base;
}

void QKXKeyPadBase::createControlButtons()
{
    Q_D(QKXKeyPadBase);
    const struct {
        const char *name;
        QString caption;
        const char *member;
    } keys[] = {
        {"cancel", QString(), SIGNAL(cancelEntry())},
        {"clear", QString(), SLOT(buttonPress())},
        {"bksp", tr(" "), SLOT(buttonPress())},
    };
    for (const auto &key : keys) {
        const QString name = QLatin1String(key.name);
        QPushButton *button = createButton(key.caption, key.member, name);
        d->buttons.insert(name, button);
        d->controlRow->addWidget(button);
    }
}

void QKXKeyPadBase::createNumpadButtons()
{
    Q_D(QKXKeyPadBase);
    // 0 first, so that the last digit placed is 9: the keypads above place their keys from its row
    // and column.
    QPushButton *zero = createButton(QStringLiteral("0"), SLOT(buttonPress()), QStringLiteral("kbBtnBottom"));
    d->buttons.insert(QStringLiteral("0"), zero);
    d->digitGrid->addWidget(zero, 3, 1);
    for (int digit = 1; digit <= 9; ++digit) {
        const QString name = QString::number(digit);
        const bool leftColumn = (digit - 1) % 3 == 0;
        QPushButton *button = createButton(name, SLOT(buttonPress()),
                                           leftColumn ? QStringLiteral("kbBtnLeft") : QStringLiteral("kbBtn"));
        d->buttons.insert(name, button);
        d->gridRow = (digit - 1) / 3;
        d->gridColumn = (digit - 1) % 3;
        d->digitGrid->addWidget(button, d->gridRow, d->gridColumn);
    }
}

void QKXKeyPadBase::createEnterButtons()
{
    Q_D(QKXKeyPadBase);
    QPushButton *enter = createButton(QString(), SLOT(buttonSubmit()), QStringLiteral("enter"));
    d->buttons.insert(QStringLiteral("enter"), enter);
    d->enterStack = new QStackedLayout;
    d->enterStack->setContentsMargins(0, 0, 0, 0);
    d->enterStack->addWidget(enter);
}

QPushButton *QKXKeyPadBase::createButton(const QString &text, const char *member, const QString &name)
{
    Q_D(QKXKeyPadBase);
    auto *button = new QPushButton(text, d->numpadFrame);
    button->setObjectName(name);
    button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    button->setFocusPolicy(Qt::NoFocus);
    // By name: derived keypads hand in their own slots and signals.
    connect(button, SIGNAL(clicked()), this, member);
    return button;
}

void QKXKeyPadBase::retranslate()
{
    Q_D(QKXKeyPadBase);
    const struct {
        const char *key;
        const QString *text;
    } captions[] = {
        {"cancel", &d->cancelText},
        {"clear", &d->clearText},
        {"enter", &d->enterText},
    };
    for (const auto &caption : captions) {
        if (QPushButton *button = d->buttons.value(QLatin1String(caption.key))) {
            button->setText(tr(caption.text->toUtf8().constData()));
        }
    }
    ContainerImpl::retranslate();
}

void QKXKeyPadBase::updateStyle()
{
}

void QKXKeyPadBase::buttonSubmit()
{
    Q_D(QKXKeyPadBase);
    if (!d->entry) {
        return;
    }
    emit submit(d->entry->text());
    emit done();
}

void QKXKeyPadBase::resetWidgets()
{
    Q_D(QKXKeyPadBase);
    // Every connection between the two goes, whoever made it: a host hands edits to the pad through
    // a receiver of its own, not by connecting a filter's editStart() to registerWidget().
    QKXPopupChain::unchainAll(this, d->filter);
    // The keypads mirror what is typed on a real keyboard straight into the display.
    if (d->entry) {
        disconnect(d->entry.data(), nullptr, d->display, nullptr);
    }
    for (QPushButton *button : qAsConst(d->buttons)) {
        button->setFocusProxy(nullptr);
    }
    d->filter = nullptr;
    d->entry = nullptr;
    d->widget = nullptr;
    hide();
}

void QKXKeyPadBase::unregister()
{
    resetWidgets();
    emit editEnd();
}

void QKXKeyPadBase::resizeEvent(QResizeEvent *event)
{
    Q_D(QKXKeyPadBase);
    const int w = event->size().width();
    const int h = event->size().height();
    d->mainFrame->setGeometry(0, 0, w - 4, h - 4);
    d->topOverlay->setGeometry(0, 0, w - 60, 64);
    d->bottomOverlay->setGeometry(0, 78, w - 60, h - 82);
    d->display->setGeometry(10, 10, w - 20, 40);
    d->caption->setGeometry(18, 62, w - 36, 18);
    d->numpadFrame->setGeometry(0, 78, w, h - 128);
    d->rotateKey->setGeometry(w - 46, h - 46, 36, 36);
    ContainerImpl::resizeEvent(event);
}

void QKXKeyPadBase::showEvent(QShowEvent *event)
{
    Q_D(QKXKeyPadBase);
    d->mirror();
    if (!normalSize().isEmpty()) {
        resize(normalSize());
    }
    if (d->widget) {
        const QPoint place = QKXPopupPlacement::besideWidget(this, d->widget, size());
        move(place.x(), place.y());
    }
    ContainerImpl::showEvent(event);
}
