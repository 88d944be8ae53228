#include "ClickableLabel.h"

#include "../frame/AccessibleFactory.h"
#include "AccessibleLink.h"

#include <QPainter>

ClickableLabel::ClickableLabel(QWidget* parent)
    : QLabel(parent)
{
    ui::registerAccessible<ClickableLabel, ui::makeAccessibleLink>();
}

ClickableLabel::~ClickableLabel() = default;

void ClickableLabel::mousePressEvent(QMouseEvent*)
{
    Q_EMIT clicked(); // may delete this label
}

void ClickableLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    // mutant [dropped]: Text, which is all that is drawn, is antialiased anyhow;
    // QPainter::TextAntialiasing is the default.
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);

    const QFontMetrics metrics = painter.fontMetrics();
    const QString shown = metrics.elidedText(text(), Qt::ElideMiddle, width());
    const int baseline = y() + height() - metrics.height() / 2;
    painter.drawText(QPointF(0, baseline), shown);
}
