// SPDX-License-Identifier: BSD-3-Clause
#include "SimpleFileBrowser.h"

#include "CSS.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScroller>
#include <QVBoxLayout>

namespace {

// Rows and keys sized for a fingertip on the panel.
const int RowHeight = 48;
const int KeyHeight = 50;

const int IsFolderRole = Qt::UserRole + 1;

QString browser_styleSheet()
{
    return QStringLiteral(
               "SimpleFileBrowser { background-color: %1; }\n"
               "QLabel#BrowserTitle { color: %2; font-size: 20px; font-weight: bold; }\n"
               "QLabel#BrowserPath { color: white; font-size: 14px; }\n"
               "QListWidget { background-color: %3; color: white; font-size: 18px; border: 2px solid %4;"
               " border-radius: 10px; padding: 4px; outline: none; }\n"
               "QListWidget::item { border-bottom: 1px solid %5; padding-left: 10px; }\n"
               "QListWidget::item:selected { background-color: %2; color: black; border-radius: 6px; }\n"
               "QPushButton { color: white; font-size: 18px; min-width: 110px; border: 2px solid %4;"
               " border-radius: 12px; background-color: qlineargradient(x1:0, y1:0, x2:0, y2:1,"
               " stop:0 %3, stop:0.8 %5, stop:1 %6); }\n"
               "QPushButton:pressed { background-color: %3; }\n"
               "QPushButton:disabled { color: #7d8794; border-color: #66707c; }\n")
        .arg(CSS::gradientDark(), CSS::highlight(), CSS::gradientDark(), CSS::border(), CSS::gradientMiddle(),
             CSS::gradientLight());
}

} // namespace

SimpleFileBrowser::SimpleFileBrowser(QWidget *parent)
    : QFrame(parent)
    , root(QDir::home())
    , current(QDir::home())
    , titleLabel(new QLabel(tr("Load file"), this))
    , pathLabel(new QLabel(this))
    , list(new QListWidget(this))
    , upKey(new QPushButton(tr("Up"), this))
    , openKey(new QPushButton(tr("Open"), this))
    , cancelKey(new QPushButton(tr("Cancel"), this))
{
    setObjectName(QStringLiteral("SimpleFileBrowser"));
    setAttribute(Qt::WA_StyledBackground, true);
    titleLabel->setObjectName(QStringLiteral("BrowserTitle"));
    pathLabel->setObjectName(QStringLiteral("BrowserPath"));
    list->setObjectName(QStringLiteral("BrowserList"));
    upKey->setObjectName(QStringLiteral("BrowserUp"));
    openKey->setObjectName(QStringLiteral("BrowserOpen"));
    cancelKey->setObjectName(QStringLiteral("BrowserCancel"));

    list->setUniformItemSizes(true);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    // A finger drags the list; a tap without a drag still selects.
    QScroller::grabGesture(list->viewport(), QScroller::LeftMouseButtonGesture);
    for (QPushButton *key : {upKey, openKey, cancelKey}) {
        key->setFocusPolicy(Qt::NoFocus);
        key->setMinimumHeight(KeyHeight);
    }

    auto *header = new QVBoxLayout;
    header->setSpacing(2);
    header->addWidget(titleLabel);
    header->addWidget(pathLabel);
    auto *keys = new QHBoxLayout;
    keys->setSpacing(12);
    keys->addWidget(upKey);
    keys->addStretch(1);
    keys->addWidget(cancelKey);
    keys->addWidget(openKey);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->setSpacing(10);
    layout->addLayout(header);
    layout->addWidget(list, 1);
    layout->addLayout(keys);
    setStyleSheet(browser_styleSheet());

    connect(list, &QListWidget::itemClicked, this, &SimpleFileBrowser::rowTapped);
    connect(list, &QListWidget::currentItemChanged, this, &SimpleFileBrowser::updateKeys);
    connect(upKey, &QPushButton::clicked, this, [this] {
        if (current != root) {
            showFolder(QDir::cleanPath(current.absoluteFilePath(QStringLiteral(".."))));
        }
    });
    connect(openKey, &QPushButton::clicked, this, &SimpleFileBrowser::chooseSelected);
    connect(cancelKey, &QPushButton::clicked, this, &SimpleFileBrowser::cancel);

    if (parent) {
        parent->installEventFilter(this);
    }
    hide();
    showFolder(root.absolutePath());
}

