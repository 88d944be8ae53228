#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QComboBox;
class QPlainTextEdit;
QT_END_NAMESPACE

/// The code samples of classes, as the reference shows them.
class CodeView : public QWidget
{
    Q_OBJECT

public:
    explicit CodeView(QWidget* parent = nullptr);

    /// Offers the samples of \a classes, and shows the first one.
    void setClasses(const QStringList& classes);

    /// The lines of the sample of \a className, without the indentation that they have in common;
    /// empty if there is none.
    static QString sample(const QString& className);

private:
    QComboBox* m_choice;
    QPlainTextEdit* m_text;
};
