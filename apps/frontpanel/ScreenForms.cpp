#include "ScreenForms.h"

#include "ui_ChoicesScreen.h"
#include "ui_CommandsScreen.h"
#include "ui_NumericScreen.h"
#include "ui_SwitchesScreen.h"
#include "ui_UnitsScreen.h"

#include <QWidget>

// The generated form class only fills a widget; the widgets it creates belong to that widget, so
// the form object itself is not needed once it has run.
template <typename Form>
static ScreenForm screenforms_entry(const char *id)
{
    return {QString::fromLatin1(id), [] {
                auto *page = new QWidget;
                Form form;
                form.setupUi(page);
                return page;
            }};
}

QVector<ScreenForm> screenForms()
{
    return {
        screenforms_entry<Ui::CommandsScreen>("commands"),
        screenforms_entry<Ui::SwitchesScreen>("switches"),
        screenforms_entry<Ui::NumericScreen>("numeric"),
        screenforms_entry<Ui::UnitsScreen>("units"),
        screenforms_entry<Ui::ChoicesScreen>("choices"),
    };
}
