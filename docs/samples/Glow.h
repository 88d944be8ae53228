#pragma once

#include <Animator.h>

#include <QPointer>
#include <QWidget>

/// A disc that lights up: the sample of Animator.
class Glow : public QWidget
{
    Q_OBJECT

public:
    explicit Glow(QWidget* parent = nullptr);

    /// Starts to light up.
    void lightUp();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPointer<Animator> m_glow; // a child, which tells this widget about its values until it is gone
};
