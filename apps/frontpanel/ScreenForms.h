#ifndef SCREENFORMS_H
#define SCREENFORMS_H

#include <QString>
#include <QVector>

#include <functional>

class QWidget;

// The panel's screens, in tab order. Each is a designer form; its window title is the screen's
// title. Adding a screen is adding its form and one line to the table in ScreenForms.cpp.
struct ScreenForm {
    QString id;
    std::function<QWidget *()> build;
};

QVector<ScreenForm> screenForms();

#endif // SCREENFORMS_H
