#pragma once

#include <QPointer>
#include <QWidget>

/// A coloured outline around the widget of a page that is being edited. Taps go through it.
class TargetMark : public QWidget
{
    Q_OBJECT

public:
    explicit TargetMark(QWidget* parent = nullptr);

    /// Lies around \a target from now on, on \a page, which it stands on; nowhere if it is null.
    void mark(QWidget* page, QWidget* target);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void follow();

    QPointer<QWidget> m_target;
};
