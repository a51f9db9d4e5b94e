// SPDX-License-Identifier: BSD-3-Clause
#include "PanelScreen.h"

// The header of every screen in screens/, gathered by the build.
#include "PanelScreenHeaders.h"

std::vector<std::unique_ptr<PanelScreen>> createPanelScreens()
{
    std::vector<std::unique_ptr<PanelScreen>> screens;
    // The panel's screens, in tab order: one line each.
    screens.emplace_back(new CommandsScreen);
    screens.emplace_back(new SwitchesScreen);
    screens.emplace_back(new NumericScreen);
    screens.emplace_back(new UnitsScreen);
    screens.emplace_back(new ChoicesScreen);
    screens.emplace_back(new SlidersScreen);
    screens.emplace_back(new SettingsScreen);
    screens.emplace_back(new TextScreen);
    screens.emplace_back(new MetersScreen);
    screens.emplace_back(new SpectrumScreen);
    screens.emplace_back(new ConstellationScreen);
    return screens;
}
