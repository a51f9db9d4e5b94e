// SPDX-License-Identifier: BSD-3-Clause
#include "QKXTableEnum.h"

#include "QKXEnumRecord.h"
#include "QKXWidgetBase_p.h"
#include "TableViewImpl.h"

#include <QCoreApplication>
#include <QDebug>
#include <QHash>
#include <QHeaderView>
#include <QItemSelection>
#include <QPainter>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QVBoxLayout>

// Every cell text starts with this indent, which keeps the text clear of the rounded bar's end.
static const QString kxtable_Indent = QStringLiteral("   ");

class QKXTableEnumPrivate : public QKXWidgetBasePrivate
{
public:
    explicit QKXTableEnumPrivate(QKXTableEnum *q);

    void init() override;
    void setReadOnly(bool readOnly) override;
    void changeSize(const QString &size) override;
    void setEventFilter(QObject *filter) override;

    virtual QVariant metaData() const;
    virtual int currentIndex() const;
    virtual void setColumnHeading(const QString &heading);
    virtual QString getColumnHeading() const;
    virtual QString getLiteral(long value) const;
    virtual bool literalExists(QString text) const;
    virtual bool getSplitByCSV() const;
    virtual void setSplitByCSV(bool split);
    virtual QString getColumnWidths() const;
    virtual void setColumnWidths(const QString &widths);
    virtual int rowCount() const;
    virtual int getRowIndex(int row) const;
    virtual void retranslate();
    virtual void setMetaData(const QVariant &record);
    virtual void setIndex(int value);
    virtual void paintRow();
    virtual void resizeColumns();
    virtual void onShow();

    void enableSelection(bool on);
    bool selectionEnabled() const;
    int highlightedRow() const;

    Norvane::gui::TableViewImpl *tableView;
    QStandardItemModel *model;
    QVariant metaDataValue;
    QString columnHeading;
    QString columnWidths;
    bool splitCSV;
    int currentIndexValue;
    QHash<int, int> rowByValue;
    // The value each row's own entry carries; a row whose value a later entry took over has none.
    QVector<int> valueByRow;

private:
    KX_DECLARE_PUBLIC(QKXTableEnum)
};

QKXTableEnumPrivate::QKXTableEnumPrivate(QKXTableEnum *q)
    : QKXWidgetBasePrivate(q)
    , tableView(nullptr)
    , model(nullptr)
    , columnHeading(QStringLiteral("Data Source"))
    , columnWidths(QStringLiteral("100"))
    , splitCSV(false)
    , currentIndexValue(0)
{
}

void QKXTableEnumPrivate::init()
{
    tableView = new Norvane::gui::TableViewImpl(q);
    tableView->setObjectName(QStringLiteral("TableView"));
    model = new QStandardItemModel(0, 1, q);
    model->setHeaderData(0, Qt::Horizontal, columnHeading, Qt::EditRole);
    tableView->setModel(model);
    tableView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    tableView->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    qRegisterMetaType<QItemSelection>("QItemSelection");
    // The bar behind the current row is painted by the widget, under the rows: follow their scrolling.
    connect(tableView->verticalScrollBar(), &QScrollBar::valueChanged, q, [this] { q->update(); });

    auto *layout = new QVBoxLayout(q);
    layout->addWidget(tableView);
    q->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    updateStyle();
}

void QKXTableEnumPrivate::setReadOnly(bool value)
{
    readOnly = value;
    enableSelection(!value);
}

void QKXTableEnumPrivate::changeSize(const QString &size)
{
    QKXWidgetBasePrivate::changeSize(size);
    retranslate();
}

void QKXTableEnumPrivate::setEventFilter(QObject *eventFilter)
{
    QKXWidgetBasePrivate::setEventFilter(eventFilter);
    if (eventFilter) {
        // Taps land on the rows, which the viewport receives.
        tableView->viewport()->installEventFilter(eventFilter);
    }
}

QVariant QKXTableEnumPrivate::metaData() const
{
    return metaDataValue;
}

int QKXTableEnumPrivate::currentIndex() const
{
    return currentIndexValue;
}

void QKXTableEnumPrivate::setColumnHeading(const QString &heading)
{
    columnHeading = heading;
    retranslate();
}

QString QKXTableEnumPrivate::getColumnHeading() const
{
    return columnHeading;
}

QString QKXTableEnumPrivate::getLiteral(long value) const
{
    if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max()) {
        return QString();
    }
    const auto row = rowByValue.constFind(int(value));
    if (row == rowByValue.constEnd()) {
        return QString();
    }
    const QStandardItem *item = model->item(row.value(), 0);
    return item ? item->text() : QString();
}

