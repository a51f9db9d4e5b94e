// SPDX-License-Identifier: BSD-3-Clause
#ifndef STATUSSTRIP_H
#define STATUSSTRIP_H

#include <QFrame>
#include <QTimer>

class QGridLayout;
class QLabel;
class QPushButton;

// The strip along the top of the panel: the current screen's title, a transient notice, and the
// switches for the interface lock and the display mode. The switches write the application's
// properties and follow them, whoever changes them. On the narrow portrait panel the notice has a
// line of its own under the others, kept free while no notice shows so the screen never jumps.
class StatusStrip : public QFrame
{
    Q_OBJECT
public:
    enum NoticeKind { Information, Warning };

    explicit StatusStrip(QWidget *parent = nullptr);
    ~StatusStrip() override;

    void setTitle(const QString &title);
    QString title() const;

    // Shows the text for a few seconds; a new notice replaces the one shown.
    void showNotice(const QString &text, NoticeKind kind = Information, int durationMs = 3000);
    QString notice() const;

Q_SIGNALS:
    void displayModeChanged(const QString &mode);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void cycleDisplayMode();
    void syncFromApplication();
    void arrange(bool portrait);

    QGridLayout *grid;
    QLabel *titleLabel;
    QLabel *noticeLabel;
    QPushButton *guiLockToggle;
    QPushButton *sizeToggle;
    QTimer noticeTimer;
    QString shownDisplayMode;
};

#endif // STATUSSTRIP_H
