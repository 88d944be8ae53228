#include "Samples.h"

#include <ClickableLabel.h>

void samples::clickableLabel(QWidget* window)
{
    //! [ClickableLabel]
    auto* label = new ClickableLabel(window);
    label->setText("A rather long name of a directory");
    label->setMaximumWidth(150);
    QObject::connect(label, &ClickableLabel::clicked, window, &QWidget::close);
    //! [ClickableLabel]
}