bool QKXTableEnumPrivate::literalExists(QString text) const
{
    const QString cell = kxtable_Indent + text;
    for (int row = 0; row < model->rowCount(); ++row) {
        const QStandardItem *item = model->item(row, 0);
        if (item && item->text() == cell) {
            return true;
        }
    }
    return false;
}

bool QKXTableEnumPrivate::getSplitByCSV() const
{
    return splitCSV;
}

void QKXTableEnumPrivate::setSplitByCSV(bool split)
{
    splitCSV = split;
    // The headings follow at once; the rows follow with the next record.
    setColumnHeading(columnHeading);
}

QString QKXTableEnumPrivate::getColumnWidths() const
{
    return columnWidths;
}

void QKXTableEnumPrivate::setColumnWidths(const QString &widths)
{
    Q_Q(QKXTableEnum);
    columnWidths = widths;
    resizeColumns();
    emit q->ColumnWidthChanged();
}

int QKXTableEnumPrivate::rowCount() const
{
    return model->rowCount();
}

int QKXTableEnumPrivate::getRowIndex(int row) const
{
    if (row < 0 || row >= valueByRow.size()) {
        return 0;
    }
    const int value = valueByRow.at(row);
    return rowByValue.value(value, -1) == row ? value : 0;
}

void QKXTableEnumPrivate::retranslate()
{
    if (columnHeading.isEmpty()) {
        return;
    }
    QString heading = columnHeading;
    // Only headings that Latin-1 can carry are in the catalogues.
    if (QString::fromLatin1(columnHeading.toLatin1()) == columnHeading) {
        heading = QCoreApplication::translate("QObject", columnHeading.toUtf8().constData());
    }
    if (splitCSV) {
        model->setHorizontalHeaderLabels(heading.split(QLatin1Char(',')));
    } else {
        model->setHeaderData(0, Qt::Horizontal, heading, Qt::EditRole);
    }
}

void QKXTableEnumPrivate::setMetaData(const QVariant &record)
{
    metaDataValue = record;
    rowByValue.clear();
    valueByRow.clear();
    const QVector<QKXEnumEntry> entries = QKXEnumRecord::read(record, "QKXTableEnumPrivate");

    model->setRowCount(0);
    model->setRowCount(entries.size());
    valueByRow.reserve(entries.size());
    for (int row = 0; row < entries.size(); ++row) {
        const QKXEnumEntry &entry = entries.at(row);
        if (splitCSV) {
            const QStringList parts = entry.literal.split(QLatin1Char(','));
            model->setItem(row, 0, new QStandardItem(kxtable_Indent + parts.at(0)));
            for (int column = 1; column < parts.size(); ++column) {
                model->setItem(row, column, new QStandardItem(parts.at(column)));
            }
        } else {
            model->setItem(row, 0, new QStandardItem(kxtable_Indent + entry.literal));
        }
        rowByValue.insert(entry.value, row);
        valueByRow.append(entry.value);
    }
    enableSelection(model->rowCount() > 0 && !readOnly);
    resizeColumns();
}

void QKXTableEnumPrivate::setIndex(int value)
{
    if (value == currentIndexValue) {
        return;
    }
    currentIndexValue = value;
    const auto row = rowByValue.constFind(value);
    if (row == rowByValue.constEnd()) {
        // The bar stays on the row it was on: the engine's value is not one the table can show.
        if (isApplicationInitialized() && model->rowCount() > 0) {
            qDebug().noquote() << "UserInterface - QKXTableEnumPrivate::setIndex - no row for value:" << value;
        }
        return;
    }
    if (!readOnly) {
        tableView->selectRow(row.value());
        tableView->scrollTo(model->index(row.value(), 0));
        q->update();
    }
}

bool QKXTableEnumPrivate::selectionEnabled() const
{
    return tableView->selectionMode() != QAbstractItemView::NoSelection;
}

void QKXTableEnumPrivate::enableSelection(bool on)
{
    if (on) {
        tableView->setSelectionMode(QAbstractItemView::SingleSelection);
        int row = rowByValue.value(currentIndexValue, -1);
        if (row < 0) {
            row = 0;
            rowByValue.insert(currentIndexValue, row);
        }
        tableView->selectRow(row);
    } else {
        tableView->clearSelection();
        tableView->setSelectionMode(QAbstractItemView::NoSelection);
    }
    q->update();
}

