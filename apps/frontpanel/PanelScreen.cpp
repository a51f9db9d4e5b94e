// SPDX-License-Identifier: BSD-3-Clause
#include "PanelScreen.h"

PanelScreen::PanelScreen(QObject *parent)
    : QObject(parent)
{
}

PanelScreen::~PanelScreen() = default;

void PanelScreen::addAttributes(SimulatedEngine &)
{
}

bool PanelScreen::play(ScreenRunner &)
{
    return true;
}

QWidget *PanelScreen::page() const
{
    return builtPage.data();
}

QWidget *PanelScreen::buildPage()
{
    if (!builtPage) {
        builtPage = createPage();
    }
    return builtPage.data();
}
