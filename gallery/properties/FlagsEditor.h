#pragma once

#include "FoldoutEditor.h"

#include <QMetaEnum>
#include <QVector>

QT_BEGIN_NAMESPACE
class QCheckBox;
QT_END_NAMESPACE

/// A check box for every key of one bit; keys of several bits, such as masks, are left out.
class FlagsEditor : public FoldoutEditor
{
    Q_OBJECT

public:
    explicit FlagsEditor(const QMetaEnum& metaEnum, QWidget* parent = nullptr);

protected:
    QString summary(const QVariant& value) const override;
    QWidget* makeBody() override;
    void fillBody(const QVariant& value) override;

private:
    struct Flag
    {
        QString key;
        uint bit;
        QCheckBox* box;
    };
    QVector<Flag> m_flags;
};
