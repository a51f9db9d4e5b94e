// SPDX-License-Identifier: BSD-3-Clause
#ifndef TOPCONTAINER_H
#define TOPCONTAINER_H

#include <QWidget>

// The window's central area, above every screen. Widgets find it by its object name
// "TopContainerObject" walking up their parents; open prompts close when it announces WindowClosed().
class TopContainer : public QWidget
{
    Q_OBJECT
public:
    explicit TopContainer(QWidget *parent = nullptr);
    ~TopContainer() override;

Q_SIGNALS:
    void WindowOpened();
    void WindowClosed();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
};

#endif // TOPCONTAINER_H
