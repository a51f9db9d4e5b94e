// SPDX-License-Identifier: BSD-3-Clause
#ifndef SIMPLEFILEBROWSER_H
#define SIMPLEFILEBROWSER_H

#include <QDir>
#include <QFrame>

class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;

// The panel's file chooser, registered as the host screen "SimpleFileBrowser". It lays itself over
// the screen it belongs to and lists one folder under a root the user cannot leave: a tap on a
// folder opens it, a tap on a file selects it, "Open" chooses it. Browse buttons listen to its two
// signals; a granted tap takes them over, so the browser never relies on connections of its own to
// them and closes itself before it announces the answer.
class SimpleFileBrowser : public QFrame
{
    Q_OBJECT
public:
    explicit SimpleFileBrowser(QWidget *parent = nullptr);
    ~SimpleFileBrowser() override;

    // The folder the browser opens in and the highest one it shows.
    void setRootPath(const QString &path);
    QString rootPath() const;
    QString currentPath() const;

    // Only files matching one of these ("*.cfg") are listed; folders always are.
    void setNameFilters(const QStringList &filters);

    void setTitle(const QString &title);

    // The rows as shown: folders first, each ending in "/", then files, both in name order.
    QStringList entries() const;
    // The file selected for "Open", as a full path; "" when none is.
    QString selectedFile() const;

public Q_SLOTS:
    // Covers the parent screen, showing the root folder.
    void open();
    // What a tap on the row with this name does: a folder is opened, a file selected. False for a
    // name that is not listed.
    bool activate(const QString &entry);
    // What "Open" does; nothing while no file is selected.
    void chooseSelected();
    // What "Cancel" does.
    void cancel();

Q_SIGNALS:
    void fileSelected(const QString &path);
    void cancelled();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showFolder(const QString &path);
    void rowTapped(QListWidgetItem *item);
    void updateKeys();
    void fitToParent();

    QDir root;
    QDir current;
    QStringList nameFilters;
    QLabel *titleLabel;
    QLabel *pathLabel;
    QListWidget *list;
    QPushButton *upKey;
    QPushButton *openKey;
    QPushButton *cancelKey;
};

#endif // SIMPLEFILEBROWSER_H