SimpleFileBrowser::~SimpleFileBrowser() = default;

void SimpleFileBrowser::setRootPath(const QString &path)
{
    root = QDir(QDir::cleanPath(QDir(path).absolutePath()));
    showFolder(root.absolutePath());
}

QString SimpleFileBrowser::rootPath() const
{
    return root.absolutePath();
}

QString SimpleFileBrowser::currentPath() const
{
    return current.absolutePath();
}

void SimpleFileBrowser::setNameFilters(const QStringList &filters)
{
    nameFilters = filters;
    showFolder(current.absolutePath());
}

void SimpleFileBrowser::setTitle(const QString &title)
{
    titleLabel->setText(title);
}

QStringList SimpleFileBrowser::entries() const
{
    QStringList names;
    for (int row = 0; row < list->count(); ++row) {
        names << list->item(row)->text();
    }
    return names;
}

QString SimpleFileBrowser::selectedFile() const
{
    const QListWidgetItem *item = list->currentItem();
    if (!item || item->data(IsFolderRole).toBool()) {
        return QString();
    }
    return current.absoluteFilePath(item->text());
}

void SimpleFileBrowser::open()
{
    showFolder(root.absolutePath());
    fitToParent();
    show();
    raise();
}

bool SimpleFileBrowser::activate(const QString &entry)
{
    const QList<QListWidgetItem *> found = list->findItems(entry, Qt::MatchExactly);
    if (found.isEmpty()) {
        return false;
    }
    list->setCurrentItem(found.first());
    rowTapped(found.first());
    return true;
}

void SimpleFileBrowser::chooseSelected()
{
    const QString path = selectedFile();
    if (path.isEmpty()) {
        return;
    }
    // Closed before the answer goes out: whoever listens may open the next screen at once.
    hide();
    emit fileSelected(path);
}

void SimpleFileBrowser::cancel()
{
    hide();
    emit cancelled();
}

bool SimpleFileBrowser::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible()) {
        fitToParent();
    }
    return QFrame::eventFilter(watched, event);
}

void SimpleFileBrowser::showFolder(const QString &path)
{
    QDir folder(QDir::cleanPath(path));
    // Never above the root, whatever a path with ".." says.
    const QString rootPath = root.absolutePath();
    if (folder.absolutePath() != rootPath && !folder.absolutePath().startsWith(rootPath + QLatin1Char('/'))) {
        folder = root;
    }
    current = folder;

    list->clear();
    const QFileInfoList folders =
        current.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Readable, QDir::Name | QDir::IgnoreCase);
    for (const QFileInfo &info : folders) {
        auto *item = new QListWidgetItem(info.fileName() + QLatin1Char('/'), list);
        item->setData(IsFolderRole, true);
        item->setSizeHint(QSize(0, RowHeight));
    }
    const QFileInfoList files =
        current.entryInfoList(nameFilters, QDir::Files | QDir::Readable, QDir::Name | QDir::IgnoreCase);
    for (const QFileInfo &info : files) {
        auto *item = new QListWidgetItem(info.fileName(), list);
        item->setData(IsFolderRole, false);
        item->setSizeHint(QSize(0, RowHeight));
    }
    list->setCurrentItem(nullptr);

    const QString relative = root.relativeFilePath(current.absolutePath());
    pathLabel->setText(relative == QLatin1String(".") ? rootPath : rootPath + QLatin1Char('/') + relative);
    updateKeys();
}

void SimpleFileBrowser::rowTapped(QListWidgetItem *item)
{
    if (!item) {
        return;
    }
    if (item->data(IsFolderRole).toBool()) {
        QString name = item->text();
        name.chop(1);
        showFolder(current.absoluteFilePath(name));
        return;
    }
    updateKeys();
}

void SimpleFileBrowser::updateKeys()
{
    openKey->setEnabled(!selectedFile().isEmpty());
    upKey->setEnabled(current != root);
}

void SimpleFileBrowser::fitToParent()
{
    if (QWidget *screen = parentWidget()) {
        setGeometry(screen->rect());
    }
}
