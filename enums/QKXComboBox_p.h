// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXCOMBOBOX_P_H
#define QKXCOMBOBOX_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: the wheel enum builds on this Private.
//

#include "QKXComboBox.h"
#include "QKXWidgetBase_p.h"

#include <QMap>

class QLabel;

class STANDALONEPLUGINS_EXPORT QKXComboBoxPrivate : public QKXWidgetBasePrivate
{
    Q_OBJECT
public:
    explicit QKXComboBoxPrivate(QKXComboBox *q);
    ~QKXComboBoxPrivate() override;

    void init() override;
    void changeSize(const QString &size) override;
    void updateStyle() override;

    virtual QVariant metaData() const;
    virtual int currentIndex() const;
    virtual QString text() const;
    virtual void setText(const QString &text);
    virtual void removeCSS();
    virtual void setIndex(const int &value);
    virtual void setMetaData(const QVariant &record);
    virtual void retranslate();
    QSize sizeHint(QSize layoutHint) const;

    static QString compactTemplate();
    static QString largeTemplate();
    static QString lockedOverlayTemplate();
    static QString readOnlyOverlayTemplate();

    QLabel *comboText;
    QMap<QString, int> valueByLiteral;
    QMap<int, QString> literalByValue;
    QVariant metaDataValue;
    QString textValue;
    int currentIndexValue;
    QString minStyle;
    QString maxStyle;
    QString lockedOverlay;
    QString readOnlyOverlay;

protected:
    // Caption above field in a tight column; the field's text format is the family's.
    void buildField(Qt::TextFormat format);
    // Rebuilds both maps from the record; reports bad entries under the family's name.
    void readRecord(const QVariant &record, const char *reporter);
    void emitCurrentIndexChanged();

private:
    KX_DECLARE_PUBLIC(QKXComboBox)
};

#endif // QKXCOMBOBOX_P_H
