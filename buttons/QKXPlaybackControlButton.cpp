// SPDX-License-Identifier: BSD-3-Clause
#include "QKXPlaybackControlButton.h"
#include "QKXWidgetBase_p.h"

#include "CSS.h"

#include <QDebug>
#include <QPushButton>
#include <QVBoxLayout>

class QKXPlaybackControlButtonPrivate : public QKXWidgetBasePrivate
{
    Q_OBJECT
public:
    explicit QKXPlaybackControlButtonPrivate(QKXPlaybackControlButton *q);

    void init() override;
    void setEventFilter(QObject *filter) override;
    void updateStyle() override;
    void changeSize(const QString &size) override;

    virtual QSize minimumSizeHint() const;
    virtual QSize sizeHint() const;
    virtual void setButtonName(const QString &name);
    virtual void setButtonType(QKXPlaybackControlButton::Button_Type type);

    static QString styleTemplate();

    QString style;
    QString playStyle;
    QString stopStyle;
    QPushButton *button;
    QKXPlaybackControlButton::Button_Type buttonType;

protected Q_SLOTS:
    virtual void buttonClicked();

private:
    KX_DECLARE_PUBLIC(QKXPlaybackControlButton)
};

QKXPlaybackControlButtonPrivate::QKXPlaybackControlButtonPrivate(QKXPlaybackControlButton *q)
    : QKXWidgetBasePrivate(q)
    , style(styleTemplate())
    // The symbol overlays are appended to the sheet exactly as they stand, blanks included.
    , playStyle(QStringLiteral("    QPushButton {        image: url(:/images/SymbolTriangleRight.svg);     }"))
    , stopStyle(QStringLiteral("    QPushButton {        image: url(:/images/SymbolWhiteSquare.svg);     }"))
    , button(nullptr)
    , buttonType(QKXPlaybackControlButton::none)
{
}

QString QKXPlaybackControlButtonPrivate::styleTemplate()
{
    return QStringLiteral(
               "QPushButton {"
               "background-color: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 %1, stop:0.8 %2, stop:1 %3); "
               "color: white; "
               "border-style: solid; "
               "border-width: 2px; "
               "border-color: %4; "
               "border-radius: 15px; "
               "margin: 0px; "
               "min-height: 40px; "
               "max-height: 40px; "
               "min-width: 40px; "
               "max-width: 40px;}\n"
               "QPushButton:pressed {"
               "color: white; "
               "background-color: %1;}\n")
        .arg(CSS::gradientDark(), CSS::gradientMiddle(), CSS::gradientLight(), CSS::border());
}

void QKXPlaybackControlButtonPrivate::init()
{
    // Runs inside the base constructor, before the derived part exists: only the QWidget side of q
    // may be used here.
    q->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);

    button = new QPushButton(q);
    auto *layout = new QVBoxLayout(q);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(button);
    button->setObjectName(QStringLiteral("PushButton"));
    connect(button, &QPushButton::clicked, this, &QKXPlaybackControlButtonPrivate::buttonClicked);

    q->setMinimumSize(minimumSizeHint());
    button->setFocusPolicy(Qt::NoFocus);
    updateStyle();
}

void QKXPlaybackControlButtonPrivate::setEventFilter(QObject *eventFilter)
{
    QKXWidgetBasePrivate::setEventFilter(eventFilter);
    if (eventFilter) {
        button->installEventFilter(eventFilter);
    }
}

void QKXPlaybackControlButtonPrivate::updateStyle()
{
    QString sheet;
    switch (buttonType) {
    case QKXPlaybackControlButton::none:
        sheet = style;
        break;
    case QKXPlaybackControlButton::play:
        sheet = style + playStyle;
        break;
    case QKXPlaybackControlButton::stop:
        sheet = style + stopStyle;
        break;
    default:
        // Hosts' log filters look for this line as it stands, spelling included; the key is left
        // without a look, so a wrong type shows on the panel as well.
        qDebug().noquote() << "Userinterface - KXPlaybackControlButtonPrivate::updateStyle : Unknown button style.";
        break;
    }
    styles.insert(QStringLiteral("Min"), sheet);
    styles.insert(QStringLiteral("Max"), sheet);
    changeSize(currentSizeName);
}

void QKXPlaybackControlButtonPrivate::changeSize(const QString &size)
{
    // A widget that is not polished yet keeps the rules of its first sheet for its children: without
    // polishing it first, a symbol chosen on a form before the screen is first shown would never take effect. The
    // first sheet, given in init() while the widget is still being built, needs no help.
    if (!q->styleSheet().isEmpty()) {
        q->ensurePolished();
    }
    QKXWidgetBasePrivate::changeSize(size);
}

QSize QKXPlaybackControlButtonPrivate::minimumSizeHint() const
{
    return QSize(40, 40);
}

QSize QKXPlaybackControlButtonPrivate::sizeHint() const
{
    return QSize(40, 40);
}

void QKXPlaybackControlButtonPrivate::setButtonName(const QString &name)
{
    button->setObjectName(name);
}

void QKXPlaybackControlButtonPrivate::setButtonType(QKXPlaybackControlButton::Button_Type type)
{
    buttonType = type;
    updateStyle();
}

void QKXPlaybackControlButtonPrivate::buttonClicked()
{
    Q_Q(QKXPlaybackControlButton);
    // Playback keys stay live while the attribute is locked: stopping a recording must always work.
    const QObject *source = sender();
    const QString name = source ? source->objectName() : button->objectName();
    emit q->clicked();
    emit q->buttonPressed(name);
}

QKXPlaybackControlButton::QKXPlaybackControlButton(QWidget *parent)
    : QKXWidgetBase(*new QKXPlaybackControlButtonPrivate(this), parent)
{
}

QKXPlaybackControlButton::~QKXPlaybackControlButton() = default;

QKXPlaybackControlButton::Button_Type QKXPlaybackControlButton::buttonType() const
{
    Q_D(const QKXPlaybackControlButton);
    return d->buttonType;
}

void QKXPlaybackControlButton::setButtonObjectName(const QString &name)
{
    Q_D(QKXPlaybackControlButton);
    d->setButtonName(name);
}

QSize QKXPlaybackControlButton::minimumSizeHint() const
{
    Q_D(const QKXPlaybackControlButton);
    return d->minimumSizeHint();
}

QSize QKXPlaybackControlButton::sizeHint() const
{
    Q_D(const QKXPlaybackControlButton);
    // The inner key's sheet draws a 2-pixel border around its 40-pixel face; the layout's hint
    // carries that border, so a key laid out at its hint shows it whole.
    return d->sizeHint().expandedTo(QWidget::sizeHint());
}

void QKXPlaybackControlButton::setButtonName(QString bName)
{
    Q_D(QKXPlaybackControlButton);
    d->setButtonName(bName);
}

void QKXPlaybackControlButton::setLocked(bool isL)
{
    Q_D(QKXPlaybackControlButton);
    d->setLocked(isL);
}

void QKXPlaybackControlButton::setButtonType(QKXPlaybackControlButton::Button_Type bType)
{
    Q_D(QKXPlaybackControlButton);
    d->setButtonType(bType);
}

#include "QKXPlaybackControlButton.moc"
