#ifndef SCREENLIST_H
#define SCREENLIST_H

#include <QWidget>

class QButtonGroup;
class QHBoxLayout;
class QStackedWidget;

// The panel's screens, one at a time, with a row of tabs along the bottom to switch between them.
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

Q_SIGNALS:
    void currentScreenChanged(int index);

private:
    QStackedWidget *stack;
    QHBoxLayout *tabLayout;
    QButtonGroup *tabs;
};

#endif // SCREENLIST_H
