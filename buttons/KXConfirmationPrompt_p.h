// SPDX-License-Identifier: BSD-3-Clause
#ifndef KXCONFIRMATIONPROMPT_P_H
#define KXCONFIRMATIONPROMPT_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: what the two confirmation buttons and their filters share.
//

#include <QString>

class QMouseEvent;
class QObject;
class QWidget;

// The four designer properties that describe a confirmation prompt.
struct KXPromptSettings
{
    QString dialogText;
    QString titleText;
    int buttonStyle = 1;
    int promptStyle = 1;
};

namespace KXConfirmationPrompt {

// The answer keys of a ButtonStyle as "Label,code|Label,code"; code 1 confirms. Empty for a style
// that offers none: displayPrompt() reports it, since such a prompt only ends with its window.
QString answerKeys(int buttonStyle);

// Shows the widget's prompt, reading its texts and ButtonStyle by name. True when the answer confirms.
// A widget without buttonStyle() is reported and asked No/Yes, as a new button would ask.
bool displayPrompt(const QObject *filter, QWidget *widget);

// Runs the host's modal prompt over the main window and returns the chosen answer's code (another
// value when the prompt is cancelled). The filter's ancestors are searched for the top container,
// whose closing cancels the prompt. Question and title are translated in the "KXConfirmationPrompt"
// context (the host's dialog translates the answer keys). Without a main window, or a top container
// with WindowClosed(), the prompt still opens (as a window of its own) and the gap is reported.
// The prompt runs an event loop: a filter whose button went meanwhile swallows the release and
// touches nothing more.
int displayDialog(const QObject *filter, const QString &title, const QString &text, const QString &keys);

// A release that counts as a tap: inside what received it, after a press that did not drag, on an
// enabled control.
bool isTap(QObject *watched, QWidget *widget, QMouseEvent *event, bool moved);

// The widget's PromptStyle; a widget without one is prompted as a new confirmation button is.
int promptStyle(const QObject *filter, QWidget *widget);

// A release the filter swallows leaves the inner button held down; this lets it go without a click.
void releaseWithoutClick(QObject *watched);

} // namespace KXConfirmationPrompt

#endif // KXCONFIRMATIONPROMPT_P_H
