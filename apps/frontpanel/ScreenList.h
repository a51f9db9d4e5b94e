// SPDX-License-Identifier: BSD-3-Clause
#ifndef SCREENLIST_H
#define SCREENLIST_H

#include <QWidget>

class QButtonGroup;
class QFrame;
class QGridLayout;
class QStackedWidget;

// The panel's screens, one at a time, with tabs along the bottom to switch between them. The tabs
// share the width evenly; when they no longer fit in one row at their natural width they wrap into
// rows of equal length, so that screens can be added without a tab running off the panel.
class ScreenList : public QWidget
{
    Q_OBJECT
public:
    explicit ScreenList(QWidget *parent = nullptr);
    ~ScreenList() override;

    // Takes ownership of the page. The id names the screen in files and on the command line; the
    // title is what its tab and the status strip show.
    int addScreen(const QString &id, const QString &title, QWidget *page);

    int count() const;
    QWidget *screen(int index) const;
    QString screenId(int index) const;
    QString screenTitle(int index) const;
    // The screen that holds the widget, or -1.
    int indexOfScreenHolding(const QWidget *widget) const;

    int currentIndex() const;
    void setCurrentIndex(int index);

    // How many rows the tabs take now.
    int tabRowCount() const;

Q_SIGNALS:
    void currentScreenChanged(int index);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void layOutTabs();

    QStackedWidget *stack;
    QFrame *tabRow;
    QGridLayout *tabLayout;
    QButtonGroup *tabs;
    int tabsPerRow;
    int tabRows;
};

#endif // SCREENLIST_H
