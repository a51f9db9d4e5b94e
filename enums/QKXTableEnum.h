// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXTABLEENUM_H
#define QKXTABLEENUM_H

#include "QKXWidgetBase.h"

#include <QVariant>

class QKXTableEnumPrivate;

// An enumerated attribute shown as a table: one row per entry of the enumeration record, the current
// value's row on a white bar, literals optionally split into columns at commas. A tap on a row chooses
// its value through the edit filter; the bar moves only when the host sets the confirmed value.
class STANDALONEPLUGINS_EXPORT QKXTableEnum : public QKXWidgetBase
{
    Q_OBJECT
    Q_PROPERTY(bool SplitCSVData READ getSplitByCSV WRITE setSplitByCSV DESIGNABLE true STORED true)
    Q_PROPERTY(QString ColumnHeading READ getColumnHeading WRITE setColumnHeading DESIGNABLE true STORED true)
    Q_PROPERTY(QString ColumnWidths READ getColumnWidths WRITE setColumnWidths DESIGNABLE true STORED true)
    Q_PROPERTY(bool ReadOnly READ isReadOnly WRITE setReadOnly DESIGNABLE true STORED true)

public:
    explicit QKXTableEnum(QWidget *parent = nullptr);
    ~QKXTableEnum() override;

    virtual QVariant metaData() const;
    Q_INVOKABLE virtual int currentIndex() const;

    virtual QString getColumnHeading() const;
    Q_INVOKABLE void setColumnHeading(QString name);
    virtual bool getSplitByCSV() const;
    virtual void setSplitByCSV(bool split);
    // Comma-separated percentages of the available width, one per column.
    virtual QString getColumnWidths() const;
    virtual void setColumnWidths(const QString &widths);

    // The cell text of the value's row, with its indent; empty for a value without a row.
    Q_INVOKABLE QString getLiteral(long index) const;
    // Whether some row's first cell shows exactly this text.
    Q_INVOKABLE bool literalExists(QString str) const;
    Q_INVOKABLE int rowCount() const;
    // The value whose row this is; 0 when no value has it.
    Q_INVOKABLE int getRowIndex(int row) const;

public Q_SLOTS:
    virtual void setMetaData(const QVariant &data);
    // The table starts from the value 0, as the combo box does: the highlight is on 0's row, or on the
    // first row (recorded as 0's) when 0 is not listed, until the host's first setIndex. A value
    // without a row keeps the highlight where it was and, once the application is initialized, says
    // so on the debug stream.
    virtual void setIndex(int val);

Q_SIGNALS:
    // Kept for forms that connect to it; changes leave through the edit filter instead.
    void valueChanged(int index);
    void ColumnWidthChanged();

protected Q_SLOTS:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

protected:
    QKXTableEnum(QKXTableEnumPrivate &dd, QWidget *parent);

private:
    Q_DISABLE_COPY(QKXTableEnum)
    Q_DECLARE_PRIVATE(QKXTableEnum)
};

#endif // QKXTABLEENUM_H
