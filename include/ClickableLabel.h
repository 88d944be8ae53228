#pragma once

#include "platform_widgets_export.h"

#include <QLabel>

/**
 * A label that can be tapped, and that elides a text too long for it in the middle.
 *
 * It is the crumb of BreadCrumbsWidget. Unlike a flat QPushButton it reports the press, not the
 * release, and takes no part in keyboard activation; unlike a QLabel it paints its text() plainly,
 * whatever the text format, without frame, margin and alignment.
 *
 * \image html ClickableLabel.png "A label 150 pixels wide"
 *
 * \snippet ClickableLabel.cpp ClickableLabel
 *
 * \anchor looks_ClickableLabel
 * \par Palette roles and style-sheet hooks
 * | Role, property or selector | Effect |
 * |---|---|
 * | foregroundRole(), QPalette::WindowText by default | the text |
 * | `ClickableLabel` | colour and font of the text, which ignores \c padding |
 *
 * To assistive technology the label is a link that can be pressed.
 */
class PLATFORM_WIDGETS_EXPORT ClickableLabel : public QLabel
{
    Q_OBJECT

public:
    /// An empty label; \a parent owns it.
    explicit ClickableLabel(QWidget* parent = nullptr);
    ~ClickableLabel() override;

Q_SIGNALS:
    /**
     * Emitted when a mouse button is pressed on the label. The label may be deleted in a slot;
     * while the right button is down use deleteLater(), as Qt has a context menu event for it then.
     */
    void clicked();

protected:
    /// Emits clicked(); the label's own press handling, such as selecting text, does not take
    /// place.
    void mousePressEvent(QMouseEvent* event) override;

    /**
     * Paints the text from the left edge. Its baseline lies at y() + height() minus half of the
     * font's height: the position of the label in its parent counts as well.
     */
    void paintEvent(QPaintEvent* event) override;
};
