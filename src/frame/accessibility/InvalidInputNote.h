#pragma once

#include <QObject>
#include <QString>

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

namespace ui {

/**
 * Says in a field's accessible description that its input is invalid, as long as its dynamic property
 * "inputValid" is false.
 *
 * Qt has no accessible state for it, and no way to extend its own accessible interface of line edits,
 * which knows where each character is.
 */
class InvalidInputNote : public QObject
{
    Q_OBJECT

public:
    /// A child of \a field, which it watches.
    explicit InvalidInputNote(QLineEdit* field);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show();
    void withdraw();

    QLineEdit* m_field;
    QString m_given; // the application's own description
    QString m_shown; // null while there is no note
};

} // namespace ui
