#include "ScreenList.h"

#include <QButtonGroup>
#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <QVariant>
#include <QVBoxLayout>

static const char screenIdProperty[] = "screenId";

ScreenList::ScreenList(QWidget *parent)
    : QWidget(parent)
    , stack(new QStackedWidget(this))
    , tabLayout(nullptr)
    , tabs(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("ScreenList"));
    stack->setObjectName(QStringLiteral("ScreenStack"));

    auto *tabRow = new QFrame(this);
    tabRow->setObjectName(QStringLiteral("ScreenTabs"));
    tabLayout = new QHBoxLayout(tabRow);
    tabLayout->setContentsMargins(8, 6, 8, 6);
    tabLayout->setSpacing(6);
    tabLayout->addStretch(1);

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
    // Tabs line up from the left; the stretch stays last.
    tabLayout->insertWidget(tabLayout->count() - 1, tab);
    return index;
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
