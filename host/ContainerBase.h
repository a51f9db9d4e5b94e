// SPDX-License-Identifier: BSD-3-Clause
#ifndef CONTAINERBASE_H
#define CONTAINERBASE_H

#include "norvanehost_export.h"

#include <QScopedPointer>
#include <QWidget>

class QFrame;
class QLayout;
class ContainerBasePrivate;

// A framed container: an outer "BorderFrame" holding a "ContainerControl" title bar (title text and,
// on request, a close key) above the content frame that takes the editor's layout and style sheet.
// Shown and hidden like any widget, it announces both with WindowOpened() and WindowClosed().
class NORVANEHOST_EXPORT ContainerBase : public QWidget
{
    Q_OBJECT
public:
    // Bits of the second argument of setWindowTitle().
    enum TitleFlag {
        NoTitleButtons = 0,
        CloseButton = 0x1   // a close key in the title bar; it hides the container
    };

    explicit ContainerBase(QWidget *parent = nullptr);
    ~ContainerBase() override;

    // The frame that holds the content; editors put their layout and style sheet on it.
    QFrame *getContainerFrame() const;
    QFrame *borderFrame() const;
    QWidget *controlWidget() const;

    // Installs the layout on the content frame (replacing any earlier one). With adjust, the
    // container then takes the size the layout asks for.
    void setLayout(QLayout *layout, bool adjust = true);

    // The title shown in the "ContainerControl" bar; flags are TitleFlag bits.
    void setWindowTitle(const QString &title, int flags = NoTitleButtons);
    QString windowTitle() const;

    // Whether the container draws a border of its own around the content.
    void setBorder(bool border);
    bool hasBorder() const;

    bool isVisible() const;

Q_SIGNALS:
    void WindowOpened();
    void WindowClosed();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    Q_DISABLE_COPY(ContainerBase)
    QScopedPointer<ContainerBasePrivate> d_ptr;
    Q_DECLARE_PRIVATE(ContainerBase)
};

#endif // CONTAINERBASE_H