int QKXTableEnumPrivate::highlightedRow() const
{
    const QModelIndexList rows = tableView->selectionModel() ? tableView->selectionModel()->selectedRows()
                                                             : QModelIndexList();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void QKXTableEnumPrivate::paintRow()
{
    if (!selectionEnabled()) {
        return;
    }
    const int row = highlightedRow();
    if (row < 0) {
        return;
    }
    int width = 0;
    for (int column = 0; column < model->columnCount(); ++column) {
        width += tableView->columnWidth(column);
    }
    const QWidget *viewport = tableView->viewport();
    const QPoint origin = tableView->pos() + viewport->pos();
    const QRect bar(origin.x() + 4, origin.y() + tableView->rowViewportPosition(row), width - 8,
                    tableView->rowHeight(row));

    QPainter painter(q);
    // A row scrolled under the heading stays under it.
    painter.setClipRect(QRect(origin, viewport->size()));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(Qt::white));
    painter.drawRoundedRect(bar, 12, 12);
}

void QKXTableEnumPrivate::resizeColumns()
{
    int available = q->width();
    if (tableView->verticalScrollBar()->isVisible()) {
        available -= model->rowCount() <= 9 ? 57 : 65;
    }
    const QStringList parts = columnWidths.split(QLatin1Char(','));
    for (int column = 0; column < parts.size(); ++column) {
        const double percent = parts.at(column).trimmed().toDouble();
        tableView->setColumnWidth(column, int(available * (percent / 100.0)));
    }
    q->update();
}

void QKXTableEnumPrivate::onShow()
{
    resizeColumns();
}

QKXTableEnum::QKXTableEnum(QWidget *parent)
    : QKXWidgetBase(*new QKXTableEnumPrivate(this), parent)
{
}

QKXTableEnum::QKXTableEnum(QKXTableEnumPrivate &dd, QWidget *parent)
    : QKXWidgetBase(dd, parent)
{
}

QKXTableEnum::~QKXTableEnum() = default;

QVariant QKXTableEnum::metaData() const
{
    Q_D(const QKXTableEnum);
    return d->metaData();
}

int QKXTableEnum::currentIndex() const
{
    Q_D(const QKXTableEnum);
    return d->currentIndex();
}

QString QKXTableEnum::getColumnHeading() const
{
    Q_D(const QKXTableEnum);
    return d->getColumnHeading();
}

void QKXTableEnum::setColumnHeading(QString name)
{
    Q_D(QKXTableEnum);
    d->setColumnHeading(name);
}

bool QKXTableEnum::getSplitByCSV() const
{
    Q_D(const QKXTableEnum);
    return d->getSplitByCSV();
}

void QKXTableEnum::setSplitByCSV(bool split)
{
    Q_D(QKXTableEnum);
    d->setSplitByCSV(split);
}

QString QKXTableEnum::getColumnWidths() const
{
    Q_D(const QKXTableEnum);
    return d->getColumnWidths();
}

void QKXTableEnum::setColumnWidths(const QString &widths)
{
    Q_D(QKXTableEnum);
    d->setColumnWidths(widths);
}

QString QKXTableEnum::getLiteral(long index) const
{
    Q_D(const QKXTableEnum);
    return d->getLiteral(index);
}

bool QKXTableEnum::literalExists(QString str) const
{
    Q_D(const QKXTableEnum);
    return d->literalExists(str);
}

int QKXTableEnum::rowCount() const
{
    Q_D(const QKXTableEnum);
    return d->rowCount();
}

int QKXTableEnum::getRowIndex(int row) const
{
    Q_D(const QKXTableEnum);
    return d->getRowIndex(row);
}

void QKXTableEnum::setMetaData(const QVariant &data)
{
    Q_D(QKXTableEnum);
    d->setMetaData(data);
}

void QKXTableEnum::setIndex(int val)
{
    Q_D(QKXTableEnum);
    d->setIndex(val);
}

void QKXTableEnum::paintEvent(QPaintEvent *event)
{
    Q_D(QKXTableEnum);
    QKXWidgetBase::paintEvent(event);
    d->paintRow();
}

void QKXTableEnum::resizeEvent(QResizeEvent *event)
{
    Q_D(QKXTableEnum);
    QKXWidgetBase::resizeEvent(event);
    d->resizeColumns();
}

void QKXTableEnum::showEvent(QShowEvent *event)
{
    Q_D(QKXTableEnum);
    QKXWidgetBase::showEvent(event);
    d->onShow();
}
