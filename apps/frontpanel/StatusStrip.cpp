// SPDX-License-Identifier: BSD-3-Clause
#include "StatusStrip.h"

#include "AppProperties.h"

#include <QApplication>
#include <QDynamicPropertyChangeEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

StatusStrip::StatusStrip(QWidget *parent)
    : QFrame(parent)
    , grid(new QGridLayout(this))
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

    // Title, room, notice, room, the two switches; the notice moves to a line of its own in portrait.
    grid->setContentsMargins(14, 4, 8, 4);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(4);
    grid->addWidget(titleLabel, 0, 0);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    grid->addWidget(guiLockToggle, 0, 4);
    grid->addWidget(sizeToggle, 0, 5);

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
        arrange(AppProperties::isPortrait(mode));
        if (!first) {
            emit displayModeChanged(mode);
        }
    }
}

void StatusStrip::arrange(bool portrait)
{
    grid->removeWidget(noticeLabel);
    if (portrait) {
        grid->addWidget(noticeLabel, 1, 0, 1, 6, Qt::AlignHCenter);
        // As high as a notice is, shown or not: measured on a line of text, as the sheet pads it.
        const QString shown = noticeLabel->text();
        noticeLabel->ensurePolished();
        noticeLabel->setText(QStringLiteral("X"));
        grid->setRowMinimumHeight(1, noticeLabel->sizeHint().height());
        noticeLabel->setText(shown);
    } else {
        grid->addWidget(noticeLabel, 0, 2);
        grid->setRowMinimumHeight(1, 0);
    }
}
