#include "StatusStrip.h"

#include "AppProperties.h"

#include <QApplication>
#include <QDynamicPropertyChangeEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

StatusStrip::StatusStrip(QWidget *parent)
    : QFrame(parent)
    , titleLabel(new QLabel(this))
    , noticeLabel(new QLabel(this))
    , guiLockToggle(new QPushButton(tr("GUI lock"), this))
    , sizeToggle(new QPushButton(this))
{
    setObjectName(QStringLiteral("StatusStrip"));
    titleLabel->setObjectName(QStringLiteral("ScreenTitle"));
    noticeLabel->setObjectName(QStringLiteral("StatusNotice"));
    noticeLabel->setAlignment(Qt::AlignCenter);
    noticeLabel->hide();
    guiLockToggle->setObjectName(QStringLiteral("GuiLockToggle"));
    guiLockToggle->setCheckable(true);
    guiLockToggle->setFocusPolicy(Qt::NoFocus);
    sizeToggle->setObjectName(QStringLiteral("SizeToggle"));
    sizeToggle->setFocusPolicy(Qt::NoFocus);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(14, 4, 8, 4);
    layout->setSpacing(8);
    layout->addWidget(titleLabel);
    layout->addStretch(1);
    layout->addWidget(noticeLabel);
    layout->addStretch(1);
    layout->addWidget(guiLockToggle);
    layout->addWidget(sizeToggle);

    noticeTimer.setSingleShot(true);
    connect(&noticeTimer, &QTimer::timeout, noticeLabel, [this] {
        noticeLabel->clear();
        noticeLabel->hide();
    });
    connect(guiLockToggle, &QPushButton::toggled, this, [](bool locked) { AppProperties::setGuiLocked(locked); });
    connect(sizeToggle, &QPushButton::clicked, this, &StatusStrip::cycleDisplayMode);

    // The properties belong to the application object and anyone may set them (the command line,
    // a test, a future remote control); the strip watches them instead of owning them.
    qApp->installEventFilter(this);
    syncFromApplication();
}

StatusStrip::~StatusStrip() = default;

void StatusStrip::setTitle(const QString &title)
{
    titleLabel->setText(title);
}

QString StatusStrip::title() const
{
    return titleLabel->text();
}

void StatusStrip::showNotice(const QString &text, NoticeKind kind, int durationMs)
{
    noticeLabel->setText(text);
    noticeLabel->setProperty("kind", kind == Warning ? QStringLiteral("warning") : QStringLiteral("info"));
    // The sheet selects on "kind"; a changed property only counts once the label is polished again.
    noticeLabel->style()->unpolish(noticeLabel);
    noticeLabel->style()->polish(noticeLabel);
    noticeLabel->show();
    noticeTimer.start(durationMs);
}

QString StatusStrip::notice() const
{
    return noticeLabel->text();
}

bool StatusStrip::eventFilter(QObject *watched, QEvent *event)
{
    // Installed on the application object, so every event of the program passes here; only the
    // application's own property changes are of interest.
    if (watched == qApp && event->type() == QEvent::DynamicPropertyChange) {
        syncFromApplication();
    }
    return QFrame::eventFilter(watched, event);
}

void StatusStrip::cycleDisplayMode()
{
    const QStringList modes = AppProperties::displayModes();
    const int next = (modes.indexOf(AppProperties::displayMode()) + 1) % modes.size();
    AppProperties::setDisplayMode(modes.at(next));
}

void StatusStrip::syncFromApplication()
{
    {
        // Following the property must not write it back.
        const QSignalBlocker blocker(guiLockToggle);
        guiLockToggle->setChecked(AppProperties::isGuiLocked());
    }
    const QString mode = AppProperties::displayMode();
    sizeToggle->setText(tr("Size: %1").arg(mode));
    if (mode != shownDisplayMode) {
        const bool first = shownDisplayMode.isEmpty();
        shownDisplayMode = mode;
        if (!first) {
            emit displayModeChanged(mode);
        }
    }
}
