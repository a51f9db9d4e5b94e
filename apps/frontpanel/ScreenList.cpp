// SPDX-License-Identifier: BSD-3-Clause
#include "ScreenList.h"

#include <QButtonGroup>
#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <QVariant>
#include <QVBoxLayout>

static const char screenIdProperty[] = "screenId";

ScreenList::ScreenList(QWidget *parent)
    : QWidget(parent)
    , stack(new QStackedWidget(this))
    , tabRow(new QFrame(this))
    , tabLayout(new QGridLayout(tabRow))
    , tabs(new QButtonGroup(this))
    , tabsPerRow(0)
    , tabRows(0)
{
    setObjectName(QStringLiteral("ScreenList"));
    stack->setObjectName(QStringLiteral("ScreenStack"));

    tabRow->setObjectName(QStringLiteral("ScreenTabs"));
    tabLayout->setContentsMargins(8, 6, 8, 6);
    tabLayout->setSpacing(6);
    tabRow->installEventFilter(this);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(stack, 1);
    layout->addWidget(tabRow);

    tabs->setExclusive(true);
    connect(tabs, &QButtonGroup::idClicked, this, &ScreenList::setCurrentIndex);
    connect(stack, &QStackedWidget::currentChanged, this, [this](int index) {
        if (QAbstractButton *tab = tabs->button(index)) {
            tab->setChecked(true);
        }
        emit currentScreenChanged(index);
    });
}

ScreenList::~ScreenList() = default;

int ScreenList::addScreen(const QString &id, const QString &title, QWidget *page)
{
    page->setProperty(screenIdProperty, id);
    page->setWindowTitle(title);
    const int index = stack->addWidget(page);

    auto *tab = new QPushButton(title);
    tab->setObjectName(QStringLiteral("ScreenTab"));
    tab->setCheckable(true);
    tab->setFocusPolicy(Qt::NoFocus);
    tab->setChecked(index == stack->currentIndex());
    tabs->addButton(tab, index);
    tab->setParent(tabRow);
    tabsPerRow = 0;
    layOutTabs();
    return index;
}

int ScreenList::tabRowCount() const
{
    return tabRows;
}

bool ScreenList::eventFilter(QObject *watched, QEvent *event)
{
    // The window changes shape with the display mode; the tabs follow its width.
    if (watched == tabRow && event->type() == QEvent::Resize) {
        layOutTabs();
    }
    return QWidget::eventFilter(watched, event);
}

void ScreenList::layOutTabs()
{
    const QList<QAbstractButton *> buttons = tabs->buttons();
    if (buttons.isEmpty()) {
        return;
    }
    int widest = 0;
    for (const QAbstractButton *tab : buttons) {
        // The current tab's text is bold: every tab keeps room for that.
        QFont bold = tab->font();
        bold.setBold(true);
        const int boldExtra = QFontMetrics(bold).horizontalAdvance(tab->text()) - tab->fontMetrics().horizontalAdvance(tab->text());
        widest = qMax(widest, tab->sizeHint().width() + boldExtra);
    }
    const QMargins margins = tabLayout->contentsMargins();
    const int available = tabRow->width() - margins.left() - margins.right();
    const int spacing = tabLayout->horizontalSpacing();
    const int fitting = qMax(1, (available + spacing) / (widest + spacing));
    // Rows of equal length: seven tabs that fit five to a row go four and three, not five and two.
    const int rows = (buttons.size() + fitting - 1) / fitting;
    const int perRow = (buttons.size() + rows - 1) / rows;
    if (perRow == tabsPerRow) {
        return;
    }
    tabsPerRow = perRow;
    tabRows = rows;
    for (QAbstractButton *tab : buttons) {
        tabLayout->removeWidget(tab);
    }
    for (int column = 0; column < tabLayout->columnCount(); ++column) {
        tabLayout->setColumnStretch(column, 0);
    }
    for (QAbstractButton *tab : buttons) {
        const int index = tabs->id(tab);
        tabLayout->addWidget(tab, index / perRow, index % perRow);
    }
    for (int column = 0; column < perRow; ++column) {
        tabLayout->setColumnStretch(column, 1);
    }
}

int ScreenList::count() const
{
    return stack->count();
}

QWidget *ScreenList::screen(int index) const
{
    return stack->widget(index);
}

QString ScreenList::screenId(int index) const
{
    const QWidget *page = stack->widget(index);
    return page ? page->property(screenIdProperty).toString() : QString();
}

QString ScreenList::screenTitle(int index) const
{
    const QWidget *page = stack->widget(index);
    return page ? page->windowTitle() : QString();
}

int ScreenList::indexOfScreenHolding(const QWidget *widget) const
{
    for (int i = 0; i < stack->count(); ++i) {
        const QWidget *page = stack->widget(i);
        if (widget && (widget == page || page->isAncestorOf(widget))) {
            return i;
        }
    }
    return -1;
}

int ScreenList::currentIndex() const
{
    return stack->currentIndex();
}

void ScreenList::setCurrentIndex(int index)
{
    if (index < 0 || index >= stack->count()) {
        return;
    }
    stack->setCurrentIndex(index);
}
