// The units screen's scripted roads; the rest of ScriptedSession is in ScriptedSession.cpp.
#include "ScriptedSession.h"

#include "EditLockOwner.h"
#include "MainWindow.h"
#include "SimulatedEngine.h"
#include "WidgetNaming.h"

#include "QKXDoubleValueList.h"
#include "QKXListDoubleValueObj.h"
#include "QKXNumericValueObj.h"
#include "QKXNumpad.h"
#include "QKXRichTextPushButton.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCoreApplication>
#include <QDir>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>

namespace {

void sessionunits_tap(QWidget *target, const QPoint &at)
{
    for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const Qt::MouseButtons buttons = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, at, target->window()->mapFromGlobal(target->mapToGlobal(at)), target->mapToGlobal(at),
                          Qt::LeftButton, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &event);
    }
}

void sessionunits_tap(QWidget *target)
{
    sessionunits_tap(target, target->rect().center());
}

template <typename Widget>
Widget *sessionunits_field(QWidget *window, const QString &attribute)
{
    for (Widget *candidate : window->findChildren<Widget *>()) {
        if (WidgetNaming::boundAttribute(candidate) == attribute) {
            return candidate;
        }
    }
    return nullptr;
}

} // namespace

bool ScriptedSession::playUnitsRoads(const QDir &directory, QStringList &images)
{
    SimulatedEngine *engine = window->engine();
    EditLockOwner *lock = window->lockOwner();

    // The generator frequency: shown in MHz, typed in kHz, kept by the engine in Hz.
    auto *frequency = sessionunits_field<QKXNumericValueObj>(window, QStringLiteral("GeneratorFrequency"));
    if (!frequency) {
        return fail(QStringLiteral("no field with units is bound to GeneratorFrequency"));
    }
    auto *display = frequency->findChild<QLineEdit *>();
    if (!display || !showScreenOf(frequency, QStringLiteral("the GeneratorFrequency field"))) {
        return false;
    }
    engine->appendLog(QStringLiteral("tap GeneratorFrequency (%1 %2)").arg(display->text(), frequency->currentUnitName()));
    sessionunits_tap(frequency, display->geometry().center());
    QKXNumpad *pad = nullptr;
    if (!waitFor([&] {
            pad = window->findChild<QKXNumpad *>();
            return pad && pad->isVisible() && pad->registeredWidget() == frequency && lock->holder() == frequency;
        }, 2000)) {
        return fail(QStringLiteral("the numeric pad did not open for GeneratorFrequency"));
    }
    QPushButton *kHzKey = pad->unitButton(1);
    if (!kHzKey || !kHzKey->isVisible()) {
        return fail(QStringLiteral("the numeric pad shows no kHz key for GeneratorFrequency"));
    }
    engine->appendLog(QStringLiteral("keys 2 . 5, then kHz"));
    for (const char *name : {"2", "dot", "5"}) {
        QPushButton *key = pad->button(QLatin1String(name));
        if (!key || !key->isEnabled()) {
            return fail(QStringLiteral("the numeric pad has no usable %1 key").arg(QLatin1String(name)));
        }
        sessionunits_tap(key);
    }
    const QString padOpen = renderWindow(directory, QStringLiteral("units-GeneratorFrequency-pad-open"));
    if (padOpen.isEmpty()) {
        return false;
    }
    images.append(padOpen);
    sessionunits_tap(kHzKey);
    if (!waitFor([&] { return lock->isFree() && !pad->isVisible() && display->text() == QLatin1String("2.500"); }, 2000)
        || engine->value(QStringLiteral("GeneratorFrequency")).toDouble() != 2500.0
        || frequency->currentUnitName() != QLatin1String("kHz")) {
        return fail(QStringLiteral("after kHz the GeneratorFrequency field shows \"%1 %2\", the engine holds %3 Hz")
                        .arg(display->text(), frequency->currentUnitName(),
                             engine->value(QStringLiteral("GeneratorFrequency")).toString()));
    }
    const QString committed = renderWindow(directory, QStringLiteral("units-GeneratorFrequency-committed"));
    if (committed.isEmpty()) {
        return false;
    }
    images.append(committed);

    // The resolution bandwidth: one of the analyser's filters, from its discrete list.
    auto *bandwidth = sessionunits_field<QKXListDoubleValueObj>(window, QStringLiteral("ResolutionBandwidth"));
    if (!bandwidth) {
        return fail(QStringLiteral("no discrete value list is bound to ResolutionBandwidth"));
    }
    auto *bandwidthDisplay = bandwidth->findChild<QLineEdit *>();
    engine->appendLog(QStringLiteral("tap ResolutionBandwidth (%1 %2)").arg(bandwidthDisplay->text(), bandwidth->currentUnitName()));
    sessionunits_tap(bandwidth, bandwidthDisplay->geometry().center());
    QKXDoubleValueList *list = nullptr;
    if (!waitFor([&] {
            list = window->findChild<QKXDoubleValueList *>();
            return list && list->isVisible() && list->widget() == bandwidth;
        }, 2000)) {
        return fail(QStringLiteral("the discrete value list did not open for ResolutionBandwidth"));
    }
    QAbstractButton *choice = nullptr;
    for (QAbstractButton *button : list->buttonGroup()->buttons()) {
        auto *item = qobject_cast<QKXRichTextPushButton *>(button);
        if (item && item->isVisible() && item->text() == QLatin1String("30 kHz")) {
            choice = button;
        }
    }
    if (!choice) {
        return fail(QStringLiteral("the discrete value list offers no 30 kHz"));
    }
    const QString listOpen = renderWindow(directory, QStringLiteral("units-ResolutionBandwidth-list-open"));
    if (listOpen.isEmpty()) {
        return false;
    }
    images.append(listOpen);
    engine->appendLog(QStringLiteral("choose 30 kHz"));
    sessionunits_tap(choice);
    if (!waitFor([&] { return lock->isFree() && !list->isVisible() && bandwidthDisplay->text() == QLatin1String("30"); }, 2000)
        || engine->value(QStringLiteral("ResolutionBandwidth")).toDouble() != 30000.0) {
        return fail(QStringLiteral("after 30 kHz the ResolutionBandwidth field shows \"%1\", the engine holds %2 Hz")
                        .arg(bandwidthDisplay->text(), engine->value(QStringLiteral("ResolutionBandwidth")).toString()));
    }
    const QString chosen = renderWindow(directory, QStringLiteral("units-ResolutionBandwidth-chosen"));
    if (chosen.isEmpty()) {
        return false;
    }
    images.append(chosen);
    return true;
}
